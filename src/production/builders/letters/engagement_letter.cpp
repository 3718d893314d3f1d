#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/letter.h"

namespace quillmark {

using namespace field;

namespace {

/// One line each, which leaves the room on the page to the terms.
void TypeServices(Typist& type, std::initializer_list<std::string_view> services) {
    type.Indents(kLetterIndent + 0.375);
    for (const std::string_view service : services) type.Text(service, "\r");
    type.Indents(kLetterIndent);
    type.Text("\r");
}

/// Name and address of the seller whom this copy is for; of an entity also who reads it.
void TypeSeller(const JobValues& job, Typist& type, const Party& seller) {
    type.Text(job[seller.name], "\r");
    if (job.Has(Entity)) type.Text("Attention:  ", job[Seller1Agent], "\r");
    type.Text(job.TwoLines(seller.addr1), "\r", job[seller.cityStateZip], RepeatReturn(2));
}

void TypeAcceptance(const JobValues& job, Typist& type, const Party& seller) {
    type.Text("\rThe foregoing is understood and agreed to:", RepeatReturn(2));
    if (job.Has(Entity)) {
        type.Text("By:  ", SignatureRule(), "     Date:  ", RepeatUnderscore(18), "\r      ",
                  job[Seller1Agent], ", for ", job[seller.name], "\r");
    } else {
        type.Text(SignatureRule(), "     Date:  ", RepeatUnderscore(18), "\r", job[seller.name], "\r");
    }
}

}  // namespace

/// Scope, fee and limits of the firm's work, as Rule 1.5(b) of the Rules of Professional Conduct wants them
/// in writing; one copy to each seller.
void TypeEngagementLetter(const JobValues& job, Typist& type, const Variant& variant) {
    const Party& seller = variant.number == 2 ? kSeller2 : kSeller1;

    BeginLetter(type);
    TypeLetterHead(job, type, LetterheadRoom::Long);
    TypeSeller(job, type, seller);
    type.Text("Re:\tSale of ", job.Property(), RepeatReturn(2));
    type.Text("Dear ", job[seller.name], ":", RepeatReturn(2));

    type.FontSize(10);
    type.Align(word::AlignJustified);
    TypeParagraph(
        type, "Thank you for selecting our firm to represent ", job.Has(Entity) ? "your company" : "you",
        " in the sale of the above property. This letter states what we will do, what it will cost, and "
        "what we ask of you. Our services are to:");
    TypeServices(type, {
                           "Prepare Contract of Sale;",
                           "Negotiate the contract terms with the purchaser's attorney;",
                           "Prepare all closing documents;",
                           "Obtain payoff letters for existing mortgages;",
                           "Provide an accounting of funds;",
                           "Secure and record releases of mortgages paid at closing.",
                       });
    TypeParagraph(
        type, "Our fee for these services is ", job[SellerAttysFee],
        ", due at the closing and payable from the proceeds of the sale. Taxes, recording fees, courier "
        "and wire charges and like expenses are not part of the fee and will appear in our accounting. "
        "Should the sale not be completed, we will charge only for the work done to that time, and never "
        "more than the stated fee.");
    TypeParagraph(
        type,
        "The fee does not cover litigation, probate proceedings, the clearing of defects in title, work "
        "before land use agencies, or advice on income taxes, for which you should consult your "
        "accountant. If such work is needed we will discuss it, and its cost, with you before it is begun.");
    TypeParagraph(
        type,
        "Kindly send us your deed, survey, title policy, tax bills, and the names and loan numbers of all "
        "mortgages and equity lines, take no advance on an equity line from now on, and tell us of any "
        "lien, tenancy or other matter of which you know that affects the property.");
    TypeParagraph(
        type,
        "You may end this engagement at any time by written notice, and we may where the Rules of "
        "Professional Conduct permit. It is complete when the proceeds are accounted for and the releases "
        "are recorded. We keep our file for seven years after that and may then destroy it without "
        "further notice. If these terms are acceptable, please sign and return a copy of this letter.");
    TypeClosing(job, type, "Very truly yours,", 3);
    type.As(word::Role::Signature, [&] { TypeAcceptance(job, type, seller); });
    EndLetter(type);
}

}  // namespace quillmark
