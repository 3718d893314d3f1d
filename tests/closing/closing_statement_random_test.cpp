#include <gtest/gtest.h>

#include <fmt/format.h>

#include <cmath>
#include <random>

#include "closing_statement_deal.h"
#include "closing_statement_rules.h"
#include "core/text_conversions.h"

namespace quillmark::test {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

class DealMaker {
 public:
    Deal Make() {
        Deal deal;
        deal.town = Any(towns_[Below(towns_.size())]);
        if (!OneIn(20)) deal.date = AnyDate();
        for (bool* flag : {&deal.leapYears, &deal.twoPayoffs, &deal.condo, &deal.commercial, &deal.land,
                           &deal.secondRealtor, &deal.municipalExempt, &deal.stateExempt})
            *flag = OneIn(2);
        deal.taxExempt = OneIn(4);
        deal.price = AnyPrice();
        for (Cents* amount :
             {&deal.binder, &deal.contract, &deal.fee, &deal.recording, &deal.courier, &deal.water, &deal.oil,
              &deal.security, &deal.closingCost, &deal.repair, &deal.smoke})
            *amount = Amount(3'000'000);
        const std::vector<std::string> paid = {" - P", " - U", " - X", "", " -U"};
        for (Tagged* value : {&deal.tax, &deal.common, &deal.rent}) *value = {Amount(2'000'000), Any(paid)};
        deal.sewer = {Amount(100'000), Any({" - P", " - U", " = P", " = U", " - X", " = X", ""})};
        for (Tagged* value : {&deal.payoff1, &deal.payoff2})
            *value = {Amount(deal.price), Any({" - T", " - R", " = T", " = R", ""})};
        for (Tagged* value : {&deal.commission1, &deal.commission2})
            *value = {Amount(5'000'000), Any({" - B", " - N", ""})};
        for (int i = 0; i < 4; ++i)
            deal.adjustments.push_back(
                {Amount(90'000), Any({" = P", " = U", " - Oil = P", " - Dog-house = U", " - Fence", ""})});
        for (int i = 0; i < 6; ++i)
            deal.disbursements.push_back(
                {Amount(90'000), Any({" - Title-search", " - Dog licence = P", ""})});
        for (Tagged* value : Tags(deal))
            if (value->amount == kNone) value->tag.clear();
        if (OneIn(6)) BalancePayoffs(deal);
        return deal;
    }

    bool OneIn(std::size_t n) { return Below(n) == 0; }

 private:
    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_); }
    std::string Any(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }

    Cents Amount(Cents most) {
        if (OneIn(4)) return kNone;
        return OneIn(8) ? 0 : static_cast<Cents>(Below(static_cast<std::size_t>(most)));
    }

    Cents AnyPrice() {
        constexpr Cents kThresholds[] = {80'000'000, 99'999'900, 100'000'000, 250'000'000};
        if (OneIn(3)) return kThresholds[Below(4)] + static_cast<Cents>(Below(401)) - 200;
        // Whole dollars often end in half a cent of tax.
        if (OneIn(2)) return static_cast<Cents>(1 + Below(4'000'000)) * 100;
        return static_cast<Cents>(1 + Below(400'000'000));
    }

    year_month_day AnyDate() {
        const sys_days first(std::chrono::year(1999) / 1 / 1);
        const sys_days any = first + std::chrono::days(Below(365 * 32));
        if (!OneIn(4)) return any;
        const year_month_day date(any);
        const auto monthEnd = sys_days(date.year() / date.month() / std::chrono::last);
        return monthEnd + std::chrono::days(Below(3)) - std::chrono::days(1);
    }

    static std::vector<Tagged*> Tags(Deal& deal) {
        std::vector<Tagged*> tags = {&deal.tax,     &deal.sewer,   &deal.common,      &deal.rent,
                                     &deal.payoff1, &deal.payoff2, &deal.commission1, &deal.commission2};
        for (Tagged& value : deal.adjustments) tags.push_back(&value);
        for (Tagged& value : deal.disbursements) tags.push_back(&value);
        return tags;
    }

    /// The payoffs take the cash to the cent, or fail to by one.
    void BalancePayoffs(Deal& deal) {
        deal.twoPayoffs = true;
        deal.payoff1.amount = deal.payoff2.amount = 0;
        const auto cash = std::llround(ByTheRules(deal).figures["CashToClose"] * 100);
        if (cash <= 3) return;
        deal.payoff1.amount = cash / 3;
        deal.payoff2.amount = cash - cash / 3 + (OneIn(3) ? 1 : 0);
    }

    std::mt19937 random_{20210701};
    const std::vector<std::vector<std::string>> towns_ = SampleTowns();
};

/// As typed or as shown; nothing for what was not entered.
std::string Text(Cents amount, bool shown) {
    if (amount == kNone) return {};
    const std::string plain = fmt::format("{}.{:02}", amount / 100, amount % 100);
    return shown ? ShownAmount(plain) : plain;
}

void Enter(const Deal& deal, StatementDesk& desk, bool shown) {
    desk.settings.leapYears = deal.leapYears;
    for (const auto& [option, on] :
         {std::pair(TwoPayoffs, deal.twoPayoffs), std::pair(Condo, deal.condo),
          std::pair(Commercial, deal.commercial), std::pair(LandMultiFamily, deal.land)})
        desk.job.SetOption(option, on);
    desk.In(deal.town, deal.date ? LongDate(*deal.date) : std::string());
    const std::map<int, Cents> amounts = {{10, deal.fee},        {76, deal.price},        {77, deal.binder},
                                          {78, deal.contract},   {173, deal.water},       {174, deal.oil},
                                          {176, deal.security},  {178, deal.closingCost}, {179, deal.repair},
                                          {180, deal.recording}, {181, deal.courier},     {203, deal.smoke}};
    for (const auto& [n, amount] : amounts)
        if (amount != kNone) desk.job.SetField(n, Text(amount, shown));
    std::map<int, Tagged> tagged = {{86, deal.commission1}, {88, deal.commission2}, {100, deal.payoff1},
                                    {118, deal.payoff2},    {170, deal.tax},        {171, deal.sewer},
                                    {175, deal.common},     {177, deal.rent}};
    constexpr int kAdjustments[] = {193, 194, 195, 196};
    constexpr int kDisbursements[] = {182, 183, 184, 185, 212, 213};
    for (std::size_t i = 0; i < 4; ++i) tagged[kAdjustments[i]] = deal.adjustments[i];
    for (std::size_t i = 0; i < 6; ++i) tagged[kDisbursements[i]] = deal.disbursements[i];
    for (const auto& [n, value] : tagged) desk.job.SetField(n, Text(value.amount, shown) + value.tag);
    if (deal.secondRealtor) desk.job.SetField(87, "Second Realty");
}

std::string Description(const StatementDesk& desk) {
    std::string text = fmt::format("{}, leap years {}", desk.job.D(1072), desk.settings.leapYears);
    for (int n = 1; n <= kFields; ++n)
        if (desk.job.IsFilled(n)) text += fmt::format("\n{} {}", n, desk.job.D(n));
    return text;
}

void ExpectSame(const ClosingStatement& statement, const Expected& expected) {
    Figures left = expected.figures;
    for (const auto& [name, figure] : FiguresByName(statement)) {
        ASSERT_EQ(left.count(name), 1u) << name;
        EXPECT_NEAR(figure, left[name], 1e-6) << name;
        left.erase(name);
    }
    EXPECT_TRUE(left.empty());
    EXPECT_EQ(statement.PayoffsExceedCash, expected.figures.at("BalanceOfCash") < 0);
    const bool atBuyer = statement.TaxCreditBuyer.shown;
    EXPECT_NE(atBuyer, statement.TaxCreditSeller.shown);
    const ProrationDays& period = (atBuyer ? statement.TaxCreditBuyer : statement.TaxCreditSeller).period;
    const bool unpaid = statement.entries.AnnualTax.tag == 'U';
    EXPECT_EQ(period.days, unpaid ? expected.calendar.unpaid : expected.calendar.paid);
    ASSERT_EQ(period.PeriodDate.has_value(), statement.proration.ProrationDate.has_value());
    if (!period.PeriodDate) return;
    EXPECT_EQ(sys_days(*period.PeriodDate),
              unpaid ? expected.calendar.unpaidDate : expected.calendar.paidDate);
}

TEST(ClosingStatementRandom, AgreesWithASecondComputationInWholeCents) {
    DealMaker maker;
    int asked = 0;
    for (int i = 0; i < 10'000 && !testing::Test::HasFailure(); ++i) {
        const Deal deal = maker.Make();
        const Expected expected = ByTheRules(deal);
        StatementDesk desk;
        Enter(deal, desk, maker.OneIn(2));
        SCOPED_TRACE(fmt::format("sale {}: {}", i, Description(desk)));
        if (expected.asks)
            desk.dialogs.SetAnswers({deal.municipalExempt ? "Yes" : "No", deal.stateExempt ? "Yes" : "No"});
        ASSERT_NO_THROW(ExpectSame(desk.Compute(deal.taxExempt ? kTaxExemptMode : ""), expected));
        EXPECT_EQ(desk.dialogs.AnswersLeft(), 0u);
        asked += expected.asks;
    }
    EXPECT_GT(asked, 1'000);
}

}  // namespace
}  // namespace quillmark::test
