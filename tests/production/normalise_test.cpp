#include "production/run/normalise.h"

#include <gtest/gtest.h>

#include "core/fields.h"
#include "entry/smart_fields.h"

namespace quillmark::test {
namespace {

using namespace field;
using namespace std::chrono;

constexpr year_month_day kToday = 2025y / April / 6;

class Normalising : public ::testing::Test {
 protected:
    Normalising() { AttachSmartFields(job); }
    Job job;
};

TEST_F(Normalising, AnUndatedJobIsDatedToday) {
    NormalisedValues values(job, kToday);
    EXPECT_EQ(job.D(DocumentDate), "April 06, 2025");
    EXPECT_EQ(job.D(1001), "April");
    EXPECT_EQ(job.D(2001), "6th");
    EXPECT_EQ(job.D(3001), "2025");
    EXPECT_EQ(job.txtField(DocumentDate).text, "[document date]") << "the grid stays as it is";
}

TEST_F(Normalising, ADatedJobKeepsItsDate) {
    job.SetField(DocumentDate, "May ___, 2025");
    NormalisedValues values(job, kToday);
    EXPECT_EQ(job.D(DocumentDate), "May ___, 2025");
    EXPECT_EQ(job.D(2001), "___");
}

TEST_F(Normalising, WhatIsOnlyForTypingIsPutBack) {
    job.SetField(BuyerAtty, "Tobias Lang");
    job.SetField(Payoff1Amount, "250000 - p");
    job.SetField(Payoff2Amount, "1000");
    job.SetValue(SellerAtty, "Ruth Penfield/412345");
    NormalisedValues values(job, kToday);
    EXPECT_EQ(job.D(BuyerLawfirm), "Tobias Lang");
    EXPECT_EQ(job.D(ClosingTime), "________");
    EXPECT_EQ(job.D(Payoff1Amount), "$250,000.00");
    EXPECT_EQ(job.D(Payoff2Amount), "$1,000.00");
    EXPECT_EQ(job.D(SellerAtty), "Ruth Penfield");

    values.Undo();
    EXPECT_EQ(job.D(BuyerLawfirm), "[buyer lawfirm]");
    EXPECT_EQ(job.D(ClosingTime), "[closing time]");
    EXPECT_EQ(job.D(Payoff1Amount), "$250,000.00 - P");
    EXPECT_EQ(job.D(SellerAtty), "Ruth Penfield/412345");
}

TEST_F(Normalising, WhatTheUserTypedSurvives) {
    job.SetField(BuyerAtty, "Tobias Lang");
    job.SetField(BuyerLawfirm, "Tobias Lang");
    job.SetField(ClosingTime, "________");
    job.SetField(Witness1, "Ann Lee");
    NormalisedValues values(job, kToday);
    values.Undo();
    EXPECT_EQ(job.D(BuyerLawfirm), "Tobias Lang") << "a firm that bears its attorney's name is not lost";
    EXPECT_EQ(job.D(ClosingTime), "________");
    EXPECT_EQ(job.D(Witness1), "Ann Lee");
}

TEST_F(Normalising, SomeHolesAreBlanksOnPaper) {
    NormalisedValues values(job, kToday);
    EXPECT_EQ(job.D(Witness1), "");
    EXPECT_EQ(job.D(Seller1TaxId), "");
    EXPECT_EQ(job.D(Seller1Name), "[seller 1 name]") << "all others stay visible";
    EXPECT_EQ(job.D(RefiMaturityDate), "[refi maturity date]") << "no document asks for it";
    job.txtField(RefiMaturityDate).relevant = true;
    NormalisedValues again(job, kToday);
    EXPECT_EQ(job.D(RefiMaturityDate), "________________");
}

TEST_F(Normalising, ThePrincipalIsTheFirstSellerUnlessNamed) {
    job.SetField(Seller1Name, "Ann Lee");
    job.SetValue(PrincipalOfPower, "");
    NormalisedValues noDocumentNamesHim(job, kToday);
    EXPECT_EQ(job.D(PrincipalOfPower), "");
    job.SetValue(PrincipalOfPower, "[principal of power]");
    NormalisedValues singleSeller(job, kToday);
    EXPECT_EQ(job.D(PrincipalOfPower), "Ann Lee");
    job.SetField(PrincipalOfPower, "Bob Lee");
    job.txtField(PrincipalOfPower).relevant = true;
    NormalisedValues named(job, kToday);
    EXPECT_EQ(job.D(PrincipalOfPower), "Bob Lee");
}

}  // namespace
}  // namespace quillmark::test
