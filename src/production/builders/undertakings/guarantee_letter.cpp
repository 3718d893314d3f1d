#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/deeds/passages_deed.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/payoff.h"
#include "production/builders/letters/sellers.h"
#include "production/kit/passages.h"

namespace quillmark {

using namespace field;

namespace {

void TypeGuaranteeAddress(const JobValues& job, Typist& type) {
    type.Text("To:\tAttorney ", job[BuyerAtty], "\r");
    if (job[BuyerLawfirm].find(job[BuyerAtty]) == std::string::npos)
        type.Text("\t\t", job[BuyerLawfirm], "\r");
    type.Text("\rRe:\tSale of Property located at ", job.Property(), RepeatReturn(2));
}

void TypeSituation(const JobValues& job, Typist& type, const Payoff& payoff) {
    type.Text("Please be advised that the undersigned is representing the ", SellerWord(job), ", ",
              job.SellerNames(), ", in the above sale to your ", ClientWord(job.Has(TwoBuyers)), ", ",
              job.BuyerNames(), " (the \"", BuyerWord(job), "\"), which is to close on ", job[ClosingDate],
              ". The property is subject to a mortgage");
    TypeMortgageTerms(job, type, payoff);
    TypeParagraph(type, ", whose present holder is called the Lender below.");
    TypeParagraph(
        type,
        "The Lender will not provide a release of the mortgage until said mortgage has been paid in full. "
        "So that the sale may close before the release is at hand, the undersigned guarantees the "
        "following:");
}

void TypeGuarantees(const JobValues& job, Typist& type) {
    TypeList(type, kDeedIndent, [&] {
        type.Text(
            "Directly after the closing the undersigned will send to the Lender the full amount required "
            "by its payoff statement, with a written request for a release.");
        type.EndItem();
        type.Text("Upon receipt of the release the undersigned will record it on the ",
                  job.Town(PropertyCityStateZip), " Land Records at the expense of the ", SellerWord(job),
                  ".");
        type.EndItem();
        type.Text(
            "If the release has not been received within sixty (60) days after payment, the undersigned "
            "will notify the mortgagee of record in writing that section 49-8 of the Connecticut General "
            "Statutes requires it. If such Mortgagee fails to respond to the notification within fifteen "
            "(15) days, the undersigned will record the affidavit that section 49-8a permits, or will "
            "otherwise clear the land records of the mortgage.");
        type.EndItem();
    });
}

void TypeIndemnification(const JobValues& job, Typist& type) {
    const bool several = job.Has(TwoSellers);
    TypeParagraph(
        type, "The ", SellerWord(job), several ? " join" : " joins",
        " in this letter in order to confirm that no more is owed upon the mortgage than the payoff "
        "statement shows, to agree to pay any difference on demand, and to indemnify and hold harmless "
        "the ",
        BuyerWord(job), ", the title insurer of the ", BuyerWord(job),
        " and the undersigned attorney from all loss, cost and expense, including reasonable attorney's "
        "fees, that may arise because the mortgage is not released of record.");
    type.Text("Dated this ", job.DayMonthYear(DocumentDate), ".\r");
}

void TypeAttorneyForSeller(const JobValues& job, Typist& type) {
    type.Text("\t", job[SellerLawfirm], RepeatReturn(2), "\t", SignatureRule(), "\r\tBy ", job[SellerAtty],
              ", Attorney for the ", SellerWord(job), "\r");
}

}  // namespace

/// The guarantee of the seller's attorney, and the indemnity of the seller, that a mortgage paid at the
/// closing will be released, in the form used in New London County.
void TypeGuaranteeLetter(const JobValues& job, Typist& type, const Variant& variant) {
    const Payoff& payoff = PayoffOf(variant.number);

    type.Indents(kDeedIndent);
    type.Font("Arial", 10);
    TypeHeadLines(type, {"NEW LONDON COUNTY BAR ASSOCIATION", "GUARANTEE LETTER INDEMNIFICATION AGREEMENT"});
    TypeGuaranteeAddress(job, type);
    type.Align(word::AlignJustified);
    TypeSituation(job, type, payoff);
    TypeGuarantees(job, type);
    TypeIndemnification(job, type);
    type.Align(word::AlignLeft);
    type.AtTab(kSignatureTab, [&] {
        type.As(word::Role::Signature, [&] { TypeAttorneyForSeller(job, type); });
        TypeSignatures(type, SigningSellers(job));
        TypeVenue(job, type);
        TypeGrantorAcknowledgment(job, type, FindSellersByPower(job));
        TypeNotary(job, type);
    });
    type.Indents(0);
}

}  // namespace quillmark
