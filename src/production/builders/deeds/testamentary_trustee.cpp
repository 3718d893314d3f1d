#include "production/builders/deeds/passages_deed.h"
#include "production/kit/instruments.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

void TypeTestamentaryTrusteesDeed(const JobValues& job, Typist& type) {
    TypeReturnTo(job, type, kBuyerAtty);
    TypeTitle(type, "TESTAMENTARY TRUSTEE’S DEED - STATUTORY FORM");

    TypeInstrumentOpening(type);
    TypeFiduciary(job, type);
    type.Text(", Trustee under Article ", job[FiduciaryArticleNumber], " of the last will and testament of ",
              job[Decedent], " late of ", job.Address(kDecedent), ", duly qualified as trustee");
    TypeConsideration(job, type, "grants");
    TypeGranteePhrase(job, type, Names::Bold, Tenancy::Said);
    TypePremises(job, type, "TESTAMENTARY TRUSTEE’S COVENANTS");
    TypeUsualEncumbrances(type);
    TypeGenderParagraph(type);

    TypeFiduciaryExecution(job, type);
}

}  // namespace quillmark
