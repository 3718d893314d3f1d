#include "core/text_conversions.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/sellers.h"
#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

/// The seller's authority for the firm to act at the closing, and to receive and pay out the proceeds.
void TypeAuthorizationLetter(const JobValues& job, Typist& type) {
    const bool several = job.Has(TwoSellers);

    type.Indents(kDeedIndent);
    type.Font("Arial", 10);
    TypeHeadLines(type, {"ATTORNEY AUTHORIZATION LETTER"});
    type.Text("\r", job[DocumentDate], RepeatReturn(3));
    type.Text(job[SellerLawfirm], "\r", job[SellerAttyCityStateZip], RepeatReturn(2));
    type.Text("Re:\tSale of ", job.Property(), "\r\t\tClosing Date:  ", job[ClosingDate], RepeatReturn(2));
    type.Text("Ladies/Gentlemen:", RepeatReturn(2));

    type.Align(word::AlignJustified);
    type.Text("The undersigned, ");
    TypeSellersInCapacity(job, type);
    TypeParagraph(type, several ? ", being the sellers" : ", being the seller", " of the above property, ",
                  several ? "hereby authorize" : "hereby authorizes",
                  " you, as attorneys for the undersigned, to do the following in connection with its "
                  "sale:");
    TypeList(
        type, kDeedIndent,
        {
            "To obtain from the holder of any mortgage, equity line or other lien, and from any taxing "
            "authority or association of owners, a statement of the amount required to pay it, and to "
            "direct that an equity line be closed to further advances.",
            "To deliver the deed and all other closing documents that the undersigned has signed and left "
            "with you, to fill in dates and other blanks in them, and to correct clerical errors.",
            "To compute and agree to the adjustments, and to sign and deliver the closing statement.",
            "To receive the proceeds of the sale, by check or by wire, and to deposit them in your "
            "clients' funds account. Payment to you discharges the purchaser as fully as payment to the "
            "undersigned.",
            "To pay from the proceeds all mortgages and liens that are to be released, the conveyance "
            "taxes, the commission of any real estate broker, your fee and disbursements, and all other "
            "charges shown on the closing statement, and to hold in escrow whatever the contract of sale "
            "or an agreement made at the closing requires.",
            "To remit the balance to the undersigned, and to do all else that is necessary to carry out "
            "the contract of sale.",
        });
    TypeParagraph(
        type,
        "This authority remains in effect until the sale has closed and the proceeds have been accounted "
        "for. It may be revoked before the closing, and then only by a writing that is delivered to you. "
        "If the sale does not close, you are to return all signed documents to the undersigned or destroy "
        "them.");
    type.Align(word::AlignLeft);
    type.AtTab(kSignatureTab, [&] { TypeSignatures(type, SigningSellers(job)); });
    type.Indents(0);
}

}  // namespace quillmark
