#include "entry/companions.h"

#include <algorithm>
#include <string>

#include "core/field_registry.h"
#include "core/text_conversions.h"
#include "platform/code_page.h"
#include "selection/field_listing.h"

namespace quillmark {

namespace {

struct CompanionRow {
    std::string_view fiduciaryType;
    Companion companion;
};

// clang-format off
constexpr CompanionRow kCompanions[] = {
    {"Administrator",        {45,  "DECEDENT"}},
    {"Executor",             {45,  "DECEDENT"}},
    {"Conservator",          {53,  "CONSERVED PARTY"}},
    {"Testamentary Trustee", {206, "TRUST INSTRUMENT"}},
    {"Trustee",              {206, "TRUST INSTRUMENT"}},
};
// clang-format on
constexpr std::string_view kTitle = " ADDITIONAL INFORMATION REQUIRED";

std::optional<std::string> Answer(const Companion& companion, const Job& job, Dialogs& dialogs) {
    InputDialog box{std::string(kTitle), "Please enter a value for  ", {}};
    box.text += std::string(companion.name) + "\n" + FieldDescription(companion.n, job);
    if (job.IsFilled(companion.n)) box.proposed = job.D(companion.n);
    auto answer = dialogs.Ask(box);
    if (!answer) return std::nullopt;
    const auto missing = FirstUnencodable(*answer);
    if (!missing) return answer;
    dialogs.Tell(std::string(kTitle), "A field cannot hold " + missing->name + ".", DialogIcon::Warning);
    return std::nullopt;
}

}  // namespace

std::optional<Companion> CompanionOf(std::string_view fiduciaryType, const Job& job) {
    const auto row = std::find_if(std::begin(kCompanions), std::end(kCompanions), [&](const CompanionRow& r) {
        return r.fiduciaryType == Trimmed(fiduciaryType);
    });
    if (row == std::end(kCompanions) || !job.txtField(row->companion.n).relevant) return std::nullopt;
    return row->companion;
}

bool AskForCompanion(std::string_view fiduciaryType, SelectionState& screen, const Office& office) {
    const auto companion = CompanionOf(fiduciaryType, screen.job);
    if (!companion) return true;
    const auto answer = Answer(*companion, screen.job, office.dialogs);
    if (!answer) return false;
    const std::string_view value = Trimmed(*answer);
    UpdateListing(companion->n, value, screen, office);
    return !value.empty();
}

}  // namespace quillmark
