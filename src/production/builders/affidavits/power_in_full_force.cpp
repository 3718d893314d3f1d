#include "core/text_conversions.h"
#include "production/builders/affidavits/passages_affidavit.h"
#include "production/kit/passages.h"

namespace quillmark {

using namespace field;

namespace {

void TypeFacts(const JobValues& job, Typist& type, const Party& agent) {
    type.Text("The undersigned ", job[agent.name], " of ", job.Address(agent),
              " being first duly sworn, deposes and says:", RepeatReturn(2));
    type.Text(
        "This Affidavit is made on the basis of facts that are personally known to me. I am of full age and "
        "understand the obligations of an oath.",
        RepeatReturn(2));
    type.Text("That ", job[PrincipalOfPower], ", as principal, did, in writing, under date of ",
              job[DateOfPower],
              ", appoint me to be his/her attorney in fact, with authority to sell and convey the Subject "
              "Property and to sign, in the name of the principal, the instruments of that sale.",
              RepeatReturn(2));
    type.Text(
        "I had no actual knowledge or actual notice of revocation or termination of the power of attorney, by "
        "the death of the principal or in any other way, when I signed under it the deed of the Subject "
        "Property and the other instruments of the sale, and I have none now. So far as I know the power of "
        "attorney has not been changed, and is in full force.",
        RepeatReturn(2));
    type.Text(
        "That I hereby represent that the said principal is now alive; has not taken back or narrowed the "
        "authority given to me, or made known an intention to do so; and that no court has ended or suspended "
        "that authority.",
        RepeatReturn(2));
    type.Text(
        "I make this affidavit for the purpose of inducing a purchaser to accept the deed and the other "
        "instruments that I have signed for the principal, and a title insurer to insure the title so "
        "conveyed. I am aware that both will act upon what I have sworn to here.",
        RepeatReturn(2));
}

void TypeAffidavit(const JobValues& job, Typist& type, const Party& agent) {
    type.Indents(kDeedIndent);
    TypeTitle(type, "AFFIDAVIT AS TO POWER OF ATTORNEY BEING IN FULL FORCE");
    type.TypeBold("Subject Property:  ");
    type.Text(job.Property(), RepeatReturn(2));
    TypeFacts(job, type, agent);
    TypeSworn(job, type, Signers{"Attorney in Fact", {{job[agent.name], {}}}, {}});
}

}  // namespace

/// The agent's oath that a power is still good, which whoever relies on the power may ask for (C.G.S. Sec.
/// 1-350r). Each agent swears on a sheet of his or her own.
void TypeAffidavitOfFullForce(const JobValues& job, Typist& type) {
    TypeAffidavit(job, type, kAttyInFact);
    if (!job.IsFilled(AttyInFact2)) return;
    type.PageBreak();
    TypeAffidavit(job, type, kAttyInFact2);
}

}  // namespace quillmark
