#include "closing/proration_calculator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "entry/field_listing.h"
#include "entry/smart_fields.h"
#include "selection/field_rows.h"

namespace quillmark {
namespace {

using std::chrono::year;
using std::chrono::year_month_day;

class Calculator : public ::testing::Test {
 protected:
    ProrationCalculator On(year_month_day today) {
        clock = std::make_unique<FixedClock>(today);
        return {job, *clock};
    }
    static void Enter(ProrationCalculator& calculator, const std::string& gross) {
        calculator.SetGross({gross, gross.size(), 0});
    }

    Job job;
    std::unique_ptr<FixedClock> clock;
};

TEST_F(Calculator, StartsInTheFiscalYearOfToday) {
    const auto june = On(year(2026) / 6 / 30).State();
    EXPECT_EQ(june.DTPicker1, year(2025) / 7 / 1);
    EXPECT_EQ(june.DTPicker2, year(2026) / 6 / 30);
    EXPECT_EQ(june.DTPicker3, year(2026) / 6 / 30);
    EXPECT_EQ(june.UnpaidDays, 364) << "the last day itself counts as paid";
    const auto july = On(year(2027) / 7 / 1).State();
    EXPECT_EQ(july.DTPicker1, year(2027) / 7 / 1);
    EXPECT_EQ(july.PeriodDays, 366);
    EXPECT_EQ(july.UnpaidDays, 0);
    EXPECT_EQ(july.lblPerDiem, "Days =366\n@ 0.000");
    EXPECT_EQ(july.Text1, "0.00");
    EXPECT_EQ(july.cmdBuyerTooltip, "");
    EXPECT_EQ(july.cmdSellerTooltip, "");
}

TEST_F(Calculator, TakesTheJobsProrationDateWithinThePeriod) {
    job.SetField(81, "April 6, 2026");
    EXPECT_EQ(On(year(2026) / 3 / 9).State().DTPicker3, year(2026) / 4 / 6);
    EXPECT_EQ(On(year(2026) / 8 / 9).State().DTPicker3, year(2026) / 8 / 9);
    job.SetField(81, "soon");
    EXPECT_EQ(On(year(2026) / 3 / 9).State().DTPicker3, year(2026) / 3 / 9);
}

TEST_F(Calculator, WorksOutBothSides) {
    auto calculator = On(year(2026) / 3 / 9);
    Enter(calculator, "4812.50");
    const auto& state = calculator.State();
    EXPECT_EQ(state.txtGross.text, "4812.50");
    EXPECT_EQ(state.lblPerDiem, "Days =365\n@ 13.185");
    EXPECT_EQ(state.UnpaidDays, 251);
    EXPECT_EQ(state.PaidDays, 114);
    EXPECT_EQ(state.Text1, "3,309.42");
    EXPECT_EQ(state.Text2, "1,503.08");
    EXPECT_EQ(state.cmdBuyerTooltip, " Click to credit buyer this amount ");
    EXPECT_EQ(state.cmdSellerTooltip, " Click to credit seller this amount ");
    calculator.SetProrationDate(year(2025) / 7 / 1);
    EXPECT_EQ(state.Text1, "0.00");
    EXPECT_EQ(state.Text2, "4,812.50");
    EXPECT_EQ(state.cmdBuyerTooltip, "");
    calculator.Reset();
    EXPECT_EQ(state.txtGross, EditorText{});
    EXPECT_EQ(state.Text2, "0.00");
}

TEST_F(Calculator, TheRateHasSinglePrecision) {
    auto calculator = On(year(2026) / 3 / 9);
    Enter(calculator, "9,876,543.21");
    calculator.SetProrationDate(year(2025) / 7 / 1);
    const double rate = static_cast<float>(9876543.21 / 365);
    EXPECT_NE(calculator.State().Text2, "9,876,543.21") << "about seven digits are good";
    EXPECT_NEAR(AmountOf(calculator.State().Text2), rate * 365, 0.005);
}

TEST_F(Calculator, GroupsTheGrossWhileItHasNoPoint) {
    auto calculator = On(year(2026) / 3 / 9);
    const auto shown = [&](const std::string& typed) {
        calculator.SetGross({typed, 0, 0});
        return calculator.State().txtGross;
    };
    EXPECT_EQ(shown("1234"), (EditorText{"1,234", 5, 0}));
    EXPECT_EQ(shown("1,2345"), (EditorText{"12,345", 6, 0}));
    EXPECT_EQ(shown("$12345678901234567890").text, "12,345,678,901,234,567,890");
    EXPECT_EQ(shown("1234.5"), (EditorText{"1234.5", 0, 0}));
    EXPECT_EQ(shown("-4500").text, "-4,500");
    EXPECT_EQ(shown("0").text, "");
    EXPECT_EQ(shown("taxes").text, "taxes");
    EXPECT_EQ(calculator.State().Text2, "0.00");
    shown(std::string(300, '9'));
    EXPECT_EQ(calculator.State().PerDiem, std::numeric_limits<float>::max());
}

TEST_F(Calculator, DatesPushEachOther) {
    auto calculator = On(year(2026) / 3 / 9);
    const auto& state = calculator.State();
    calculator.SetFrom(year(2026) / 12 / 24);
    EXPECT_EQ(state.DTPicker2, year(2026) / 12 / 24);
    EXPECT_EQ(state.DTPicker3, year(2026) / 12 / 24);
    EXPECT_EQ(state.PeriodDays, 1);
    EXPECT_EQ(state.UnpaidDays, 0);
    EXPECT_EQ(state.PaidDays, 1);
    calculator.SetTo(year(2026) / 2 / 28);
    EXPECT_EQ(state.DTPicker1, year(2026) / 2 / 28);
    calculator.SetTo(year(2026) / 2 / 30);
    EXPECT_EQ(state.DTPicker2, year(2026) / 2 / 28) << "there is no such day";
}

TEST_F(Calculator, DaysAndAmountsAddUp) {
    std::mt19937 random(44);
    auto calculator = On(year(2026) / 3 / 9);
    const auto day = [&] {
        return year_month_day(std::chrono::sys_days(year(2020) / 1 / 1) + std::chrono::days(random() % 4000));
    };
    for (int step = 0; step < 2000; ++step) {
        switch (random() % 4) {
            case 0:
                calculator.SetFrom(day());
                break;
            case 1:
                calculator.SetTo(day());
                break;
            case 2:
                calculator.SetProrationDate(day());
                break;
            default:
                Enter(calculator, std::to_string(random() % 100000) + ".25");
        }
        const auto& state = calculator.State();
        ASSERT_LE(state.DTPicker1, state.DTPicker3);
        ASSERT_LE(state.DTPicker3, state.DTPicker2);
        ASSERT_EQ(state.UnpaidDays + state.PaidDays, state.PeriodDays);
        const double gross = AmountOf(state.txtGross.text);
        ASSERT_NEAR(AmountOf(state.Text1) + AmountOf(state.Text2), gross, 0.011 + gross * 1e-7) << step;
    }
}

TEST_F(Calculator, HandsAmountsOverAsCredits) {
    JobInHand hand;
    AttachSmartFields(hand.job);
    for (const int n : {170, 171, 174, 194}) hand.job.txtField(n).relevant = true;
    RebuildRows(hand);
    auto calculator = On(year(2026) / 3 / 9);
    Enter(calculator, "4812.50");

    const auto handOver = [&](int n, CreditTo side) {
        UpdateListing(n, HandOverValue(calculator, side, n), hand);
        return hand.job.D(n);
    };
    EXPECT_EQ(handOver(194, CreditTo::Buyer), "$3,309.42 = U");
    EXPECT_EQ(handOver(194, CreditTo::Seller), "$1,503.08 = P");
    EXPECT_EQ(handOver(171, CreditTo::Buyer), "$3,309.42 = U");
    EXPECT_EQ(handOver(171, CreditTo::Seller), "$1,503.08 = P");
    EXPECT_EQ(handOver(170, CreditTo::Buyer), "$3,309.42 - U");
    EXPECT_EQ(handOver(174, CreditTo::Seller), "$1,503.08");
    EXPECT_EQ(FindRow(194, hand)->lit, (std::array{true, false}));
}

}  // namespace
}  // namespace quillmark
