#include "production/run/create_notices.h"

#include <fmt/format.h>

#include <algorithm>

#include "selection/document_catalogue.h"

namespace quillmark {

namespace {

struct Notice {
    char letter;
    std::string_view heading;
    std::string_view body;
};

constexpr Notice kNotices[] = {
    {'A', "TAX SCHEDULES & RATE TABLES",
     "The Closing Statement and/or 1099 Form you selected uses appropriate tax schedules based upon the NAME "
     "of the city or town in the property address.  If the name is misspelled or otherwise not recognized, "
     "Quillmark defaults to a SEMI-ANNUAL schedule and 0.25% municipal conveyance rate.  All tables and rates "
     "are current as of July 1, 2021."},
    {'B', "CALCULATIONS WARNING",
     "As Word Documents, the finished forms will NOT re-calculate for changes made to mathematical values "
     "contained therein.  Any changes to the figures must be done through the Quillmark program via "
     "\"Re-Make\" or file recall."},
    {'C', "ENCUMBRANCES & EXCEPTIONS",
     "The Deed you selected requires that you add all applicable encumbrances and special exceptions to the "
     "Schedule A Legal Description to be attached thereto."},
    {'D', "JOINT TENANTS",
     "As defined in C.G.S. Sec. 47-36a and provided in Sec. 47-14a, the words \"as joint tenants\", used in "
     "the context of the statutory deed you selected, create a joint tenancy with RIGHTS OF SURVIVORSHIP."},
};

}  // namespace

std::string TextOfNotices(std::string_view letters) {
    std::string text;
    for (const Notice& notice : kNotices) {
        if (letters.find(notice.letter) == letters.npos) continue;
        text += fmt::format("{}{}\n\n{}", text.empty() ? "" : "\n\n\n", notice.heading, notice.body);
    }
    return text;
}

std::string LetterheadReminder(std::span<const std::string> documents) {
    const auto sheets = std::ranges::count_if(
        documents, [](const std::string& name) { return HasTrait(name, DocumentTrait::Letter); });
    if (sheets == 0) return {};
    return fmt::format(
        "You will need to place {} {} of company letterhead at the top of the printer tray before printing.",
        sheets, sheets == 1 ? "sheet" : "sheets");
}

}  // namespace quillmark
