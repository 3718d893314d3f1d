#include "production/builders/letters/equity_line_directive.h"

#include "core/text_conversions.h"
#include "production/builders/letters/letter.h"

namespace quillmark {

using namespace field;

namespace {

constexpr std::uint16_t kSignatureTabs = 10;
constexpr std::uint16_t kDirectiveRule = 39;

}  // namespace

void TypeEquityLineDirective(const JobValues& job, Typist& type, const Payoff& payoff) {
    BeginLetter(type);
    TypeHeadLines(type, {"EQUITY  LINE  TERMINATION  DIRECTIVE"});
    type.Text(RepeatReturn(2), job[DocumentDate], RepeatReturn(3));
    TypeServicer(job, type, payoff);
    type.Text("\r");
    TypeLoanReference(job, type, payoff);
    type.Text("Dear Sir/Madam:", RepeatReturn(2));

    type.Align(word::AlignJustified);
    const bool several = job.Has(TwoSellers);
    TypeParagraph(
        type, several ? "The undersigned are the borrowers" : "The undersigned is the borrower",
        " under the home equity line of credit described above. The line is being paid in full in "
        "connection with the sale of the property that secures it. Upon receipt of the enclosed payoff, "
        "you are hereby directed to:");
    TypeList(
        type, kLetterIndent,
        {
            "apply the payoff to the entire balance of the line, with interest and charges to the date of "
            "receipt;",
            "terminate the line and close the account, so that no further advance may be obtained under "
            "it by check, card, transfer or any other means;",
            "refuse any check or other request for an advance that is presented to you hereafter; and",
            "deliver a release of the mortgage that secures the line, in form proper for recording, as "
            "the enclosed letter of transmittal requests.",
        });
    TypeParagraph(
        type, several ? "The undersigned certify" : "The undersigned certifies",
        " that no advance has been obtained or requested since the date of your payoff statement, that "
        "none will be, and that all checks and cards for the account have been destroyed. Should the "
        "payoff prove insufficient for any reason, the line is to remain closed to advances, and you are "
        "asked to notify the attorney for the undersigned, ",
        job[SellerAtty], ", of the amount that is still due.");
    TypeParagraph(type, "This directive may not be revoked.");
    type.Align(word::AlignLeft);
    const std::string line = RepeatReturn(3) + RepeatTab(kSignatureTabs) + RepeatUnderscore(kDirectiveRule) +
                             "\r" + RepeatTab(kSignatureTabs);
    type.As(word::Role::Signature, [&] {
        if (several) {
            type.Text(line, "Borrower\r", line, "Borrower\r");
        } else {
            type.Text(line, job[payoff.mortgagor], "\r");
        }
    });
    EndLetter(type);
}

}  // namespace quillmark
