#include <string>

#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/sellers.h"

namespace quillmark {

using namespace field;

namespace {

/// Room that a form field shows before it is filled.
std::string ClickHere() {
    return "(click here & enter text)" + std::string(30, ' ');
}

void TypeBlankLetter(const JobValues& job, Typist& type) {
    type.TextField(ClickHere());
    type.Text(RepeatReturn(2));
    TypeClosing(job, type, "Respectfully yours,");
    type.Text("\rEncl.    ");
    type.TextField(ClickHere());
    type.Text("\r");
}

/// What the seller allows the buyer beside the price, one sentence each.
void TypeCredits(const JobValues& job, Typist& type) {
    for (const auto& [credit, name] :
         {std::pair(ClosingCostCredit, "closing cost"), {RepairCredit, "repair"}}) {
        if (!job.IsFilled(credit)) continue;
        type.Text(" The Contract provides for a ", name, " credit to the ", BuyerWord(job),
                  " in the amount of ", job[credit], ", to be adjusted at the closing.");
    }
}

void TypeDraft(const JobValues& job, Typist& type) {
    const std::string_view mine = ClientWord(job.Has(TwoSellers));
    const std::string_view yours = ClientWord(job.Has(TwoBuyers));
    type.Text(" for the sale of the above-referenced property, in draft form, for review by you and your ",
              yours, ".");
    TypeCredits(job, type);
    TypeParagraph(
        type, " If the Contract is acceptable, kindly have your ", yours,
        " sign both copies and return them to me together with the contract deposit in the amount of ",
        job[ContractDeposit], ", payable to this firm as trustee. I will then submit both copies to my ",
        mine, " for signature and return a fully executed copy to you.");
    TypeParagraph(type,
                  "This draft is sent for purposes of review only. It remains subject to the comments of "
                  "my ",
                  mine,
                  ", and it binds neither party until both have signed it and executed copies have been "
                  "exchanged.");
}

void TypeExecuted(const JobValues& job, Typist& type) {
    constexpr std::uint16_t kBlankAmount = 12;
    const std::string_view yours = ClientWord(job.Has(TwoBuyers));
    // This letter does not ask for the deposit, so without the contract in the same job a line stays to be
    // written in.
    const std::string deposit =
        job.IsFilled(ContractDeposit) ? job[ContractDeposit] : "$" + RepeatUnderscore(kBlankAmount);
    type.Text(" for the sale of the above-referenced property, executed by my ",
              ClientWord(job.Has(TwoSellers)), ".");
    TypeCredits(job, type);
    TypeParagraph(
        type, " Kindly have your ", yours,
        " execute both copies, retain one for your file, and return the other to me together with the "
        "contract deposit in the amount of ",
        deposit,
        ", payable to this firm as trustee. The deposit will be held in accordance with the terms of the "
        "Contract.");
    if (job.IsFilled(SellerAttyEmail)) {
        TypeParagraph(
            type,
            "For the convenience of both sides, a copy of the fully executed Contract may be sent to me "
            "in advance by e-mail, at ",
            job[SellerAttyEmail], ".");
    }
}

void TypeContractLetter(const JobValues& job, Typist& type, bool executed) {
    type.Align(word::AlignJustified);
    type.Text("Enclosed herewith, in duplicate, is the Contract");
    if (executed) {
        TypeExecuted(job, type);
    } else {
        TypeDraft(job, type);
    }
    TypeParagraph(
        type,
        "Should you have any questions or comments, please do not hesitate to call me. Thank you for your "
        "courtesy and cooperation in this matter.");
    TypeClosing(job, type, "Respectfully yours,");
    type.Text("\rEncl.    Real Estate Sales Agreement\r");
}

}  // namespace

/// To the buyer's attorney: with the tag "BLANK" a letter to write into, otherwise the one that goes with the
/// contract, as a draft or ("EXE") executed by the seller.
void TypeFormLetter(const JobValues& job, Typist& type, const Variant& variant) {
    BeginLetter(type);
    TypeLetterHead(job, type);
    TypeBuyersAttorney(job, type);
    type.Text("\r");
    TypeReferenceLine(job, type);
    TypeDearAttorney(job, type);
    if (variant.tag == "BLANK") {
        TypeBlankLetter(job, type);
    } else {
        TypeContractLetter(job, type, variant.tag == "EXE");
    }
    EndLetter(type);
}

}  // namespace quillmark
