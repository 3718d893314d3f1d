#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/closing_letter.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/payoff.h"
#include "production/builders/letters/sellers.h"

namespace quillmark {

using namespace field;

/// The promise of the seller's attorney to clear the title of a mortgage that is paid at the closing, in the
/// form used in New Haven County: the release goes to the buyer's attorney.
void TypeNewHavenClosingLetter(const JobValues& job, Typist& type, const Variant& variant) {
    const Payoff& payoff = PayoffOf(variant.number);

    BeginLetter(type);
    TypeHeadLines(type, {"NEW HAVEN COUNTY BAR ASSOCIATION", "SELLER'S ATTORNEY'S CLOSING LETTER"});
    TypeClosingLetterAddress(job, type);
    TypeReferenceLine(job, type);
    TypeDearAttorney(job, type);

    type.Align(word::AlignJustified);
    TypeRepresentation(job, type);
    TypeParagraph(type, " The mortgage serviced by ", job[payoff.servicer],
                  " is to be paid from the proceeds, and you have been given copies of the following:");
    TypePayoffPapers(
        job, type, payoff,
        {"Letter of transmittal directing the release be delivered to ", "you at the address above."});
    TypeParagraph(
        type,
        "This letter will confirm that the undersigned shall immediately after the closing send the "
        "originals of these papers to the holder of the mortgage by a carrier that gives a receipt, and "
        "shall furnish you with proof of their delivery.");
    TypeParagraph(
        type,
        "This letter will also confirm that, in the event the release is not received by you within sixty "
        "(60) days after the closing, or cannot be recorded in the form in which it is received, the "
        "undersigned shall upon your request demand a proper release under section 49-8 of the "
        "Connecticut General Statutes, furnish what an affidavit under section 49-8a requires, and take "
        "such further steps as are reasonably necessary, all at no expense to you or your ",
        ClientWord(job.Has(TwoBuyers)), ".");
    TypeParagraph(
        type, "Should the payoff prove insufficient, the undersigned shall call upon the ", SellerWord(job),
        " at once for the difference and forward it upon receipt. This letter may be relied upon by ",
        job[BuyerTitleInsurCo], " in insuring the title without exception for said mortgage.");
    TypeFirmClosing(job, type);
    EndLetter(type);
}

}  // namespace quillmark
