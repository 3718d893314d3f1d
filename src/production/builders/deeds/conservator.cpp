#include "production/builders/deeds/passages_deed.h"
#include "production/kit/instruments.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

void TypeConservatorsDeed(const JobValues& job, Typist& type) {
    TypeReturnTo(job, type, kBuyerAtty);
    TypeTitle(type, "CONSERVATOR’S DEED - STATUTORY FORM");

    TypeInstrumentOpening(type);
    TypeFiduciary(job, type);
    type.Text(", Conservator of the estate of ", job[ConservedParty], ", an incapable person");
    TypeConsideration(job, type, "grants");
    TypeGranteePhrase(job, type, Names::Bold, Tenancy::Said);
    TypePremises(job, type, "CONSERVATOR’S COVENANTS");
    TypeUsualEncumbrances(type);
    TypeGenderParagraph(type);

    TypeFiduciaryExecution(job, type);
}

}  // namespace quillmark
