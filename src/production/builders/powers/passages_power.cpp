#include "production/builders/powers/passages_power.h"

#include <array>

#include "core/text_conversions.h"
#include "production/kit/passages.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

void Articles::Begin(std::string_view heading) {
    static constexpr std::array<std::string_view, 7> kNumbers = {"FIRST", "SECOND", "THIRD",  "FOURTH",
                                                                 "FIFTH", "SIXTH",  "SEVENTH"};
    type_.TypeBold(kNumbers.at(next_++), ": ", heading);
    type_.Text(". ");
}

bool IsBlankPower(const JobValues& job) {
    return !job.IsFilled(PrincipalOfPower);
}

void TypePowerHeading(const JobValues& job, Typist& type, std::string_view title) {
    TypeReturnTo(job, type, kSellerAtty);
    TypeTitle(type, title);
}

void TypeDesignation(const JobValues& job, Typist& type, int agents) {
    type.TypeBold("DESIGNATION OF AGENT:");
    type.Text(" I, ");
    type.TypeBold(job[kPrincipal.name]);
    type.Text(", of ", job.Address(kPrincipal), ", the principal, appoint ");
    type.TypeBold(job[kAttyInFact.name]);
    type.Text(", of ", job.Address(kAttyInFact));
    if (agents < 2) {
        type.Text(", to be my agent (attorney in fact).");
        return;
    }
    type.Text(", and ");
    type.TypeBold(job[kAttyInFact2.name]);
    type.Text(", of ", job.Address(kAttyInFact2), ", to be my agents (attorneys in fact) and to act ");
    type.TypeBold(job[PoaAgentCapacity]);
    type.Text(
        ". If they are to act severally, either of them may act alone. If they are to act jointly, or if "
        "nothing is said here, both must act together, but when one of them dies, resigns or can no longer "
        "serve, the other may act alone. The words \"my agent\" below mean each of them, and both, "
        "accordingly.");
}

void TypeSuccessors(const JobValues& job, Typist& type, Articles& articles) {
    const bool hasFirst = IsBlankPower(job) || job.IsFilled(SuccessorAgent1);
    const bool hasSecond = IsBlankPower(job) || job.IsFilled(SuccessorAgent2);
    if (!hasFirst && !hasSecond) return;
    articles.Begin("SUCCESSOR AGENT");
    type.Text(
        "When nobody whom I have appointed above is any longer able and willing to serve, whether because of "
        "death, incapacity, resignation or otherwise, I appoint ");
    type.TypeBold(job[hasFirst ? SuccessorAgent1 : SuccessorAgent2]);
    type.Text(" to be my agent in that place");
    if (hasFirst && hasSecond) {
        type.Text(" and, when that successor is no longer able and willing to serve, ");
        type.TypeBold(job[SuccessorAgent2]);
    }
    type.Text(". A successor has all the authority that I give to my agent here.", RepeatReturn(2));
}

void TypeEffectiveDate(const JobValues& job, Typist& type, Articles& articles, std::string_view end) {
    articles.Begin("EFFECTIVE DATE");
    type.Text("This power of attorney takes effect on ");
    type.TypeBold(job[DateOfPower]);
    type.Text(
        ", and may be cited by that date. It is durable: it is neither ended nor changed if I become incapacitated afterwards, however much "
        "time goes by. It ends at my death, or when I revoke it",
        end, ".", RepeatReturn(2));
}

void TypeReliance(Typist& type, Articles& articles) {
    articles.Begin("RELIANCE");
    type.Text(
        "I confirm all that my agent lawfully does under this power of attorney. Whoever deals with my agent "
        "in good faith may rely upon it, and upon a copy of it as upon the original, until he or she actually "
        "knows that it has ended.",
        RepeatReturn(2));
}

void TypePrincipalSignature(const JobValues& job, Typist& type) {
    TypeSignatures(type, Signers{"Principal", {{job[PrincipalOfPower], {}}}, {}});
    TypeWitnesses(job, type, 2);
}

void TypePrincipalAcknowledgment(const JobValues& job, Typist& type) {
    TypeAcknowledgment(job, type, job[PrincipalOfPower], false);
    TypeNotary(job, type);
}

void TypePrincipalExecution(const JobValues& job, Typist& type) {
    TypeExecutionDate(job, type, "Principal has", 1);
    type.AtTab(kSignatureTab, [&] {
        TypePrincipalSignature(job, type);
        TypeVenue(job, type);
        TypePrincipalAcknowledgment(job, type);
    });
    type.Indents(0);
}

}  // namespace quillmark
