#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "selection/option_clicks.h"
#include "session/job_list_desk.h"

namespace quillmark::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr const char* kFairHousing =
    " PA 16-16 Fair Housing Query|Is this sale for a Multi-Family Rental property ?";

TEST(Options, WhatASellerKindLeavesOutComesBackAtTheEnd) {
    Desk desk;
    desk.PickAll({"1099 Seller Certification", "Resolution / Corporate", "Deed / Warranty",
                  "Secretary’s Certificate / Corporate"});
    EXPECT_EQ(desk.Click(Entity), "");
    EXPECT_THAT(desk.List(), ElementsAre("Resolution / Corporate", "Deed / Warranty",
                                         "Secretary’s Certificate / Corporate"));
    EXPECT_FALSE(desk.screen.List1Enabled || desk.screen.List2Enabled);
    EXPECT_FALSE(desk.screen.job.optConf(Person));

    desk.Click(Person);
    EXPECT_THAT(desk.List(), ElementsAre("Deed / Warranty", "1099 Seller Certification"));
    desk.Click(Entity);
    EXPECT_THAT(desk.List(), ElementsAre("Deed / Warranty", "Resolution / Corporate",
                                         "Secretary’s Certificate / Corporate"));
}

TEST(Options, CommercialParksUntilAnotherPropertyTypeOrNone) {
    Desk desk;
    desk.PickAll({"Smoke Detector Affidavit", "1099 Seller Certification", "Closing Statement"});
    desk.Click(Commercial);
    EXPECT_THAT(desk.List(), ElementsAre("Closing Statement"));
    desk.Click(Condo);
    EXPECT_THAT(desk.List(),
                ElementsAre("Closing Statement", "Smoke Detector Affidavit", "1099 Seller Certification"));
    desk.Click(Commercial);
    desk.DoubleClick(Commercial);
    EXPECT_EQ(desk.List().size(), 3u);
    for (const int n : {Condo, Commercial, LandMultiFamily}) EXPECT_FALSE(desk.screen.job.optConf(n));
}

TEST(Options, NoPayoffsParksEveryPayoffDocument) {
    Desk desk;
    desk.PickAll({"Mortgage Payoff Notification", "Deed / Warranty", "SMS Cover Letter"});
    desk.DoubleClick(TwoPayoffs);
    EXPECT_THAT(desk.List(), ElementsAre("Deed / Warranty"));
    EXPECT_FALSE(desk.screen.job.optConf(OnePayoff) || desk.screen.job.optConf(TwoPayoffs));
    desk.ForceClick(TwoPayoffs);
    EXPECT_THAT(desk.List(),
                ElementsAre("Deed / Warranty", "Mortgage Payoff Notification", "SMS Cover Letter"));
}

TEST(Options, AnEleventhParkedDocumentIsRefusedWithNothingChanged) {
    Desk desk;
    for (int i = 0; i < 11; ++i) desk.Pick("Mortgage Payoff Notification");
    EXPECT_THROW(desk.DoubleClick(OnePayoff), ParkingFull);
    EXPECT_EQ(desk.List().size(), 11u);
    EXPECT_TRUE(desk.screen.job.optConf(OnePayoff) && desk.screen.List1Enabled);
    desk.Drop("Mortgage Payoff Notification");
    EXPECT_EQ(desk.DoubleClick(OnePayoff), "");
    EXPECT_THAT(desk.List(), IsEmpty());

    Desk crowded;
    for (int i = 0; i < 11; ++i) crowded.Pick("1099 Seller Certification");
    EXPECT_THROW(crowded.ForceClick(Entity), ParkingFull);
    EXPECT_TRUE(crowded.screen.job.optConf(Person));
    EXPECT_EQ(crowded.List().size(), 11u);
}

TEST(Options, ACapacityTakesTheOtherDeedsOffForGood) {
    Desk desk;
    desk.PickAll({"Deed / Trustee", "Owner's Affidavit"});
    desk.ForceClick(PowerOfAttorney);
    EXPECT_THAT(desk.List(), ElementsAre("Owner's Affidavit"));
    desk.ForceClick(EstateTrust);
    EXPECT_THAT(desk.List(), ElementsAre("Owner's Affidavit"));

    Desk estate;
    estate.PickAll({"Deed / Warranty", "Owner's Affidavit"});
    estate.Click(EstateTrust);
    EXPECT_THAT(estate.List(), ElementsAre("Owner's Affidavit"));
    estate.StartAnew("Jones");
    estate.PickAll({"Deed / Testamentary Trustee", "Owner's Affidavit"});
    estate.DoubleClick(EstateTrust);
    EXPECT_THAT(estate.List(), ElementsAre("Owner's Affidavit"));
    EXPECT_FALSE(estate.screen.job.optConf(EstateTrust));
}

TEST(Options, MultiFamilyAsksForTheFairHousingNoticeOnlyWithAContract) {
    Desk desk;
    desk.PickAll({"Closing Statement", "Contract / Valley Bar"});
    desk.Edit();
    desk.dialogs.SetAnswers({"No"});
    desk.Click(LandMultiFamily);
    EXPECT_THAT(desk.Boxes(), ElementsAre(kFairHousing));
    EXPECT_FALSE(HoldsLine("CHRO Fair Housing Notice", desk.screen));
    EXPECT_EQ(desk.screen.job.txtField(70).tag, "");

    desk.settings.documentAlerts = true;
    desk.dialogs.SetAnswers({"Yes", "OK"});
    desk.Click(LandMultiFamily);
    EXPECT_EQ(desk.Boxes().size(), 2u);
    EXPECT_EQ(desk.List().back(), "CHRO Fair Housing Notice");
    EXPECT_EQ(desk.screen.job.txtField(70).tag, "M");
    desk.Click(LandMultiFamily);
    EXPECT_THAT(desk.Boxes(), IsEmpty()) << "the notice is on the list";

    desk.DoubleClick(LandMultiFamily);
    EXPECT_FALSE(HoldsLine("CHRO Fair Housing Notice", desk.screen));
    EXPECT_EQ(desk.screen.job.txtField(70).tag, "");
    desk.screen.job.JobDocuments = "CHRO Fair Housing Notice:";
    desk.Click(LandMultiFamily);
    EXPECT_THAT(desk.Boxes(), IsEmpty()) << "the user took it off a saved job";

    Desk none;
    none.Pick("Closing Statement");
    none.Click(LandMultiFamily);
    EXPECT_THAT(none.Boxes(), IsEmpty());
}

TEST(Options, InterlocksHideAndBringBackInAnOpenedJobOnly) {
    Desk desk;
    desk.Pick("Owner's Affidavit");
    desk.Click(Entity);
    EXPECT_TRUE(desk.IsVisible(TwoSellers));
    EXPECT_THAT(desk.Click(TwoSellers), EndsWith(" is disabled"));

    desk.StartAnew("Jones");
    desk.Pick("Owner's Affidavit");
    desk.Edit();
    desk.Click(Entity);
    for (const int n : {TwoSellers, PowerOfAttorney, EstateTrust})
        EXPECT_THAT(desk.Click(n), EndsWith(" is hidden"));
    desk.Click(Person);
    EXPECT_EQ(desk.Click(TwoSellers), "") << "what was excluded can be chosen again";
    EXPECT_THAT(desk.Click(Entity), EndsWith(" is hidden"));
    EXPECT_THAT(desk.Click(EstateTrust), EndsWith(" is hidden"));
    EXPECT_EQ(desk.Click(PowerOfAttorney), "");
    desk.Click(OneSeller);
    EXPECT_FALSE(desk.IsVisible(Entity));
    desk.DoubleClick(PowerOfAttorney);
    EXPECT_EQ(desk.Click(Entity), "");
}

TEST(Options, ChangesCountOnceAJobCanBeSaved) {
    Desk desk;
    desk.Pick("Deed / Warranty");
    desk.Click(TwoBuyers);
    EXPECT_TRUE(desk.screen.cmdOpen.enabled);
    EXPECT_EQ(desk.screen.cmdOpen.caption, "SAVE");
    EXPECT_EQ(desk.screen.cmdOpen.tooltip, " save data only ");
    EXPECT_EQ(desk.screen.cmdCreate.caption, "CREATE\n+save");
    EXPECT_EQ(desk.screen.cmdNameAs.caption, "Name As");
    EXPECT_FALSE(desk.screen.cmdPrintFList.visible);

    desk.screen.cmdOpen.enabled = false;
    ShowCreate(CreateDoes::ReMake, desk.screen);
    desk.Click(OneBuyer);
    EXPECT_TRUE(desk.screen.cmdOpen.enabled);
    EXPECT_EQ(desk.screen.cmdCreate.caption, "Re-Make");

    for (const char* name : {"", "regency - "}) {
        desk.StartAnew(name);
        desk.Pick("Deed / Warranty");
        desk.Click(TwoBuyers);
        EXPECT_FALSE(desk.screen.cmdOpen.enabled) << name;
    }
    desk.StartAnew("Jones");
    desk.Pick("Deed / Warranty");
    desk.screen.txtJobName.locked = true;
    desk.Click(TwoBuyers);
    EXPECT_FALSE(desk.screen.cmdOpen.enabled) << "an opened job is saved by way of EDIT";
    desk.Edit();
    desk.DoubleClick(OnePayoff);
    EXPECT_TRUE(desk.screen.cmdOpen.enabled);
    EXPECT_EQ(desk.screen.cmdOpen.tooltip, " save changes ");
}

TEST(Options, CapacityTipsFollowTheNumberOfSellers) {
    Desk desk;
    desk.Pick("Owner's Affidavit");
    desk.Click(TwoSellers);
    EXPECT_EQ(desk.screen.ButtonOf(PowerOfAttorney).tooltip,
              " indicate if one of the sellers acting via POA (Dbl-Clk to clear) ");
    desk.Click(OneSeller);
    EXPECT_EQ(desk.screen.ButtonOf(EstateTrust).tooltip,
              " indicate if seller is Fiduciary, or acting via POA (Dbl-Clk to clear) ");
    EXPECT_TRUE(desk.screen.job.optConf(OneSeller));
}

TEST(Options, SellerKindRebuildsNamesAndTaxIdentifiers) {
    Desk desk;
    desk.Pick("Owner's Affidavit");
    desk.Edit();
    Names written;
    desk.screen.job.SetField(21, "Acme Homes");
    desk.screen.job.SetField(26, "12-3456789");
    desk.screen.job.SetField(32, "123-45-6789");
    desk.screen.job.SetChangeRule(
        [&](Job& job, int n) { written.push_back(std::to_string(n) + ":" + job.D(n)); });
    desk.Click(Person);
    EXPECT_EQ(desk.screen.job.D(26), "123456789");
    EXPECT_EQ(desk.screen.job.D(32), "123-45-6789") << "has the form of a person's already";
    EXPECT_THAT(written, ElementsAre("26:123456789", "21:", "21:Acme Homes"));
    desk.screen.job.SetField(26, "12-x");
    desk.Click(Entity);
    EXPECT_EQ(desk.screen.job.D(26), "12-x") << "what is no identifier stays as it was typed";
    EXPECT_EQ(desk.screen.job.D(32), "123456789");
}

TEST(Options, WithoutDocumentsAnOptionOnlySets) {
    Desk desk;
    EXPECT_THAT(desk.Click(OneSeller), EndsWith(" is disabled"));
    EXPECT_THAT(desk.Click(16), StartsWith("there is no option"));
    EXPECT_THAT(desk.DoubleClick(0), StartsWith("there is no option"));
    desk.ForceClick(TwoSellers);
    EXPECT_TRUE(desk.screen.List1Enabled);
    EXPECT_FALSE(desk.screen.job.optConf(OneSeller));
}

}  // namespace
}  // namespace quillmark::test
