#include "core/text_conversions.h"
#include "entry/tagged_values.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/equity_line_directive.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/payoff.h"
#include "production/builders/letters/release_address.h"

namespace quillmark {

using namespace field;

namespace {

void TypeEnclosedPayment(const JobValues& job, Typist& type, const Payoff& payoff) {
    const std::string& method = job[payoff.method];
    if (method == "pay by wire") {
        type.Text("Enclosed please find evidence of a wire transfer");
    } else {
        type.Text("Enclosed please find a bank/certified check");
        if (!method.empty() && method != "(enter check #)") type.Text(" (#", method, ")");
    }
    TypeParagraph(type, " in the amount of ", job[payoff.amount],
                  " representing payment in full of the above-referenced loan as per the attached payoff "
                  "statement.");
}

void TypeWhereToSend(const JobValues& job, Typist& type, ReleaseGoesTo release) {
    if (release == ReleaseGoesTo::SellersAttorney) {
        TypeParagraph(type, "Please mail this release to my office at the address above.");
        return;
    }
    TypeParagraph(type, "Please send this release to the following address:");
    type.Align(word::AlignCentre);
    type.Bold(true);
    if (release == ReleaseGoesTo::TrackingService) {
        TypeReleaseTrackingService(type);
    } else {
        TypeBuyersAttorney(job, type);
    }
    type.Bold(false);
    type.Text("\r");
    type.Align(word::AlignJustified);
}

/// What a mortgagee owes who lets the release wait, C.G.S. Sec. 49-8(c).
void TypeReleaseStatute(Typist& type) {
    type.Text(
        "Kindly be advised that section 49-8(c) of the Connecticut General Statutes states that a "
        "mortgagee who fails to ");
    type.TypeBold("deliver and release within 60 days");
    TypeParagraph(
        type,
        " from the request for the same shall be liable to any person aggrieved thereby, up to the "
        "maximum there set, at a rate of $200.00 for each week after the expiration of such 60 days or in "
        "an amount equal to the loss sustained by such person by the failure to release, whichever is "
        "greater.");
    TypeParagraph(type,
                  "Accordingly, your prompt attention to the preparation of this release would be greatly "
                  "appreciated. Thank you.");
}

void TypeForwardingAddress(const JobValues& job, Typist& type) {
    type.Text("\rFORWARDING ADDRESS FOR ESCROW:\r", job.TwoLines(SellerFwdAddr1), "\r",
              job[SellerFwdCityStateZip], "\r");
}

}  // namespace

/// The letter that goes to the servicer with the payoff and asks for the release. A home equity line is
/// closed by a directive of its borrower behind it.
void TypePayoffTransmittal(const Production& production, Typist& type, const Variant& variant) {
    const JobValues job(production.job);
    const Payoff& payoff = PayoffOf(variant.number);

    BeginLetter(type);
    TypeLetterHead(job, type, LetterheadRoom::Long);
    TypeServicer(job, type, payoff);
    type.Text("\r");
    TypeLoanReference(job, type, payoff);
    // The longest of these letters, with room for printed paper over it, is to stay on one page.
    type.FontSize(10);
    type.Text("Dear Sir/Madam:", RepeatReturn(2));
    type.Align(word::AlignJustified);
    TypeEnclosedPayment(job, type, payoff);
    TypeParagraph(
        type,
        "This letter is to confirm that upon receipt of said payoff, you will provide the undersigned "
        "with a Release of Mortgage in PROPER FORM in accordance with the following recording information:");
    TypeRecitalParagraph(job, type, payoff, kLetterIndent);
    TypeWhereToSend(job, type, ReleaseOfTransmittal(production, variant));
    TypeReleaseStatute(type);
    TypeClosing(job, type, "Very truly yours,", 3);
    if (job.Has(Person)) TypeForwardingAddress(job, type);
    EndLetter(type);

    if (!IsEquityLine(job[payoff.loanNumber])) return;
    type.PageBreak();
    TypeEquityLineDirective(job, type, payoff);
}

}  // namespace quillmark
