#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/payoff.h"
#include "production/builders/letters/sellers.h"

namespace quillmark {

using namespace field;

namespace {

constexpr double kValueTab = 1.75;

void TypeTransaction(const JobValues& job, Typist& type) {
    type.AtTab(kValueTab, [&] {
        type.Text("Closing Date:\t", job[ClosingDate], "\r\r");
        type.Text("Purchaser(s):\t", job.BuyerNames(), "\r\r");
        type.Text("Seller(s):\t", job.SellerNames(), "\r\r");
        type.Text("Premises:\t", job.Property(), RepeatReturn(3));
    });
}

void TypePromises(const JobValues& job, Typist& type) {
    TypeList(type, kLetterIndent,
             {
                 "The undersigned has obtained from the holder of the Mortgage a written statement of the "
                 "amount required to pay it in full, and has furnished a copy of the statement to the "
                 "attorney for the Purchaser.",
                 "Directly after the closing the undersigned will pay that amount to the holder from the "
                 "proceeds of the sale, and will request a release of the Mortgage in writing.",
                 "If the payment proves insufficient, the undersigned will at once require the difference "
                 "of the Seller and forward it to the holder.",
             });
    TypeParagraph(
        type,
        "The undersigned will make every reasonable effort to obtain the release, and within ten (10) "
        "days after its receipt will record it on the ",
        job.Town(PropertyCityStateZip),
        " Land Records, at no expense to the Purchaser, and report the volume and page of the recording "
        "to the attorney for the Purchaser. If no release has been received within sixty (60) days after "
        "the payment, the undersigned will demand it under section 49-8 of the Connecticut General "
        "Statutes and, where section 49-8a permits, will prepare, execute and record the affidavit that "
        "takes its place.");
    TypeParagraph(
        type,
        "The Purchaser accepts the deed in reliance upon this agreement. It may be relied upon also by "
        "the Purchaser's lender and by any company that insures the title to the Premises, and it "
        "survives the closing until the release or the affidavit is of record.");
}

}  // namespace

/// The written promise of the seller's attorney on which a sale closes while a release is not yet to be had.
void TypeReleaseAgreement(const JobValues& job, Typist& type, const Variant& variant) {
    const Payoff& payoff = PayoffOf(variant.number);

    BeginLetter(type);
    type.Text("\r");
    TypeHeadLines(type, {"AGREEMENT RE", "UNAVAILABILITY OF MORTGAGE RELEASE(S)"});
    type.Text(RepeatReturn(2));
    TypeTransaction(job, type);
    type.Align(word::AlignJustified);
    TypeParagraph(
        type,
        "The undersigned attorney for the Seller, in connection with the closing of the title to the "
        "Premises, agrees as follows with regard to the mortgage to ",
        job[payoff.mortgagee], " dated ", job[payoff.mortgageDate], " and recorded in Volume/Book ",
        job[payoff.volume], " at Page ", job[payoff.page], " of the ", job.Town(PropertyCityStateZip),
        " Land Records (the \"Mortgage\"), of which no release is available at the closing:");
    TypePromises(job, type);
    type.Align(word::AlignLeft);
    type.As(word::Role::Signature, [&] {
        type.Text("Attorney for the ", SellerWord(job), RepeatReturn(3), "   By:  ", SignatureRule(),
                  "\r          ", job[SellerAtty], "\r");
    });
    EndLetter(type);
}

}  // namespace quillmark
