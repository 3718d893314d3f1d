#include "production/kit/phrases.h"

#include "core/text_conversions.h"

namespace quillmark {

using namespace field;

namespace {

void TypeName(Typist& type, std::string_view name, Names names) {
    if (names == Names::Bold) {
        type.TypeBold(name);
    } else {
        type.Text(name);
    }
}

void TypeParty(const JobValues& job, Typist& type, const Party& party, Names names) {
    TypeName(type, job[party.name], names);
    type.Text(" of ", job.Address(party));
}

void TypeTwoParties(const JobValues& job, Typist& type, const Party& first, const Party& second,
                    std::string_view joinedNames, Names names) {
    if (job.OneLine(first.addr1) == job.OneLine(second.addr1)) {
        TypeName(type, joinedNames, names);
        type.Text(" both of ", job.Address(first));
    } else {
        TypeParty(job, type, first, names);
        type.Text(" and ");
        TypeParty(job, type, second, names);
    }
}

void TypeTenancy(const JobValues& job, Typist& type) {
    const std::string tenancy = Lowered(job[TenancyType]);
    if (tenancy == "joint tenants wros") {
        type.Text(" AS JOINT TENANTS WITH RIGHTS OF SURVIVORSHIP");
    } else if (tenancy == "tenants in common") {
        type.Text(" AS TENANTS IN COMMON");
    } else if (tenancy == "joint tenants") {
        type.Text(" AS JOINT TENANTS");
    } else {
        // No statutory tenancy, so the deed shows the hole rather than the value.
        type.Text(" AS [tenancy type]");
    }
}

}  // namespace

void TypeFiduciaryCapacity(const JobValues& job, Typist& type) {
    const std::string& fiduciary = job[FiduciaryType];
    if (fiduciary == "Testamentary Trustee" || fiduciary == "Trustee") {
        type.Text(", duly qualified and authorized Trustee of the ", job[TrustInstrument]);
    } else if (fiduciary == "Conservator") {
        type.Text(", duly qualified and authorized Conservator of the Estate of ", job[ConservedParty],
                  ", an incapable person");
    } else {
        type.Text(", duly qualified and authorized ", fiduciary, " of the Estate of ", job[Decedent]);
    }
}

void TypeGrantorPhrase(const JobValues& job, Typist& type, Names names) {
    if (job.Has(TwoSellers)) {
        TypeTwoParties(job, type, kSeller1, kSeller2, job.SellerNames(), names);
        return;
    }
    TypeParty(job, type, kSeller1, names);
    if (job.Has(EstateTrust)) TypeFiduciaryCapacity(job, type);
}

void TypeGranteePhrase(const JobValues& job, Typist& type, Names names, Tenancy tenancy) {
    if (!job.Has(TwoBuyers)) {
        TypeParty(job, type, kBuyer1, names);
        return;
    }
    TypeTwoParties(job, type, kBuyer1, kBuyer2, job.BuyerNames(), names);
    if (tenancy == Tenancy::Said) TypeTenancy(job, type);
}

}  // namespace quillmark
