#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/payoff.h"

namespace quillmark {

using namespace field;

namespace {

constexpr double kAgentTab = 2.375;

/// Whom the holder of the mortgage turns to: the buyer's attorney, who has paid.
void TypeNotificationAgent(const JobValues& job, Typist& type) {
    type.AtTab(kAgentTab, [&] {
        type.TypeBold("Notification Agent:");
        type.Text("\t", job[BuyerLawfirm], "\r");
        if (job[BuyerLawfirm].find(job[BuyerAtty]) == std::string::npos)
            type.Text("\t", job[BuyerAtty], "\r");
        type.TypeBold("Address:");
        type.Text("\t", job.OneLine(BuyerAttyAddr1), "\r\t", job[BuyerAttyCityStateZip], "\r");
        type.TypeBold("Telephone Number:");
        type.Text("\t", job[BuyerAttyPhone], "\r");
        if (job.IsFilled(BuyerAttyFax)) {
            type.TypeBold("Fax Number:");
            type.Text("\t", job[BuyerAttyFax], "\r");
        }
    });
    type.Text("\r");
}

}  // namespace

/// The notice to the servicer of a mortgage that its payoff is under way, which the buyer's attorney sends
/// along with the money.
void TypePayoffNotification(const JobValues& job, Typist& type, const Variant& variant) {
    const Payoff& payoff = PayoffOf(variant.number);
    BeginLetter(type);
    TypeHeadLines(type, {"MORTGAGE PAYOFF NOTIFICATION"});
    type.Text("\r");
    TypeServicer(job, type, payoff);
    type.Text("\r");
    TypeLoanReference(job, type, payoff);

    type.Align(word::AlignJustified);
    TypeParagraph(type,
                  "Please be advised that the mortgage loan described herein is to be paid in full from "
                  "the "
                  "proceeds of a sale of the above property, the closing of which is set for ",
                  job[ClosingDate], ". The loan is secured by the following mortgage:");
    TypeRecitalParagraph(job, type, payoff, kLetterIndent);
    TypeParagraph(
        type,
        "The funds will be sent to you directly after the closing, in the amount required by the attached "
        "payoff statement. If you do not receive the mortgage payoff funds within five (5) business days "
        "after the date of the closing, or if the amount that you receive does not pay the loan in full, "
        "please notify the Notification Agent named below at once, by telephone and in writing, and state "
        "the amount then required to pay the loan and the interest that is added to it each day.");
    type.Align(word::AlignLeft);
    TypeNotificationAgent(job, type);
    type.Align(word::AlignJustified);
    TypeParagraph(
        type,
        "Notice so given permits the missing funds to be traced, and any difference to be made good, "
        "before further interest or late charges accrue. It does not extend the time within which you are "
        "to deliver a release of the mortgage after payment.");
    type.TypeBold("NOTE");
    TypeParagraph(type, ": A copy of the payoff statement must be attached to this notice.");
    type.Align(word::AlignCentre);
    type.TypeBold("This form to be given to Buyer's Attorney at closing");
    type.Text("\r");
    type.Align(word::AlignLeft);
    EndLetter(type);
}

}  // namespace quillmark
