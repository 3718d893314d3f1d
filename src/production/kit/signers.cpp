#include "production/kit/signers.h"

#include "core/text_conversions.h"

namespace quillmark {

using namespace field;

namespace {

std::string ByAttorney(const Signer& signer) {
    return "By " + signer.attorneyInFact + ", his/her Attorney in Fact";
}

void TypeTwoSignatures(Typist& type, const Signers& signers) {
    const Signer& left = signers.parties[0];
    const Signer& right = signers.parties[1];
    type.Text(RepeatReturn(2), SignatureRule(), "\t", SignatureRule(), "\r");
    type.Text(left.name, ", ", signers.role, "\t", right.name, ", ", signers.role);
    if (!left.attorneyInFact.empty()) {
        type.Text("\r", ByAttorney(left), RepeatReturn(2));
    } else if (!right.attorneyInFact.empty()) {
        type.Text("\r\t", ByAttorney(right), RepeatReturn(2));
    } else {
        type.Text(RepeatReturn(3));
    }
}

void TypeEntitySignature(Typist& type, const Signers& signers) {
    type.Text(RepeatReturn(3), "\t", signers.parties[0].name, ", ", signers.role, RepeatReturn(2));
    type.Text(std::string(88, ' '), "By:  ", SignatureRule(), "\r");
    type.Text("\t", signers.agent, RepeatReturn(2));
}

void TypeOneSignature(Typist& type, const Signers& signers) {
    const Signer& signer = signers.parties[0];
    type.Text(RepeatReturn(2), "\t", SignatureRule(), "\r");
    if (signer.attorneyInFact.empty()) {
        type.Text("\t", signer.name, ", ", signers.role, RepeatReturn(2));
        return;
    }
    type.Text("\t", signer.name, ", ", signers.role, "\r");
    type.Text("\t", ByAttorney(signer), RepeatReturn(2));
}

}  // namespace

SellersByPower FindSellersByPower(const JobValues& job) {
    SellersByPower power;
    if (!job.Has(PowerOfAttorney)) return power;
    const auto decide = [&](int poaSeller, const Party& principal, const Party& other) {
        power.PoaSeller = poaSeller;
        power.OtherSellerName = job[other.name];
        power.OtherSellerPlace = " of " + job.Address(other);
        power.PrincipalPlace = " of " + job.Address(principal) + " acting herein by " + job[AttyInFact] +
                               ", his/her attorney in fact, pursuant to a power of attorney dated " +
                               job[DateOfPower] + " and recorded simultaneously herewith";
        if (job.Has(TwoSellers)) power.PrincipalPlace += ", and ";
    };
    if (job[PrincipalOfPower] == job[Seller1Name]) {
        decide(1, kSeller1, kSeller2);
    } else if (job[PrincipalOfPower] == job[Seller2Name]) {
        decide(2, kSeller2, kSeller1);
    }
    return power;
}

Signers SellerSigners(const JobValues& job, std::string_view role) {
    const int poaSeller = FindSellersByPower(job).PoaSeller;
    Signers signers{std::string(role), {{job[Seller1Name], {}}}, {}};
    if (job.Has(TwoSellers)) {
        signers.parties.push_back({job[Seller2Name], {}});
    } else if (job.Has(Entity)) {
        signers.agent = job[Seller1Agent] + ", " + job[Seller1AgentTitle];
        return signers;
    }
    const auto principal = static_cast<std::size_t>(poaSeller - 1);
    if (poaSeller > 0 && principal < signers.parties.size())
        signers.parties[principal].attorneyInFact = job[AttyInFact];
    return signers;
}

Signers OneSellersSigner(const JobValues& job, int number, std::string_view role) {
    Signers signers = SellerSigners(job, role);
    signers.parties = {signers.parties.at(static_cast<std::size_t>(number) - 1)};
    return signers;
}

std::string SellerRole(const JobValues& job, std::string_view role) {
    return job.Has(EstateTrust) ? job[FiduciaryType] : std::string(role);
}

Signers FiduciarySigner(const JobValues& job, std::string_view role) {
    return {std::string(role), {{job[Seller1Name], {}}}, {}};
}

Signers BuyerSigners(const JobValues& job, std::string_view role) {
    Signers signers{std::string(role), {{job[Buyer1Name], {}}}, {}};
    if (job.Has(TwoBuyers)) signers.parties.push_back({job[Buyer2Name], {}});
    return signers;
}

void TypeSignatures(Typist& type, const Signers& signers) {
    type.As(word::Role::Signature, [&] {
        if (signers.parties.size() == 2) {
            TypeTwoSignatures(type, signers);
        } else if (!signers.agent.empty()) {
            TypeEntitySignature(type, signers);
        } else {
            TypeOneSignature(type, signers);
        }
    });
}

}  // namespace quillmark
