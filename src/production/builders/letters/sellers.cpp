#include "production/builders/letters/sellers.h"

#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

namespace {

void TypeSeller(const JobValues& job, Typist& type, Field name, bool byPower) {
    type.Text(job[name]);
    if (!byPower) return;
    type.Text(", acting herein by ", job[AttyInFact],
              ", his/her attorney in fact, pursuant to a power of attorney dated ", job[DateOfPower]);
}

bool IsFiduciary(const JobValues& job) {
    return job.Has(EstateTrust) && !job.Has(TwoSellers) && !job.Has(Entity);
}

}  // namespace

void TypeSellersInCapacity(const JobValues& job, Typist& type) {
    const int poaSeller = job.Has(Entity) ? 0 : FindSellersByPower(job).PoaSeller;
    if (!job.Has(TwoSellers)) {
        TypeSeller(job, type, Seller1Name, poaSeller == 1);
        if (IsFiduciary(job)) TypeFiduciaryCapacity(job, type);
        return;
    }
    TypeSeller(job, type, Seller1Name, poaSeller == 1);
    type.Text(poaSeller == 1 ? ", and " : " and ");
    TypeSeller(job, type, Seller2Name, poaSeller == 2);
}

Signers SigningSellers(const JobValues& job) {
    return SellerSigners(job, IsFiduciary(job) ? std::string_view(job[FiduciaryType]) : "Seller");
}

std::string_view SellersPossessive(const JobValues& job) {
    if (job.Has(TwoSellers)) return "their";
    return job.Has(Entity) ? "its" : "his/her";
}

}  // namespace quillmark
