#include <string>

#include "core/text_conversions.h"
#include "platform/code_page.h"
#include "production/builders/powers/passages_power.h"
#include "production/builders/text_bodies.h"
#include "production/kit/passages.h"

namespace quillmark {

using namespace field;

namespace {

/// What the form leaves to the principal's pen where the job does not say it: no job of a long form has to
/// fill these fields.
std::string ValueOrLine(const JobValues& job, Field n, std::uint16_t length) {
    return job.IsFilled(n) || IsBlankPower(job) ? job[n] : RepeatUnderscore(length);
}

void TypeCapacity(const JobValues& job, Typist& type) {
    type.Text(" If at any time more than one agent serves, they are to act ");
    type.TypeBold(ValueOrLine(job, PoaAgentCapacity, 16));
    type.Text(
        " (\"severally\" lets each act alone; \"jointly\", or nothing said here, requires them to act "
        "together).",
        RepeatReturn(2));
}

void TypeLimitation(Typist& type, Articles& articles) {
    articles.Begin("LIMITATION ON AGENT'S AUTHORITY");
    type.Text(
        "An agent who is not my ancestor, my spouse or my descendant may not use this power of attorney to give "
        "himself or herself, or a person whom he or she must by law support, an interest in my property, "
        "whether by gift, right of survivorship, designation of beneficiary, disclaimer or in another way, "
        "unless I allow it here. Special instructions (write \"none\" if there are none):\r",
        RepeatUnderscore(84), "\r", RepeatUnderscore(84), RepeatReturn(2));
}

void TypeDesignatedSuccessors(const JobValues& job, Typist& type, Articles& articles) {
    articles.Begin("DESIGNATION OF SUCCESSOR AGENT(S) <OPTIONAL>");
    type.Text(
        "When my agent is no longer able and willing to serve, whether because of death, incapacity, "
        "resignation or otherwise, I appoint as successor agent, with all the authority that I give to my "
        "agent here:",
        RepeatReturn(2));
    type.Text("First successor: ");
    type.TypeBold(ValueOrLine(job, SuccessorAgent1, 60));
    type.Text(RepeatReturn(2), "and, when that successor is no longer able and willing to serve,",
              RepeatReturn(2), "Second successor: ");
    type.TypeBold(ValueOrLine(job, SuccessorAgent2, 60));
    type.Text(RepeatReturn(2));
}

void TypeVenueInOneLine(const JobValues& job, Typist& type) {
    type.As(word::Role::Notary, [&] {
        type.TypeBold("STATE OF CONNECTICUT, COUNTY OF ", UpperCase(job.CountyOfExecution()));
        type.Text(", ss. ", job[TownOfExecution], RepeatReturn(2));
    });
}

}  // namespace

/// The statutory long form of C.G.S. Sec. 1-352: the short form with the powers that the Act grants by
/// express words only.
void TypeLongFormPower(const JobValues& job, Typist& type) {
    TypePowerHeading(job, type, "POWER OF ATTORNEY - STATUTORY LONG FORM");
    TypeBody("powers/notice.txt", job, type);

    TypeDesignation(job, type, 1);
    TypeCapacity(job, type);
    TypeBody("powers/subjects.txt", job, type);
    TypeBody("powers/estate_planning.txt", job, type);

    type.PageBreak();  // what follows stands on the page that is signed
    Articles articles(type, 1);
    TypeLimitation(type, articles);
    TypeDesignatedSuccessors(job, type, articles);
    TypeEffectiveDate(job, type, articles);
    TypeReliance(type, articles);

    TypeExecutionDate(job, type, "Principal has", 1);
    type.AtTab(kSignatureTab, [&] {
        TypePrincipalSignature(job, type);
        TypeVenueInOneLine(job, type);
        TypePrincipalAcknowledgment(job, type);
    });
    type.Indents(0);
}

}  // namespace quillmark
