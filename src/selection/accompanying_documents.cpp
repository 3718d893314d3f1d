#include "selection/accompanying_documents.h"

#include "selection/job_list_lines.h"

namespace quillmark {

namespace {

using std::chrono::October;
using std::chrono::year;
constexpr auto kClosingDisclosureRule =
    year(2015) / October / 2;  ///< contracts of later days need the addendum

class Accompanying {
 public:
    explicit Accompanying(JobInHand& hand) : hand_(hand) {}

    /// `reminder` is what the history must not hold: the document was chosen before, and what accompanies it
    /// is known.
    void Add(std::string_view document, std::string_view reminder, std::string_view reason) {
        if (IsInHistory(reminder, hand_.job.JobDocuments) || HoldsLine(document, hand_)) return;
        AppendLine(document, hand_);
        notices_.push_back(AddedNotice(reason));
    }
    std::vector<std::string> TakeNotices() { return std::move(notices_); }

 private:
    JobInHand& hand_;
    std::vector<std::string> notices_;
};

}  // namespace

std::vector<std::string> AddAccompanying(std::string_view picked, std::chrono::year_month_day today,
                                         JobInHand& hand) {
    Accompanying list(hand);
    if (picked == kEngagementLetter)
        list.Add(kPrivacyPolicy, kEngagementLetter,
                 "A Privacy Policy Notice is required for every transaction");
    if (IsContract(picked) && today > kClosingDisclosureRule)
        list.Add(kCfpbAddendum, kCfpbAddendum,
                 "A CFPB Closing-Disclosure Addendum must accompany the contract");
    if (picked == kBridgeportContract)
        list.Add(kBridgeportClosingLetter, kBridgeportClosingLetter,
                 "A Closing Letter is required for the Bridgeport Bar");
    // A trustee's deed is never without the affidavit, whatever the job held before.
    if (HasTrait(picked, DocumentTrait::TrusteeDeed))
        list.Add(kTrusteesAffidavit, {}, "A Trustee's Affidavit of Facts is required for this transaction");
    return list.TakeNotices();
}

std::string AddedNotice(std::string_view reason) {
    return std::string(reason) + " and has been automatically added to the job list.";
}

}  // namespace quillmark
