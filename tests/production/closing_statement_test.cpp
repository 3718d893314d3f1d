#include <gmock/gmock.h>

#include <functional>
#include <random>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"
#include "production/statement_page.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using namespace field;

constexpr const char* kStatement = "Closing Statement";
constexpr const char* kExempt = "Closing Statement / Tax Exempt";

using Values = std::initializer_list<std::pair<Field, const char*>>;

void Fill(Job& job, Values values) {
    for (const auto& [n, text] : values) job.SetField(n, text);
}

/// A couple sells to a couple, in the second half of a tax year: two payoffs, two brokers, the binder
/// applied.
Job TypicalSale() {
    Job job = SampleDeal();
    SellersAtOneAddress(job);
    BuyersAtOneAddress(job);
    job.SetOption(OnePayoff, false);
    job.SetOption(TwoPayoffs, true);
    // clang-format off
    Fill(job, {
        {SellerLawfirm,      "Penfield & Lowe LLC"},   {SellerAttysFee,     "$1,250.00"},
        {BinderDeposit,      "$5,000.00"},             {ContractDeposit,    "$36,500.00"},
        {ClosingDate,        "August 16, 2021"},       {ProrationDate,      "August 15, 2021"},
        {Realtor1Name,       "Shoreline Realty"},      {Realtor1Commission, "$10,375.00 - B"},
        {Realtor2Name,       "Harbor Homes"},          {Realtor2Commission, "$8,300.00 - N"},
        {Payoff1Servicer,    "First Shore Bank"},      {Payoff1Amount,      "$201,455.12 - T"},
        {Payoff2Servicer,    "Elm City Credit Union"}, {Payoff2Amount,      "$25,000.00 = R"},
        {AnnualPropertyTax,  "$6,000.00 - P"},         {SewerAdjustment,    "$412.00 - P"},
        {WaterAdjustment,    "$85.50"},                {OilAdjustment,      "$310.00"},
        {RecordingFees,      "$60.00"},                {CourierFee,         "$35.00"},
        {OtherDisbursement1, "$150.00 - Title search"},
    });
    // clang-format on
    return job;
}

std::string Typed(const std::string& document, const Job& job, ScriptedDialogs::Answers answers = {},
                  std::string (EngineDesk::*form)() const = &EngineDesk::Text) {
    EngineDesk desk;
    ScriptedDialogs dialogs(std::move(answers), ScriptedDialogs::WhenUnanswered::Fail);
    const Settings settings;
    desk.Type(document, {job, settings, dialogs});
    EXPECT_EQ(dialogs.AnswersLeft(), 0U);
    return (desk.*form)();
}

void ExpectOnPaper(const std::string& golden, const std::string& document, const std::string& facts,
                   const std::function<void(Job&)>& change, ScriptedDialogs::Answers answers = {}) {
    Job job = TypicalSale();
    change(job);
    ExpectGolden("closing/" + golden + ".txt",
                 document + "\n" + facts + "\n\n" + AsOnPaper(Typed(document, job, std::move(answers))));
}

TEST(ClosingStatementPage, InFull) {
    ExpectGolden(
        "closing/statement.txt",
        std::string(kStatement) +
            "\na couple sells to a couple: two payoffs, two brokers, the binder applied to the first "
            "commission\n\n" +
            Typed(kStatement, TypicalSale(), {}, &EngineDesk::Reading));
}

TEST(ClosingStatementPage, ByTheSale) {
    ExpectOnPaper(
        "statement_entity_commercial", kStatement,
        "a company sells a commercial building: one payoff, one broker who keeps the binder, a net sewer "
        "credit, closing and proration on one day",
        [](Job& job) {
            job.SetOption(TwoSellers, false);
            job.SetOption(OneSeller, true);
            SellerIsEntity(job);
            job.SetOption(TwoPayoffs, false);
            job.SetOption(OnePayoff, true);
            job.SetOption(Commercial, true);
            Fill(job, {{ProrationDate, "August 16, 2021"},
                       {SewerAdjustment, "$75.25 = P"},
                       {WaterAdjustment, "POC"},
                       {OilAdjustment, "POC"},
                       {Realtor2Name, ""},
                       {Realtor2Commission, ""},
                       {Payoff2Amount, ""}});
        });
    ExpectOnPaper("statement_exempt", kExempt,
                  "a sale without mortgages and brokers, exempt from the town's tax and not from the state's",
                  [](Job& job) {
                      job.SetOption(TwoPayoffs, false);
                      Fill(job, {{Payoff1Amount, ""},
                                 {Payoff2Amount, ""},
                                 {Realtor1Name, ""},
                                 {Realtor1Commission, ""},
                                 {Realtor2Name, ""},
                                 {Realtor2Commission, ""}});
                  },
                  {"Yes", "No"});
    ExpectOnPaper(
        "statement_deficit", kStatement,
        "one seller whose payoffs take the deposits too, exempt from both taxes; the second broker keeps "
        "the binder",
        [](Job& job) {
            job.SetOption(TwoSellers, false);
            job.SetOption(OneSeller, true);
            Fill(job, {{Payoff1Amount, "$378,000.00"},
                       {Realtor1Commission, "$10,375.00 - N"},
                       {Realtor2Commission, "$8,300.00 - B"}});
        },
        {"Yes", "Yes"});
    ExpectOnPaper(
        "statement_condominium", kStatement,
        "a rented condominium with everything unpaid, credits of every kind on both sides, some without a "
        "description",
        [](Job& job) {
            job.SetOption(Condo, true);
            Fill(job, {{AnnualPropertyTax, "$6,000.00 - U"},
                       {SewerAdjustment, "$412.00 - U"},
                       {MonthlyCommonChg, "$300.00 - U"},
                       {MonthlyRent, "$2,200.00 - P"},
                       {SecurityDeposit, "$2,000.00"},
                       {ClosingCostCredit, "$1,000.00"},
                       {RepairCredit, "$750.00"},
                       {SmokeDetectorCredit, "$250.00"},
                       {OtherAdjustment1, "$120.00 - Fence = P"},
                       {OtherAdjustment2, "$130.00 = P"},
                       {OtherAdjustment3, "$140.00 - Shed = U"},
                       {OtherAdjustment4, "$150.00 = U"},
                       {OtherDisbursement4, "$400.00"},
                       {OtherDisbursement6, "$80.00 - Wire fee"}});
        });
    ExpectOnPaper(
        "statement_arrears", kStatement,
        "in a town that bills in arrears: paid taxes are the buyer's credit all the same", [](Job& job) {
            Fill(job, {{PropertyCityStateZip, "Meriden, CT 06450"}, {MonthlyRent, "$2,200.00 - U"}});
        });
    ExpectGolden("closing/statement_unfilled.txt", std::string(kStatement) + "\na job without any entry\n\n" +
                                                       AsOnPaper(Typed(kStatement, UnfilledDeal())));
}

TEST(ClosingStatementPage, ALabelTooWideForItsColumnBreaksBeforeTheTab) {
    Job job = TypicalSale();
    job.SetField(OtherDisbursement1, "$150.00 - Title search and examination of the last sixty years");
    const std::string text = Typed(kStatement, job);
    EXPECT_THAT(
        text, ::testing::HasSubstr("TITLE SEARCH AND EXAMINATION OF THE LAST SIXTY YEARS\v\t        150.00"));
    EXPECT_THAT(text, ::testing::HasSubstr("RECORDING FEES - Branford Town Clerk\t         60.00"));
}

TEST(ClosingStatementPage, LinesAreCloserForAnOldWord) {
    for (const auto& [version, spacing] : {std::pair("11.0", "= 11"), std::pair("12.0", "= 11.9")}) {
        EngineDesk desk;
        desk.SetVersion(version);
        desk.Type(kStatement, SampleDeal());
        EXPECT_TRUE(desk.Did(std::string("Selection.Paragraphs.LineSpacing ") + spacing)) << version;
    }
}

// ---- The page adds up ----

class RandomSale {
 public:
    explicit RandomSale(std::uint32_t seed) : random_(seed) {}

    Job Next() {
        Job job = SampleDeal();
        Choose(job, TwoSellers, OneSeller);
        Choose(job, TwoBuyers, OneBuyer);
        const std::size_t payoffs = random_() % 3;
        job.SetOption(OnePayoff, payoffs == 1);
        job.SetOption(TwoPayoffs, payoffs == 2);
        for (const Option n : {Condo, Commercial, LandMultiFamily}) job.SetOption(n, random_() % 4 == 0);
        static constexpr const char* kTowns[] = {"Avon",   "Meriden",  "Wallingford",
                                                 "Berlin", "Trumbull", "Stamford"};
        job.SetField(PropertyCityStateZip, std::string(kTowns[random_() % 6]) + ", CT 06000");
        job.SetField(SalePriceNumeric, Amount(90'000'000));
        if (random_() % 8 != 0)
            job.SetField(ProrationDate, std::to_string(random_() % 12 + 1) + "/" +
                                            std::to_string(random_() % 28 + 1) + "/" +
                                            std::to_string(2019 + random_() % 6));
        if (payoffs > 0) Maybe(job, Payoff1Amount, {"", " - T", " = R", " - R"}, 60'000'000);
        if (payoffs > 1) Maybe(job, Payoff2Amount, {"", " = T"}, 10'000'000);
        FillSides(job);
        return job;
    }

 private:
    void Choose(Job& job, Option two, Option one) {
        const bool both = random_() % 2 == 0;
        job.SetOption(two, both);
        job.SetOption(one, !both);
    }

    void FillSides(Job& job) {
        for (const Field n :
             {SellerAttysFee, BinderDeposit, ContractDeposit, WaterAdjustment, OilAdjustment, SecurityDeposit,
              ClosingCostCredit, RepairCredit, SmokeDetectorCredit, RecordingFees, CourierFee})
            Maybe(job, n, {""}, 3'000'000);
        for (const Field n : {AnnualPropertyTax, MonthlyCommonChg, MonthlyRent})
            Maybe(job, n, {" - P", " - U", ""}, 900'000);
        Maybe(job, SewerAdjustment, {" - P", " - U", " = P", " = U", ""}, 90'000);
        for (const Field n : {OtherAdjustment1, OtherAdjustment2, OtherAdjustment3, OtherAdjustment4})
            Maybe(job, n, {" = P", " = U", " - Fence = P", " - Shed = U"}, 90'000);
        for (const Field n : {OtherDisbursement1, OtherDisbursement2, OtherDisbursement3, OtherDisbursement4,
                              OtherDisbursement5, OtherDisbursement6})
            Maybe(job, n, {"", " - Title search"}, 90'000);
        Maybe(job, Realtor1Commission, {" - B", " - N", ""}, 2'000'000);
        Maybe(job, Realtor2Commission, {" - B", " - N", ""}, 2'000'000);
        if (random_() % 2 == 0) job.SetField(Realtor2Name, "Harbor Homes");
    }

    void Maybe(Job& job, Field n, std::vector<const char*> tags, std::uint32_t mostCents) {
        if (random_() % 3 == 0) return;
        job.SetField(n, Amount(mostCents) + tags[random_() % tags.size()]);
    }

    std::string Amount(std::uint32_t mostCents) {
        const std::string digits = std::to_string(random_() % mostCents + 100);
        return ShownAmount(digits.substr(0, digits.size() - 2) + "." + digits.substr(digits.size() - 2));
    }

    std::mt19937 random_;
};

/// Sums up a page from its lines alone, as a client with a pocket calculator does.
class Auditor {
 public:
    explicit Auditor(const std::string& text) : lines_(StatementLinesOf(text)) {}

    void ExpectToAddUp() {
        const long long credits = Section("CREDITS TO ");
        const long long toBuyer = Section("LESS: CREDITS TO ");
        const long long cash = Total("CASH TO CLOSE");
        EXPECT_EQ(cash, credits + toBuyer);
        const long long funds = Section("AVAILABLE FUNDS");
        const long long disbursed = Section("LESS: DISBURSEMENTS");
        const long long net = funds + disbursed;
        EXPECT_EQ(Total(net < 0 ? "DUE FROM" : "NET TO"), std::abs(net));
        ExpectParts("MORTGAGE PAYOFFS");
        ExpectParts("REAL ESTATE COMMISSIONS");
    }

 private:
    /// The section's total as it stands, which must be the sum of its figures; a sum to be taken off is
    /// negative.
    long long Section(const std::string& title) {
        long long sum = 0;
        for (std::size_t i = Find(title); i < lines_.size(); ++i) {
            const StatementLine& line = lines_[i];
            if (line.hasFigure) sum += line.figure;
            if (!line.hasTotal) continue;
            const long long sign = title.starts_with("LESS") ? -1 : 1;
            EXPECT_EQ(line.total, sum) << title;
            return sign * sum;
        }
        ADD_FAILURE() << title << " has no total";
        return 0;
    }

    /// Where there is such a line, what stands below it in small type makes it up.
    void ExpectParts(const std::string& label) {
        for (std::size_t i = 0; i + 2 < lines_.size(); ++i) {
            if (lines_[i].label != label) continue;
            ASSERT_TRUE(lines_[i + 1].hasPart && lines_[i + 2].hasPart) << label;
            EXPECT_EQ(lines_[i].figure, lines_[i + 1].part + lines_[i + 2].part) << label;
        }
    }

    long long Total(const std::string& label) { return lines_.at(Find(label)).total; }

    std::size_t Find(const std::string& label) const {
        for (std::size_t i = 0; i < lines_.size(); ++i)
            if (lines_[i].label.starts_with(label)) return i;
        ADD_FAILURE() << "no line " << label;
        return lines_.size() - 1;
    }

    std::vector<StatementLine> lines_;
};

TEST(ClosingStatementPage, EveryTotalIsTheSumOfTheTypedLines) {
    constexpr std::uint32_t kSeed = 20210815;
    RandomSale sales(kSeed);
    for (int round = 0; round < 400; ++round) {
        const Job job = sales.Next();
        EngineDesk desk;
        ScriptedDialogs dialogs({round % 2 ? "Yes" : "No", round % 3 ? "Yes" : "No"});
        const Settings settings;
        desk.Type(kExempt, {job, settings, dialogs});
        Auditor(desk.Text()).ExpectToAddUp();
        if (HasFailure()) FAIL() << "seed " << kSeed << ", sale " << round << "\n" << AsOnPaper(desk.Text());
    }
}

}  // namespace
}  // namespace quillmark::test
