#include "production/builders/deeds/passages_deed.h"
#include "production/kit/instruments.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"

namespace quillmark {

/// The statutory form of C.G.S. Sec. 47-36c.
void TypeWarrantyDeed(const JobValues& job, Typist& type) {
    const SellersByPower power = FindSellersByPower(job);

    TypeReturnTo(job, type, kBuyerAtty);
    TypeTitle(type, "WARRANTY DEED - STATUTORY FORM");

    TypeInstrumentOpening(type);
    TypeGrantors(job, type, power);
    TypeConsideration(job, type, job.Has(TwoSellers) ? "grant" : "grants");
    TypeGranteePhrase(job, type, Names::Bold, Tenancy::Said);
    TypePremises(job, type, "WARRANTY COVENANTS");
    TypeUsualEncumbrances(type);
    TypeGenderParagraph(type);

    TypeSellersExecution(job, type, power);
}

}  // namespace quillmark
