#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/fields.h"
#include "production/builders/builder_list.h"
#include "production/document_goldens.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using namespace field;
using testing::HasSubstr;
using testing::Not;

const char* const kGreenwich = "Contract / Greenwich Bar";
const char* const kBridgeport = "Contract / Bridgeport Bar";
const char* const kFairfield = "Contract / 2009 Fairfield Bar";
const char* const kRegional = "Contract / Regional Bar";
const char* const kValley = "Contract / Valley Bar";
const char* const kDanbury = "Contract / Danbury Bar";
const char* const kContracts[] = {kBridgeport, kFairfield, kRegional, kGreenwich, kValley, kDanbury};

/// The sample deal under contract, with all that a contract asks for filled but the credits.
Job ContractDeal() {
    Job job = SampleDeal();
    // clang-format off
    const std::pair<int, const char*> values[] = {
        {SellerLawfirm,          "Penfield & Rowe LLC"},
        {SellerAttyAddr1,        "31 Main Street"},
        {SellerAttyCityStateZip, "Branford, CT 06405"},
        {SellerAttyPhone,        "(203) 555-0110"},
        {SellerAttyFax,          "(203) 555-0111"},
        {SellerAttyEmail,        "penfield@example.com"},
        {BuyerLawfirm,           "Lang Associates"},
        {BuyerAttyPhone,         "(203) 555-0120"},
        {BuyerAttyFax,           "(203) 555-0121"},
        {BuyerAttyEmail,         "lang@example.com"},
        {Seller1TaxId,           "041-22-3456"},
        {Seller2TaxId,           "041-22-3457"},
        {Buyer1TaxId,            "045-67-8901"},
        {Buyer2TaxId,            "045-67-8902"},
        {BinderDeposit,          "$4,000.00"},
        {ContractDeposit,        "$37,500.00"},
        {ClosingDate,            "June 28, 2024"},
        {ClosingTime,            "10:00 A.M."},
        {ItemsInclInSale,        "refrigerator, range"},
        {ItemsExclFromSale,      "hall mirror"},
        {LeasedFixtures,         "water heater (Shore Gas Co.)"},
        {Realtor1Name,           "Harbor Realty"},
        {Realtor2Name,           "Quay Brokers"},
        {BuyersMtgAmount,        "$332,000.00"},
        {BuyersMtgTerm,          "30"},
        {BuyersMtgRate,          "6.75%"},
        {MtgContingencyDate,     "June 1, 2024"},
        {SearchContingenDate,    "May 20, 2024"},
        {InspContingencyDate,    "May 16, 2024"},
        {RepairsBySeller,        "new hinges on the cellar door"},
    };
    // clang-format on
    for (const auto& [n, text] : values) job.SetField(n, text);
    return job;
}

void WithCredits(Job& job) {
    job.SetField(ClosingCostCredit, "$2,500.00");
    job.SetField(RepairCredit, "$1,500.00");
}

/// A couple sells to a couple, with both credits: the longest text that a house gives.
Job FullDeal() {
    Job job = ContractDeal();
    SellersAtOneAddress(job);
    BuyersAtOneAddress(job);
    WithCredits(job);
    return job;
}

TEST(Contracts, InFull) {
    const std::string facts = "a couple sells to a couple, with every field filled";
    ExpectWhole("contracts/bridgeport", kBridgeport, facts, FullDeal());
    ExpectWhole("contracts/fairfield", kFairfield, facts, FullDeal());
    ExpectWhole("contracts/regional", kRegional, facts, FullDeal());
    ExpectWhole("contracts/greenwich", kGreenwich, facts, FullDeal());
    ExpectWhole("contracts/valley", kValley, facts, FullDeal());
    ExpectWhole("contracts/danbury", kDanbury, facts, FullDeal());
}

TEST(Contracts, ByTheirParties) {
    const auto branch = [](const std::string& golden, const std::string& facts,
                           const std::function<void(Job&)>& change) {
        ExpectBranch("contracts/greenwich_" + golden, kGreenwich, facts, ContractDeal(), change);
    };
    branch("couples", "a couple sells to a couple, with both credits", [](Job& job) { job = FullDeal(); });
    branch("entity", "a company sells", SellerIsEntity);
    branch("testamentary_trustee", "a testamentary trustee sells",
           [](Job& job) { SellerIsFiduciary(job, "Testamentary Trustee"); });
    branch("power_seller_2", "the second of two sellers acts by an attorney in fact", [](Job& job) {
        SellersApart(job);
        SellsByPower(job, "June Hollis", "Nora Feld");
    });
    ExpectBranch("contracts/bridgeport_entity", kBridgeport, "a company sells", ContractDeal(),
                 SellerIsEntity);
    ExpectBranch("contracts/valley_couples", kValley, "a couple sells to a couple", ContractDeal(),
                 [](Job& job) { job = FullDeal(); });
}

TEST(Contracts, ByTheirProperty) {
    const auto chooses = [](Option option) { return [option](Job& job) { job.SetOption(option, true); }; };
    ExpectBranch("contracts/bridgeport_condominium", kBridgeport, "a unit of a condominium", ContractDeal(),
                 chooses(Condo));
    ExpectBranch("contracts/bridgeport_commercial", kBridgeport, "commercial property", ContractDeal(),
                 chooses(Commercial));
}

TEST(Contracts, LeaveOutWhatIsNotAsked) {
    ExpectBranch("contracts/danbury_credits", kDanbury, "both credits", ContractDeal(), WithCredits);
    ExpectBranch("contracts/fairfield_unfilled_mail", kFairfield, "no electronic mail, no second broker",
                 ContractDeal(), [](Job& job) {
                     for (const int n : {SellerAttyEmail, BuyerAttyEmail, Realtor2Name}) job.ClearField(n);
                 });
    ExpectWhole("contracts/greenwich_unfilled", kGreenwich, "a job without any entry", UnfilledDeal());
}

/// The lines of the price from "a." to the sum.
std::string PriceOf(const Job& job) {
    const std::string reading = Reading(kGreenwich, job);
    const std::size_t begin = reading.find("a.→"), end = reading.find("A check given");
    std::string table;
    for (std::size_t i = begin; i < end; ++i) {
        const bool isPadding =
            std::string_view(reading).substr(i).starts_with("→→") || reading.substr(i, 2) == "  ";
        if (!isPadding) table += reading[i];
    }
    return table;
}

TEST(Contracts, PriceIsTheSumOfItsLines) {
    Job job = ContractDeal();
    EXPECT_THAT(PriceOf(job), HasSubstr("$37,500.00"));
    EXPECT_THAT(PriceOf(job), HasSubstr("binder already paid"));
    EXPECT_THAT(PriceOf(job), HasSubstr("$373,500.00"));
    EXPECT_THAT(PriceOf(job), HasSubstr("$ 415,000.00"));

    job.ClearField(BinderDeposit);
    EXPECT_THAT(PriceOf(job), Not(HasSubstr("binder")));
    EXPECT_THAT(PriceOf(job), HasSubstr("$377,500.00"));

    job.ClearField(ContractDeposit);
    EXPECT_THAT(PriceOf(job), HasSubstr("[contract deposit]")) << "counts as nothing and shows its marker";
    EXPECT_THAT(PriceOf(job), HasSubstr("$415,000.00"));
}

// The notice goes with rental property of several families. The person's answer marks the job of this
// session; a job opened again knows it by its list.
TEST(Contracts, NameTheFairHousingNoticeAmongTheirPapers) {
    Job marked = ContractDeal();
    marked.txtField(PropertyAddress1).tag = "M";
    for (const char* const document : kContracts) {
        SCOPED_TRACE(document);
        const auto naming = testing::ContainsRegex("CHRO F[AaIiRr]+ H[OoUuSsIiNnGg]+ N[OoTtIiCcEe]+");
        EXPECT_THAT(Reading(document, ContractDeal()), Not(naming));
        EXPECT_THAT(Reading(document, marked), naming);

        EngineDesk desk;
        desk.Type(document, ContractDeal(), {kValley, "CHRO Fair Housing Notice"});
        EXPECT_THAT(desk.Text(), naming);
    }
}

TEST(Contracts, WarnThatFiguresAreFixed) {
    for (const char* const document : kContracts)
        EXPECT_EQ(NoticesOf(*FindBuilder(document), ContractDeal()), "B") << document;
}

}  // namespace
}  // namespace quillmark::test
