#include <gtest/gtest.h>

#include <chrono>

#include "closing_statement_deal.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;

void ExpectPeriod(const AdjustmentLine& line, std::chrono::year_month_day date, double days, double figure) {
    EXPECT_TRUE(line.shown);
    EXPECT_EQ(line.period.PeriodDate, date);
    EXPECT_EQ(line.period.days, days);
    EXPECT_EQ(line.figure, figure);
}

TEST(ClosingStatement, APaidTaxIsRepaidToTheSellerThroughThePeriodsEnd) {
    StatementDesk desk;
    const auto statement = desk.In("Avon", "8/15/2021").With({{170, "$6,000.00 - P"}}).Compute();
    EXPECT_EQ(statement.proration.DaysInTaxYear, 365);
    EXPECT_EQ(statement.proration.ProrationText, "8/15/2021");
    EXPECT_NEAR(statement.TaxPerDay, 16.4383561643836, 1e-12);
    ExpectPeriod(statement.TaxCreditSeller, 2021y / 12 / 31, 139, 2284.93);
    EXPECT_FALSE(statement.TaxCreditBuyer.shown);
}

TEST(ClosingStatement, AnUnpaidTaxIsCreditedToTheBuyerUpToTheDayBefore) {
    StatementDesk desk;
    const auto statement = desk.In("Avon", "August 15, 2021").With({{170, "$6,000.00 - U"}}).Compute();
    ExpectPeriod(statement.TaxCreditBuyer, 2021y / 7 / 1, 45, 739.73);
    EXPECT_FALSE(statement.TaxCreditSeller.shown);
    // The price less the credit, 0.25% to the town and 0.75% to the state.
    EXPECT_EQ(statement.NetResult, 100000 - 739.73 - 250 - 750);
}

TEST(ClosingStatement, TownsInArrearsCreditTheBuyerWhateverTheTag) {
    StatementDesk desk;
    desk.In(" MERIDEN ", "8/15/2021").With({{170, "$3,650.00 - P"}});
    const auto paid = desk.Compute();
    ExpectPeriod(paid.TaxCreditBuyer, 2021y / 1 / 1, 226, 2260);
    EXPECT_FALSE(paid.TaxCreditSeller.shown);
    desk.With({{170, "$3,650.00 - U"}});
    ExpectPeriod(desk.Compute().TaxCreditBuyer, 2020y / 10 / 1, 318, 3180);

    desk.In("Wallingford", "2/1/2021");
    ExpectPeriod(desk.Compute().TaxCreditBuyer, 2020y / 4 / 1, 306, 3060);
}

TEST(ClosingStatement, TheLeapDayBelongsToTheTownsOwnTaxYear) {
    StatementDesk desk;
    const auto taxYear = [&desk](std::string_view town, std::string_view date) {
        return desk.In(town, date).Compute().proration.DaysInTaxYear;
    };
    EXPECT_EQ(taxYear("Avon", "3/1/2020"), 366);
    EXPECT_EQ(taxYear("Avon", "7/1/2019"), 366);
    EXPECT_EQ(taxYear("Avon", "7/1/2020"), 365);
    EXPECT_EQ(taxYear("Meriden", "7/1/2020"), 366);
    EXPECT_EQ(taxYear("Meriden", "9/30/2019"), 365);
    desk.settings.leapYears = false;
    EXPECT_EQ(taxYear("Avon", "3/1/2020"), 365);
}

TEST(ClosingStatement, AnEmptyTaxIsALineOfZero) {
    StatementDesk desk;
    const auto statement = desk.In("Avon", "8/15/2021").With({{170, ""}}).Compute();
    EXPECT_TRUE(statement.TaxCreditSeller.shown);
    EXPECT_EQ(statement.TaxCreditSeller.figure, 0);
    // Without the hyphen there is no knowing what was meant.
    EXPECT_EQ(desk.With({{170, "$6,000.00"}}).Compute().TaxPerDay, 0);
}

TEST(ClosingStatement, TheSewersMarkAndLetterDecideSideAndProration) {
    StatementDesk desk;
    const auto credits = [&desk](std::string_view town, const char* sewer) {
        const auto statement = desk.In(town, "8/15/2021").With({{171, sewer}}).Compute();
        return std::pair(statement.SewerCreditSeller.figure, statement.SewerCreditBuyer.figure);
    };
    EXPECT_EQ(credits("Avon", "$365.00 - P"), std::pair(139.0, 0.0));
    EXPECT_EQ(credits("Avon", "$365.00 - U"), std::pair(0.0, 45.0));
    EXPECT_EQ(credits("Avon", "$365.00 = P"), std::pair(365.0, 0.0));
    EXPECT_EQ(credits("Avon", "$365.00 = U"), std::pair(0.0, 365.0));
    EXPECT_EQ(credits("Meriden", "$365.00 - P"), std::pair(0.0, 226.0));
    EXPECT_EQ(credits("Meriden", "$365.00 = P"), std::pair(365.0, 0.0));
    for (const char* none : {"$365.00 -", "POC", ""}) {
        const auto statement = desk.In("Avon", "8/15/2021").With({{171, none}}).Compute();
        EXPECT_FALSE(statement.SewerCreditSeller.shown || statement.SewerCreditBuyer.shown) << none;
    }
}

TEST(ClosingStatement, RentAndCommonChargesSplitTheMonth) {
    StatementDesk desk;
    desk.In("Avon", "2/10/2020").With({{175, "$290.00 - P"}, {177, "$2,900.00 - P"}});
    const auto paid = desk.Compute();
    ExpectPeriod(paid.CommonCreditSeller, 2020y / 2 / 29, 20, 200);
    ExpectPeriod(paid.RentCreditBuyer, 2020y / 2 / 29, 20, 2000);
    const auto unpaid = desk.With({{175, "$290.00 - U"}, {177, "$2,900.00 - U"}}).Compute();
    ExpectPeriod(unpaid.CommonCreditBuyer, 2020y / 2 / 1, 9, 90);
    ExpectPeriod(unpaid.RentCreditSeller, 2020y / 2 / 1, 9, 900);

    StatementDesk bare;
    bare.In("Avon", "2/10/2020");
    EXPECT_FALSE(bare.Compute().CommonCreditSeller.shown);
    bare.job.SetOption(Condo, true);
    EXPECT_TRUE(bare.Compute().CommonCreditSeller.shown);
}

TEST(ClosingStatement, WithoutAProrationDateNothingIsProrated) {
    StatementDesk desk;
    desk.With({{170, "$6,000.00 - P"}, {171, "$365.00 - U"}, {175, "$290.00 - U"}, {177, "$900.00 - U"}});
    const auto statement = desk.Compute();
    EXPECT_EQ(statement.TotalCreditsSeller, 100000);
    EXPECT_EQ(statement.TotalCreditsBuyer, 0);
    EXPECT_EQ(statement.proration.DaysInTaxYear, 0);
    EXPECT_TRUE(statement.CommonCreditBuyer.shown);
    EXPECT_FALSE(statement.CommonCreditBuyer.period.PeriodDate);
    desk.With({{81, "June 31, 2021"}});
    EXPECT_THROW(desk.Compute(), NotADate);
}

TEST(ClosingStatement, TheConveyanceTaxesChangeAtTheirThresholds) {
    StatementDesk desk;
    const auto municipal = [&desk](std::string_view town, const char* price) {
        return desk.In(town, "8/15/2021").With({{76, price}}).Compute().Municipal.tax;
    };
    EXPECT_EQ(municipal("Stamford", "$999,999.99"), 3500);
    EXPECT_EQ(municipal("Stamford", "$1,000,000.00"), 3500);
    EXPECT_EQ(municipal("Stamford", "$1,100,000.00"), 4000);
    EXPECT_EQ(municipal("Hartford", "$300,000.00"), 1500);
    EXPECT_EQ(municipal("Avon", "$300,000.00"), 750);
    EXPECT_EQ(municipal("Nowhere", "$300,000.00"), 750);
    EXPECT_EQ(municipal("Avon", "$300,002.00"), 750.01);

    const auto state = [&desk](const char* price) { return desk.With({{76, price}}).Compute().State.tax; };
    EXPECT_EQ(state("$800,000.00"), 6000);
    EXPECT_EQ(state("$800,001.00"), 6000.01);
    EXPECT_EQ(state("$2,500,000.00"), 27250);
    EXPECT_EQ(state("$2,600,000.00"), 29500);
    desk.job.SetOption(LandMultiFamily, true);
    EXPECT_EQ(state("$300,000.00"), 2250);
    EXPECT_EQ(state("$2,600,000.00"), 19500);
    desk.job.SetOption(Commercial, true);
    EXPECT_EQ(state("$300,000.00"), 3750);
}

TEST(ClosingStatement, TheLabelsNameTheRateWhereItIsNotTheOrdinaryOne) {
    EXPECT_EQ(MunicipalConveyanceTax(300'000, "Hartford").rateText, " 0.5% - ");
    EXPECT_EQ(MunicipalConveyanceTax(300'000, "Stamford").rateText, " .35% - ");
    EXPECT_EQ(MunicipalConveyanceTax(1'000'000, "Stamford").rateText, " 0.5% - ");
    EXPECT_EQ(MunicipalConveyanceTax(300'000, "Avon").rateText, " - ");
    EXPECT_EQ(StateConveyanceTax(300'000, true, true).rateText, " 1.25% - ");
    EXPECT_EQ(StateConveyanceTax(300'000, false, true).rateText, " 0.75% - ");
    EXPECT_EQ(StateConveyanceTax(300'000, false, false).rateText, " - ");
}

TEST(ClosingStatement, ABinderAppliedComesOffTheCommissionsOnceAndOutOfTheDeposits) {
    StatementDesk desk;
    desk.With({{76, "$300,000.00"}, {77, "$1,000.00"}, {78, "$29,000.00"}, {170, ""}});
    desk.With({{86, "$9,000.00 - B"}, {88, "$6,000.00 - B"}});
    const auto applied = desk.Compute();
    EXPECT_EQ(applied.CommissionTotal, 14000);
    EXPECT_EQ(applied.TotalDeposits, 30000);
    EXPECT_EQ(applied.DepositsHeld, 29000);
    EXPECT_EQ(applied.FundsTotal, 299000);
    const auto kept = desk.With({{86, "$9,000.00 - N"}, {88, "$6,000.00"}}).Compute();
    EXPECT_EQ(kept.CommissionTotal, 15000);
    EXPECT_EQ(kept.FundsTotal, 300000);
    EXPECT_EQ(kept.NetResult, applied.NetResult);
    // No commission, no line, and nothing to take the binder from.
    EXPECT_EQ(desk.With({{86, " - B"}, {88, ""}}).Compute().CommissionTotal, 0);
}

TEST(ClosingStatement, PayoffsBeyondTheCashComeOutOfTheDepositsAndRaiseTheExemption) {
    StatementDesk desk;
    desk.With({{76, "$200,000.00"}, {78, "$20,000.00"}, {170, ""}, {100, "$185,000.00 - T"}});
    desk.With({{118, "$50,000.00 = R"}});
    desk.dialogs.SetAnswers({"No", "Yes"});
    const auto statement = desk.Compute();
    EXPECT_EQ(statement.BalanceOfCash, -5000);
    EXPECT_TRUE(statement.PayoffsExceedCash);
    EXPECT_EQ(statement.DepositsLine, 15000);
    EXPECT_EQ(statement.FundsTotal, 200000);
    EXPECT_EQ(statement.Municipal.tax, 500);
    EXPECT_EQ(statement.State.tax, 0);
    EXPECT_EQ(statement.ReleaseFees, 140);
    EXPECT_EQ(statement.NetResult, 200000 - 185000 - 500 - 140);

    const auto boxes = desk.dialogs.TakeShown();
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].text, "Is this sale exempt from Municipal taxation ?");
    EXPECT_EQ(boxes[1].text, "Is this sale exempt from State taxation ?");
    for (const auto& box : boxes) {
        EXPECT_EQ(box.title, " Conveyance Tax");
        EXPECT_EQ(box.defaultAnswer, "No");
        EXPECT_EQ(box.icon, DialogIcon::Question);
    }
}

TEST(ClosingStatement, ABalanceOfNothingIsNoShortfall) {
    StatementDesk desk;
    desk.job.SetOption(TwoPayoffs, true);
    desk.With({{76, "$300,000.30"}, {100, "$100,000.10"}, {118, "$200,000.20"}});
    EXPECT_FALSE(desk.Compute().PayoffsExceedCash);
    desk.dialogs.SetAnswers({"Yes", "Yes"});
    const auto exempt = desk.Compute(kTaxExemptMode);
    EXPECT_EQ(exempt.Municipal.tax + exempt.State.tax, 0);
    EXPECT_EQ(exempt.NetResult, 0);
    EXPECT_EQ(desk.dialogs.AnswersLeft(), 0u);
}

TEST(ClosingStatement, EachPayoffBearsTheReleaseFeeOfItsTag) {
    StatementDesk desk;
    const auto fee = [&desk](const char* first, const char* second) {
        return desk.With({{100, first}, {118, second}}).Compute().ReleaseFees;
    };
    desk.With({{76, "$900,000.00"}});
    EXPECT_EQ(fee("$1.00 - R", ""), 40);
    EXPECT_EQ(fee("$1.00 = R", ""), 40);
    EXPECT_EQ(fee("$1.00 = T", ""), 199);
    EXPECT_EQ(fee("$1.00 - T", ""), 100);
    EXPECT_EQ(fee("$1.00", ""), 0);
    EXPECT_EQ(fee("$1.00 - T", "$1.00 = T"), 299);

    // Cut for typing, the amount is the same, and the shown text still tells the fee.
    desk.job.SetValue(100, "$1.00");
    EXPECT_EQ(desk.Compute().ReleaseFees, 299);
    EXPECT_EQ(desk.Compute().entries.Payoff1, 1);
}

TEST(ClosingStatement, AWholeSaleAddsUpByHand) {
    StatementDesk desk;
    desk.job.SetOption(Condo, true);
    desk.In("Hartford", "8/15/2021");
    desk.With({{76, "$300,000.00"}, {77, "$1,000.00"}, {78, "$29,000.00"}, {170, "$7,300.00 - P"}});
    desk.With({{171, "$120.00 = U"}, {173, "$30.00"}, {174, "$200.00"}, {175, "$310.00 - P"}, {176, "POC"}});
    desk.With({{178, "$500.00"}, {179, "$250.00"}, {203, "$25.00"}, {86, "$15,000.00 - B"}});
    desk.With({{193, "$40.00 - Propane = P"}, {194, "$60.00 - Blinds = U"}, {195, "$5.00"}});
    desk.With({{100, "$150,000.00 - T"}, {10, "$900.00"}, {180, "$60.00"}, {181, "$25.00"}});
    desk.With({{182, "$75.00 - Smoke alarms"}, {183, "$10.00"}, {212, "$15.00 - Water-meter"}});
    const auto statement = desk.Compute();
    // 139 days of tax at 20.00, 17 days of charges at 10.00.
    EXPECT_EQ(statement.TotalCreditsSeller, 300000 + 2780 + 200 + 170 + 40);
    EXPECT_EQ(statement.TotalCreditsBuyer, 30000 + 120 + 30 + 500 + 250 + 60 + 5 + 25);
    EXPECT_EQ(statement.CashToClose, 272200);
    EXPECT_EQ(statement.BalanceOfCash, 122200);
    EXPECT_EQ(statement.FundsTotal, 301200);
    // Commission less the binder, both taxes, fees, three other disbursements, release tracking.
    EXPECT_EQ(statement.TotalDisbursements,
              150000 + 14000 + 900 + 1500 + 2250 + 60 + 25 + 75 + 10 + 15 + 100);
    EXPECT_EQ(statement.NetResult, 132265);
}

TEST(ClosingStatement, RoundCentsSettlesHalvesOnTheDecimalDigits) {
    for (const double half : {0.005, 1.005, 8.345, 750.005, 1234567.125})
        EXPECT_NEAR(RoundCents(half) - half, 0.005, 1e-9) << half;
    EXPECT_EQ(RoundCents(-1.005), -1.01);
    EXPECT_EQ(RoundCents(739.7260273972603), 739.73);
    EXPECT_THROW(RoundCents(1e308 * 10), std::overflow_error);
}

}  // namespace
}  // namespace quillmark::test
