#include "production/builders/undertakings/undertaking.h"

#include "core/text_conversions.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/sellers.h"

namespace quillmark {

using namespace field;

namespace {

/// The names with a comma behind each but the last.
void TypeNames(Typist& type, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) type.Text(" ", name, ",");
    type.WordSel.TypeBackspace();
}

}  // namespace

void TypeUndertakingAddress(const JobValues& job, Typist& type) {
    type.Text("To:\t\t", job[BuyerTitleInsurCo], "\rDate:\t", job[DocumentDate], RepeatReturn(2));
    type.Text("Re:\t\t", job.Property(), "\r\t\t\tSale from");
    if (job.Has(TwoSellers)) {
        TypeNames(type, {job[Seller1Name], job[Seller2Name]});
    } else {
        TypeNames(type, {job[Seller1Name]});
    }
    type.Text(" to");
    if (job.Has(TwoBuyers)) {
        TypeNames(type, {job[Buyer1Name], job[Buyer2Name]});
    } else {
        TypeNames(type, {job[Buyer1Name]});
    }
    type.Text(RepeatReturn(2));
}

void TypeOwnerOpening(const JobValues& job, Typist& type) {
    type.Text("The undersigned, being the ", job.Has(TwoSellers) ? "owners" : "owner",
              " of the above-referenced property");
}

void TypeOwnersIndemnity(const JobValues& job, Typist& type) {
    const bool several = job.Has(TwoSellers);
    TypeParagraph(
        type, "In consideration of the closing of the sale and of the issuance by ", job[BuyerTitleInsurCo],
        " of its policies to the ", BuyerWord(job), " and to the lender of the ", BuyerWord(job),
        " without exception for said mortgage, the undersigned ",
        several ? "agree, jointly and severally," : "agrees",
        " to pay on demand any sum that is found to be due upon said mortgage, and to indemnify and hold "
        "harmless said company, the ",
        BuyerWord(job),
        " and said lender from all loss, cost and expense, including reasonable attorney's fees, which "
        "any of them may incur because said mortgage is not released of record.");
}

void TypeOwnersSignatures(const JobValues& job, Typist& type) {
    type.Align(word::AlignLeft);
    type.AtTab(kSignatureTab, [&] { TypeSignatures(type, SigningSellers(job)); });
}

void TypeAttorneyCertifies(const JobValues& job, Typist& type) {
    type.Text(
        "The undersigned certifies that I am an attorney licensed to practice law in the State of "
        "Connecticut, and that I represent the ",
        SellerWord(job), " in the sale of the above-referenced property. ");
}

void TypeAttorneySignature(const JobValues& job, Typist& type) {
    type.Align(word::AlignLeft);
    type.AtTab(kSignatureTab, [&] {
        type.As(word::Role::Signature, [&] {
            type.Text(RepeatReturn(2), "\t", SignatureRule(), "\r\t", job[SellerAtty],
                      ", Attorney for "
                      "the ",
                      SellerWord(job), "\r\t", job.OneLine(SellerAttyAddr1), "\r\t",
                      job[SellerAttyCityStateZip], "\r");
        });
    });
}

}  // namespace quillmark
