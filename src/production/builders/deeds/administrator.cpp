#include "production/builders/deeds/passages_deed.h"
#include "production/kit/instruments.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

void TypeAdministratorsDeed(const JobValues& job, Typist& type) {
    TypeReturnTo(job, type, kBuyerAtty);
    TypeTitle(type, "ADMINISTRATOR'S DEED - STATUTORY FORM");

    TypeInstrumentOpening(type);
    TypeFiduciary(job, type);
    type.Text(", duly qualified and authorized Administrator of the estate of ", job[Decedent], " late of ",
              job.Address(kDecedent));
    TypeConsideration(job, type, "grants");
    TypeGranteePhrase(job, type, Names::Bold, Tenancy::Said);
    TypePremises(job, type, "ADMINISTRATOR'S COVENANTS");
    TypeUsualEncumbrances(type);
    TypeGenderParagraph(type);

    TypeFiduciaryExecution(job, type);
}

}  // namespace quillmark
