#include "selection/accompanying_documents.h"

#include <chrono>

#include "selection/job_list_lines.h"

namespace quillmark {

namespace {

using std::chrono::October;
using std::chrono::year;
constexpr auto kClosingDisclosureRule =
    year(2015) / October / 2;  ///< contracts of later days need the addendum

/// `reminder` is what the history must not hold: the document was chosen before and its accompanying is
/// known.
void AddBeside(std::string_view accompanying, std::string_view reminder, std::string_view reason,
               SelectionState& screen, const Office& office) {
    if (IsInHistory(reminder, screen.job.JobDocuments) || HoldsLine(accompanying, screen)) return;
    AppendLine(accompanying, screen);
    AlertAdded(reason, office);
}

}  // namespace

void AddAccompanying(std::string_view picked, SelectionState& screen, const Office& office) {
    if (picked == kEngagementLetter)
        AddBeside(kPrivacyPolicy, kEngagementLetter,
                  "A Privacy Policy Notice is required for every transaction", screen, office);
    if (IsContract(picked) && office.clock.Today() > kClosingDisclosureRule)
        AddBeside(kCfpbAddendum, kCfpbAddendum,
                  "A CFPB Closing-Disclosure Addendum must accompany the contract", screen, office);
    if (picked == kBridgeportContract)
        AddBeside(kBridgeportClosingLetter, kBridgeportClosingLetter,
                  "A Closing Letter is required for the Bridgeport Bar", screen, office);
    // A trustee's deed is never without the affidavit, whatever the job held before.
    if (HasTrait(picked, DocumentTrait::TrusteeDeed))
        AddBeside(kTrusteesAffidavit, {}, "A Trustee's Affidavit of Facts is required for this transaction",
                  screen, office);
}

void AlertAdded(std::string_view reason, const Office& office) {
    if (!office.settings.documentAlerts) return;
    office.dialogs.Tell("  ALERT", std::string(reason) + " and has been automatically added to the job list.",
                        DialogIcon::Information);
}

}  // namespace quillmark
