#include "entry/capacity_detail.h"

#include <algorithm>
#include <string>

#include "core/field_registry.h"
#include "core/fields.h"
#include "core/text_conversions.h"

namespace quillmark {

namespace {

struct DetailRow {
    std::string_view fiduciaryType;
    CapacityDetail detail;
};

// clang-format off
constexpr DetailRow kDetails[] = {
    {"Administrator",        {field::Decedent, "DECEDENT"}},
    {"Executor",             {field::Decedent, "DECEDENT"}},
    {"Conservator",          {field::ConservedParty, "CONSERVED PARTY"}},
    {"Testamentary Trustee", {field::TrustInstrument, "TRUST INSTRUMENT"}},
    {"Trustee",              {field::TrustInstrument, "TRUST INSTRUMENT"}},
};
// clang-format on

}  // namespace

std::optional<CapacityDetail> CapacityDetailOf(std::string_view fiduciaryType, const Job& job) {
    const auto row = std::find_if(std::begin(kDetails), std::end(kDetails), [&](const DetailRow& r) {
        return r.fiduciaryType == Trimmed(fiduciaryType);
    });
    if (row == std::end(kDetails) || !job.txtField(row->detail.n).relevant) return std::nullopt;
    return row->detail;
}

InputDialog DetailQuestion(const CapacityDetail& detail, const Job& job) {
    InputDialog box{" ADDITIONAL INFORMATION REQUIRED", "Please enter a value for  ", {}};
    box.text += std::string(detail.name) + "\n" + FieldDescription(detail.n, job);
    if (job.IsFilled(detail.n)) box.proposed = job.D(detail.n);
    return box;
}

}  // namespace quillmark
