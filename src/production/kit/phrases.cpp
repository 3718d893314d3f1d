#include "production/kit/phrases.h"

#include "core/text_conversions.h"

namespace quillmark {

using namespace field;

namespace {

void TypeName(Typist& type, std::string_view name, bool bold) {
    if (bold) {
        type.TypeBold(name);
    } else {
        type.Text(name);
    }
}

void TypeParty(const JobValues& job, Typist& type, const Party& party, bool bold) {
    TypeName(type, job[party.name], bold);
    type.Text(" of ", job.Address(party));
}

void TypeTwoParties(const JobValues& job, Typist& type, const Party& first, const Party& second,
                    std::string_view joinedNames, bool bold) {
    if (job.OneLine(first.addr1) == job.OneLine(second.addr1)) {
        TypeName(type, joinedNames, bold);
        type.Text(" both of ", job.Address(first));
    } else {
        TypeParty(job, type, first, bold);
        type.Text(" and ");
        TypeParty(job, type, second, bold);
    }
}

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

void TypeGrantorPhrase(const JobValues& job, Typist& type, std::string_view style) {
    const bool bold = style == "Bold";
    if (job.Has(TwoSellers)) {
        TypeTwoParties(job, type, kSeller1, kSeller2, job.SellerNames(), bold);
        return;
    }
    TypeParty(job, type, kSeller1, bold);
    if (job.Has(EstateTrust)) TypeFiduciaryCapacity(job, type);
}

void TypeGranteePhrase(const JobValues& job, Typist& type, std::string_view style) {
    const bool bold = style.starts_with("Bold");
    if (!job.Has(TwoBuyers)) {
        TypeParty(job, type, kBuyer1, bold);
        return;
    }
    TypeTwoParties(job, type, kBuyer1, kBuyer2, job.BuyerNames(), bold);
    if (style.ends_with('T')) TypeTenancy(job, type);
}

}  // namespace quillmark
