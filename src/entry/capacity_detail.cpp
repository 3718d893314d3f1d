#include "entry/capacity_detail.h"

#include <algorithm>
#include <string>

#include "core/field_registry.h"
#include "core/fields.h"
#include "core/text_conversions.h"
#include "platform/code_page.h"
#include "selection/field_listing.h"

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
constexpr std::string_view kTitle = " ADDITIONAL INFORMATION REQUIRED";

std::optional<std::string> Answer(const CapacityDetail& detail, const Job& job, Dialogs& dialogs) {
    InputDialog box{std::string(kTitle), "Please enter a value for  ", {}};
    box.text += std::string(detail.name) + "\n" + FieldDescription(detail.n, job);
    if (job.IsFilled(detail.n)) box.proposed = job.D(detail.n);
    auto answer = dialogs.Ask(box);
    if (!answer) return std::nullopt;
    const auto missing = FirstUnencodable(*answer);
    if (!missing) return answer;
    dialogs.Tell(std::string(kTitle), "A field cannot hold " + missing->name + ".", DialogIcon::Warning);
    return std::nullopt;
}

}  // namespace

std::optional<CapacityDetail> CapacityDetailOf(std::string_view fiduciaryType, const Job& job) {
    const auto row = std::find_if(std::begin(kDetails), std::end(kDetails), [&](const DetailRow& r) {
        return r.fiduciaryType == Trimmed(fiduciaryType);
    });
    if (row == std::end(kDetails) || !job.txtField(row->detail.n).relevant) return std::nullopt;
    return row->detail;
}

bool AskForCapacityDetail(std::string_view fiduciaryType, SelectionState& screen, const Office& office) {
    const auto detail = CapacityDetailOf(fiduciaryType, screen.job);
    if (!detail) return true;
    const auto answer = Answer(*detail, screen.job, office.dialogs);
    if (!answer) return false;
    const std::string_view value = Trimmed(*answer);
    UpdateListing(detail->n, value, screen, office);
    return !value.empty();
}

}  // namespace quillmark
