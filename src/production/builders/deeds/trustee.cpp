#include "production/builders/deeds/passages_deed.h"
#include "production/kit/instruments.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

void TypeTrusteesDeed(const JobValues& job, Typist& type) {
    TypeReturnTo(job, type, kBuyerAtty);
    TypeTitle(type, "TRUSTEE’S DEED - STATUTORY FORM");

    TypeInstrumentOpening(type);
    TypeFiduciary(job, type);
    type.Text(", Trustee under Article ", job[FiduciaryArticleNumber], " of the ");
    type.TypeItalic(job[TrustInstrument]);
    type.Text(", duly qualified as trustee");
    TypeConsideration(job, type, "grants");
    TypeGranteePhrase(job, type, Names::Bold, Tenancy::Said);
    TypePremises(job, type, "TRUSTEE’S COVENANTS");
    TypeUsualEncumbrances(type);
    TypeGenderParagraph(type);

    TypeFiduciaryExecution(job, type);
}

}  // namespace quillmark
