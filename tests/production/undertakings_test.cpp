#include <gtest/gtest.h>

#include <functional>

#include "core/fields.h"
#include "production/document_goldens.h"
#include "production/letter_deal.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using namespace field;

const std::string kUnreleased = "Undertaking & Indem / Unreleased";
const std::string kPayoff = "Undertaking & Indem / Mtg Payoff";
const std::string kGuarantee = "Guarantee Letter / New London Bar";
const std::string kAgreement = "Agreement Re: Mortgage Release";

void Couples(Job& job) {
    SellersAtOneAddress(job);
    BuyersAtOneAddress(job);
}

void Whole(const std::string& golden, const std::string& document) {
    ExpectWhole("undertakings/" + golden, document, "one person sells to one buyer, one payoff",
                LetterDeal());
}

void Branch(const std::string& golden, const std::string& document, const std::string& facts,
            const std::function<void(Job&)>& change) {
    ExpectBranch("undertakings/" + golden, document, facts, LetterDeal(), change);
}

TEST(Undertakings, OfAMortgageWithoutRelease) {
    Whole("unreleased", kUnreleased);
    Branch("unreleased_couples", kUnreleased, "a couple sells to a couple", Couples);
    Branch("unreleased_company", kUnreleased, "a company sells", SellerIsEntity);
}

TEST(Undertakings, OfAMortgageToBePaid) {
    Whole("payoff", kPayoff);
    Branch("payoff_power", kPayoff, "the first of two sellers acts by an attorney in fact", [](Job& job) {
        SellersAtOneAddress(job);
        SellsByPower(job, "Walter B. Hollis", "Nora Feld");
    });
    Branch("payoff_fiduciary", kPayoff, "an executor sells",
           [](Job& job) { SellerIsFiduciary(job, "Executor"); });
    Branch("payoff_two", kPayoff, "two payoffs, the second never assigned",
           [](Job& job) { job.SetOption(TwoPayoffs, true); });
}

TEST(Undertakings, GuaranteeIsAcknowledgedByWhoeverSigns) {
    Whole("guarantee", kGuarantee);
    Branch("guarantee_couples", kGuarantee, "a couple sells to a couple", Couples);
    Branch("guarantee_company", kGuarantee, "a company sells", SellerIsEntity);
    Branch("guarantee_power", kGuarantee, "the seller acts by an attorney in fact",
           [](Job& job) { SellsByPower(job, "Walter B. Hollis", "Nora Feld"); });
}

TEST(Undertakings, AgreementOnTheRelease) {
    Whole("release_agreement", kAgreement);
    Branch("release_agreement_couples", kAgreement, "a couple sells to a couple", Couples);
}

}  // namespace
}  // namespace quillmark::test
