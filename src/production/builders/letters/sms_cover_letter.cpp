#include <fmt/format.h>

#include "closing/closing_statement_entries.h"
#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/payoff.h"

namespace quillmark {

using namespace field;

namespace {

/// The service's charge as the closing statement has it: the tag of the payoff decides. Room to write where
/// the tag is wanting.
std::string TrackingFee(const Job& job, const Payoff& payoff) {
    const double fee = ReleaseFee(job.txtField(payoff.amount).text);
    return fee > 0 ? fmt::format("${:.2f}", fee) : "$" + RepeatUnderscore(10);
}

}  // namespace

void TypeSmsCoverLetter(const Production& production, Typist& type, const Variant& variant) {
    const JobValues job(production.job);
    const Payoff& payoff = PayoffOf(variant.number);

    BeginLetter(type);
    TypeLetterHead(job, type);
    TypeHeadLines(type, {"RELEASE TRACKING SERVICE"});
    TypeReleaseTrackingService(type);
    type.Text(RepeatReturn(2), "Dear Sir/Madam:", RepeatReturn(2));
    type.Align(word::AlignJustified);
    TypeParagraph(
        type, "Enclosed please find a check in the amount of ", TrackingFee(production.job, payoff),
        " in payment of your charge for tracking one mortgage release, together with the following:");
    TypeList(type, kLetterIndent,
             {"A copy of the Payoff Letter", "A copy of the Payoff Statement", "A copy of the Payoff Check"});
    TypeParagraph(
        type, "The same are hereby submitted for release tracking with regard to the following mortgage:");
    TypeRecitalParagraph(job, type, payoff, kLetterIndent);
    TypeParagraph(
        type,
        "The holder of the mortgage has been directed to send the release to you. Kindly obtain it, see "
        "to its recording, and report the volume and page of the recording to me.");
    TypeParagraph(type,
                  "Should you have any questions, please do not hesitate to contact me. Thank you for "
                  "your assistance.");
    TypeClosing(job, type, "Very truly yours,");
    type.Text("\rEncl.\r");
    EndLetter(type);
}

}  // namespace quillmark
