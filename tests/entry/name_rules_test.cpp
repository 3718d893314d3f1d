#include <gtest/gtest.h>

#include "core/job.h"
#include "entry/name_rules.h"
#include "entry/smart_fields.h"

namespace quillmark {
namespace {

class NameRules : public ::testing::Test {
 protected:
    NameRules() { AttachSmartFields(job); }

    void Choose(int option, bool on) {
        job.SetOption(option, on);
        for (const int n : {21, 28, 59, 64}) job.RunChangeRule(n);
    }

    Job job;
};

TEST_F(NameRules, SplitPersonsAndJoinCouples) {
    job.SetField(21, "Mary Ann Jones");
    job.SetField(28, "Peter Jones Jr.");
    EXPECT_EQ(job.D(3021), "Jones");
    EXPECT_EQ(job.D(2021), "Mary Ann");
    EXPECT_EQ(job.D(3028), "Jones");
    EXPECT_EQ(job.D(1021), "Mary Ann Jones") << "one seller";

    Choose(TwoSellers, true);
    EXPECT_EQ(job.D(1021), "Mary Ann Jones and Peter Jones Jr.");
    job.SetField(28, "Paul Jones");
    EXPECT_EQ(job.D(1021), "Mary Ann Jones and Paul Jones") << "follows the second name";
    Choose(TwoSellers, false);
    job.SetField(28, "Ringo Jones");
    EXPECT_EQ(job.D(1021), "Mary Ann Jones") << "a second name does not count for one seller";
}

TEST_F(NameRules, AnEntityKeepsItsNameWhole) {
    job.SetOption(Person, false);
    Choose(Entity, true);
    job.SetField(21, "Acme Realty LLC");
    EXPECT_EQ(job.D(3021), "Acme Realty LLC");
    EXPECT_EQ(job.D(2021), "");
    job.SetOption(Entity, false);
    Choose(Person, true);
    EXPECT_EQ(job.D(3021), "LLC") << "the options decide anew";
}

TEST_F(NameRules, UnfilledNamesShowTheirOwnMarkers) {
    job.SetField(59, "Cher");
    EXPECT_EQ(job.D(3059), "Cher");
    EXPECT_EQ(job.D(2059), "");
    job.ClearField(59);
    EXPECT_EQ(job.D(3059), "[buyer 1 last name]");
    EXPECT_EQ(job.D(2059), "[buyer 1 first name]");
    Choose(TwoBuyers, true);
    EXPECT_EQ(job.D(1059), "[buyer 1 name] and [buyer 2 name]");
    job.SetField(12, "John Smith, Esq.");
    EXPECT_EQ(job.D(3012), "Smith");
    job.ClearField(12);
    EXPECT_EQ(job.D(3012), "[buyer atty last name]");
}

TEST_F(NameRules, RealtorsJoinOnlyWhenThereAreTwo) {
    job.SetField(85, "Hearth Realty");
    EXPECT_EQ(job.D(1085), "Hearth Realty");
    job.SetField(87, "Shoreline Homes");
    EXPECT_EQ(job.D(1085), "Hearth Realty and Shoreline Homes");
    job.ClearField(87);
    EXPECT_EQ(job.D(1085), "Hearth Realty");
}

TEST_F(NameRules, AttorneyGivesItsJurisNumberAway) {
    job.SetField(3, "Jane Roe / 412345");
    EXPECT_EQ(job.D(3), "Jane Roe");
    EXPECT_EQ(job.txtField(3).text, "Jane Roe");
    EXPECT_EQ(job.D(1003), "412345");
    job.RunChangeRule(3);
    EXPECT_EQ(job.D(1003), "412345") << "a second run keeps the number of the same name";
    job.SetField(3, "John Doe");
    EXPECT_EQ(job.D(1003), "") << "another attorney must not sign under her number";
}

TEST(SellerAttorney, TagIsThePlaceInTheChoiceList) {
    Job job;
    AttachSmartFields(job, {.choices = [](int) { return "Jane Roe/412345; Max Mustermann/498765"; }});
    job.SetField(3, "Max Mustermann/498765");
    EXPECT_EQ(job.txtField(3).tag, "1");
    job.SetField(3, "Nobody Known");
    EXPECT_EQ(job.txtField(3).tag, "0");
}

TEST_F(NameRules, OriginalTrusteeIsTrimmed) {
    job.SetField(204, "  Ann Lee ");
    EXPECT_EQ(job.D(204), "Ann Lee");
}

}  // namespace
}  // namespace quillmark
