#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/closing_letter.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/payoff.h"
#include "production/builders/letters/release_address.h"
#include "production/builders/letters/sellers.h"

namespace quillmark {

using namespace field;

namespace {

std::string_view ReceiverOfRelease(ReleaseGoesTo release) {
    switch (release) {
        case ReleaseGoesTo::TrackingService:
            return "SMS FasTrax, P.O. Box 3069, Orange, CA  92857, for recording.";
        case ReleaseGoesTo::BuyersAttorney:
            return "you at the address above.";
        case ReleaseGoesTo::SellersAttorney:
            break;
    }
    return "this office.";
}

}  // namespace

/// The promise of the seller's attorney to clear the title of a mortgage that is paid at the closing, in the
/// form used about Bridgeport.
void TypeBridgeportClosingLetter(const Production& production, Typist& type, const Variant& variant) {
    const JobValues job(production.job);
    const Payoff& payoff = PayoffOf(variant.number);

    BeginLetter(type);
    TypeHeadLines(type, {"GREATER BRIDGEPORT BAR ASSOCIATION", "SELLER'S ATTORNEY'S CLOSING LETTER"});
    TypeClosingLetterAddress(job, type);
    TypeReferenceLine(job, type);
    type.Text("Ladies/Gentlemen:", RepeatReturn(2));

    type.Align(word::AlignJustified);
    TypeRepresentation(job, type);
    TypeParagraph(
        type,
        " I have delivered to you at the closing copies of the following, and will send the originals to ",
        job[payoff.servicer], " without delay by a carrier that gives a receipt:");
    TypePayoffPapers(job, type, payoff,
                     {"Letter of transmittal directing that the release be delivered to ",
                      ReceiverOfRelease(ReleaseOfRun(production))});
    TypeParagraph(
        type,
        "This letter will confirm that I will make prompt, reasonable and diligent efforts to obtain a "
        "release of said mortgage in proper form, and that the release will be recorded on the ",
        job.Town(PropertyCityStateZip), " Land Records at no expense to you or your ",
        ClientWord(job.Has(TwoBuyers)),
        ". If the release has not been received within sixty (60) days after the closing, I will demand "
        "it in writing under section 49-8 of the Connecticut General Statutes and will furnish whatever "
        "is in my file that an affidavit under section 49-8a requires.");
    TypeParagraph(type, "Should the payoff prove insufficient, I will call upon my ",
                  ClientWord(job.Has(TwoSellers)),
                  " at once for the difference and forward it upon receipt. This letter is given so that "
                  "the closing may take place before the release is at hand, and ",
                  job[BuyerTitleInsurCo], " may rely upon it in insuring the title of the ", BuyerWord(job),
                  " without exception for said mortgage.");
    TypeFirmClosing(job, type);
    EndLetter(type);
}

}  // namespace quillmark
