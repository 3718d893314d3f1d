#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/atomic_file.h"
#include "session/job_list_desk.h"

namespace quillmark::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(JobList, ANewDeedDrivesOutTheOldOneAndItsAffidavitAndGoesToTheEnd) {
    Desk desk;
    desk.PickAll({"Deed / Trustee", "Schedule A"});
    EXPECT_THAT(desk.List(), ElementsAre("Deed / Trustee", "Trustee's Affidavit", "Schedule A"));
    EXPECT_TRUE(desk.screen.job.optConf(EstateTrust));

    desk.Pick("Deed / Warranty");
    EXPECT_THAT(desk.List(), ElementsAre("Schedule A", "Deed / Warranty"));
    EXPECT_FALSE(desk.screen.job.optConf(EstateTrust));
    EXPECT_TRUE(desk.screen.List1Enabled) << "the option's own rules close the choice of documents";

    desk.screen.job.SetOption(PowerOfAttorney, true);
    desk.Pick("Deed / Executor");
    EXPECT_TRUE(desk.screen.job.optConf(EstateTrust));
    EXPECT_FALSE(desk.screen.job.optConf(PowerOfAttorney)) << "one capacity at a time";
    EXPECT_THAT(desk.List(), ElementsAre("Schedule A", "Deed / Executor"));

    desk.Pick("Mortgage Deed / FNMA");
    EXPECT_TRUE(desk.screen.job.optConf(EstateTrust)) << "a mortgage deed is no deed of the seller";
}

TEST(JobList, AnSmsDocumentTakesThePlaceOfWhatItDrivesOutUnlessThatWasFirst) {
    Desk desk;
    desk.PickAll({"Schedule A", "Mortgage Payoff Transmittal", "Privacy Policy", "SMS Cover Letter"});
    EXPECT_THAT(desk.List(), ElementsAre("Schedule A", "SMS Cover Letter", "Privacy Policy"));
    desk.Pick("Closing Letter / New Haven Bar");
    EXPECT_THAT(desk.List(), ElementsAre("Schedule A", "Closing Letter / New Haven Bar", "Privacy Policy"));

    desk.Drop("Schedule A");
    desk.Pick("Mortgage Payoff Transmittal / SMS");
    EXPECT_THAT(desk.List(), ElementsAre("Privacy Policy", "Mortgage Payoff Transmittal / SMS"));
    desk.Pick("SMS Cover Letter");
    EXPECT_THAT(desk.List(),
                ElementsAre("Privacy Policy", "Mortgage Payoff Transmittal / SMS", "SMS Cover Letter"));
}

TEST(JobList, ContractsBringWhatAccompaniesThemInOrder) {
    Desk desk;
    desk.Pick("Contract / Bridgeport Bar");
    EXPECT_THAT(desk.List(),
                ElementsAre("Contract / Bridgeport Bar", "CFPB Addendum", "Closing Letter / Bridgeport Bar"));
    desk.PickAll({"Contract / Bridgeport Bar", "Contract Transmittal / Draft"});
    EXPECT_EQ(desk.List().size(), 5u) << "documents can be listed twice, what accompanies them is not";

    Desk before;
    before.clock = FixedClock(std::chrono::year(2015) / 10 / 2);
    before.Pick("Contract / Valley Bar");
    EXPECT_THAT(before.List(), ElementsAre("Contract / Valley Bar"));
    before.clock = FixedClock(std::chrono::year(2015) / 10 / 3);
    before.Pick("Contract / Valley Bar");
    EXPECT_THAT(before.List(),
                ElementsAre("Contract / Valley Bar", "Contract / Valley Bar", "CFPB Addendum"));
}

TEST(JobList, WhatTheUserTookOffASavedJobDoesNotComeBackButForTheAffidavit) {
    Desk desk;
    desk.screen.job.JobDocuments =
        "[ CFPB Addendum ]:Agreement Re: Mortgage Release:Seller's Engagement Letter:Trustee's Affidavit:";
    desk.PickAll({"Seller's Engagement Letter", "Deed / Testamentary Trustee"});
    EXPECT_THAT(desk.List(), ElementsAre("Seller's Engagement Letter", "Deed / Testamentary Trustee",
                                         "Trustee's Affidavit"));
    desk.Pick("Contract / Greenwich Bar");
    EXPECT_TRUE(HoldsLine("CFPB Addendum", desk.screen)) << "the firm's own form is another document";

    desk.Drop("CFPB Addendum");
    desk.screen.job.JobDocuments += "CFPB Addendum:";
    desk.Pick("Contract / Danbury Bar");
    EXPECT_FALSE(HoldsLine("CFPB Addendum", desk.screen));
}

TEST(JobList, AlertsTellOfAddedDocumentsOnlyWhereTheyAreWanted) {
    Desk desk;
    desk.settings.documentAlerts = true;
    desk.PickAll({"Seller's Engagement Letter", "Contract / Bridgeport Bar", "Deed / Trustee"});
    const std::string added = " and has been automatically added to the job list.";
    EXPECT_THAT(
        desk.Boxes(),
        ElementsAre("  ALERT|A Privacy Policy Notice is required for every transaction" + added,
                    "  ALERT|A CFPB Closing-Disclosure Addendum must accompany the contract" + added,
                    "  ALERT|A Closing Letter is required for the Bridgeport Bar" + added,
                    "  ALERT|A Trustee's Affidavit of Facts is required for this transaction" + added));
    desk.StartAnew("Jones");
    desk.settings.documentAlerts = false;
    desk.Pick("Seller's Engagement Letter");
    EXPECT_THAT(desk.Boxes(), IsEmpty());
    EXPECT_TRUE(HoldsLine("Privacy Policy", desk.screen));
}

TEST(JobList, AJobWithoutANameIsMarkedAndCanBeCreated) {
    Desk desk("");
    desk.Pick("Deed / Warranty");
    EXPECT_EQ(desk.screen.txtJobName.text, "<< NO SAVE >>");
    EXPECT_FALSE(desk.screen.txtJobName.IsSaveable());
    EXPECT_TRUE(desk.screen.cmdCreate.enabled);
    EXPECT_FALSE(desk.screen.cmdOpen.enabled);
    EXPECT_TRUE(desk.IsVisible(TwoSellers));

    desk.Pick("Deed / Quitclaim");
    EXPECT_FALSE(desk.IsVisible(TwoSellers)) << "a line was removed and there is no name";
    EXPECT_EQ(desk.Click(TwoSellers), "option 2 is hidden");
}

TEST(JobList, DroppingTakesOneLineAndTheLastOneClosesTheJob) {
    Desk desk;
    desk.PickAll({"Deed / Trustee", "Contract / Bridgeport Bar", "Closing Statement"});
    EXPECT_EQ(desk.screen.propertyTypeFrame, PropertyTypeFrame::OverPayoffs);
    EXPECT_TRUE(desk.IsVisible(LandMultiFamily) && desk.IsEnabled(LandMultiFamily));
    EXPECT_EQ(desk.Drop("Deed / Trustee"), "");
    EXPECT_TRUE(HoldsLine("Trustee's Affidavit", desk.screen));
    EXPECT_TRUE(desk.IsVisible(OneBuyer));
    EXPECT_THAT(desk.Drop("Deed / Trustee"), HasSubstr("has no line"));

    while (!desk.screen.List2.empty()) desk.Drop(desk.List().front());
    EXPECT_FALSE(desk.IsVisible(OneBuyer));
    EXPECT_FALSE(desk.screen.cmdCreate.enabled || desk.screen.cmdPrintFList.visible);
    EXPECT_STREQ(desk.screen.List2Tooltip(), "");
    EXPECT_EQ(desk.screen.picInfo, " Double-Click documents to add them to the job list");
}

TEST(JobList, DroppingInAJobWithoutANameLeavesOptionsHiddenAndFollowsTheStatement) {
    Desk desk("");
    desk.PickAll({"Closing Statement", "Schedule A", "Fax Cover Sheet / Buyer Atty"});
    desk.screen.job.SetOption(LandMultiFamily, true);
    desk.Drop("Schedule A");
    EXPECT_FALSE(desk.IsVisible(OneBuyer));
    EXPECT_EQ(desk.screen.propertyTypeFrame, PropertyTypeFrame::Wide);
    EXPECT_TRUE(desk.screen.job.optConf(LandMultiFamily));
    desk.Drop("Closing Statement");
    EXPECT_FALSE(desk.screen.job.optConf(LandMultiFamily));
}

TEST(JobList, LegalSizeFollowsTheLinesAndNeverALetterOnLetterhead) {
    Desk desk;
    desk.PickAll({"Form Letter / Buyer Atty", "Schedule A", "Schedule A"});
    EXPECT_EQ(desk.Legal({"Schedule A", "Form Letter / Buyer Atty"}), "");
    EXPECT_EQ(desk.screen.LegalList, "Form Letter / Buyer Atty,Schedule A,");
    EXPECT_NE(desk.Legal({"Schedule A", "Schedule A", "Schedule A"}), "");
    EXPECT_EQ(desk.screen.LegalList, "Form Letter / Buyer Atty,Schedule A,");

    desk.screen.job.SetOption(Letterhead, true);
    desk.Pick("FILE SUMMARY SHEET");
    EXPECT_EQ(desk.screen.LegalList, "Schedule A,");
    EXPECT_EQ(desk.Legal({"Schedule A", "Schedule A"}), "");
    desk.Drop("Schedule A");
    EXPECT_EQ(desk.screen.LegalList, "Schedule A,") << "the other one stays selected";

    desk.PickAll({"Mortgage Payoff Transmittal", "CFPB Addendum"});
    desk.Legal({"CFPB Addendum"});
    desk.Pick("SMS Cover Letter");
    EXPECT_EQ(desk.screen.LegalList, "") << "a pick leaves the last line unselected";
    desk.Click(Letterhead);
    EXPECT_EQ(desk.Legal({}), "the job list is closed");
}

TEST(JobList, WhatTheScreenDoesNotAllowChangesNothing) {
    Desk desk("");
    EXPECT_THAT(desk.Pick("Deed / Nobody"), HasSubstr("has no line"));
    EXPECT_EQ(desk.screen.txtJobName.text, "");
    desk.screen.List1Enabled = false;
    EXPECT_EQ(desk.Pick("Deed / Warranty"), "the choice of documents is closed");
    EXPECT_THAT(desk.List(), IsEmpty());
}

TEST(JobList, APackageReplacesTheListAndBringsNothingElse) {
    Desk desk;
    SavePackage(desk.scratch.path(), {"CONTRACT", {"Contract / Bridgeport Bar", "Notice Of Lease"}}, {});
    desk.documents.Offer();
    desk.PickAll({"Deed / Warranty", "< CONTRACT >"});
    EXPECT_THAT(desk.List(), ElementsAre("Contract / Bridgeport Bar", "Notice Of Lease"));

    std::filesystem::remove(desk.scratch / "package.def");
    EXPECT_THROW(desk.Pick("< CONTRACT >"), FileError);
    EXPECT_EQ(desk.List().size(), 2u) << "the list is not lost with the file";
    SavePackage(desk.scratch.path(), {"OTHER", {"Schedule A"}}, {});
    EXPECT_THROW(desk.Pick("< CONTRACT >"), PackageError);
    EXPECT_EQ(desk.List().size(), 2u);
}

TEST(JobList, TheSellersPackageHasTheDeedOfTheFiduciary) {
    Desk desk;
    const std::string name = "STANDARD SELLER'S PACKAGE";
    SavePackage(desk.scratch.path(), {name, {"Schedule A", "Deed / Quitclaim", "Deed / Warranty"}}, {});
    SavePackage(desk.scratch.path(), {"NO DEED", {"Schedule A"}}, {});
    desk.documents.Offer();
    desk.Pick("< STANDARD SELLER'S PACKAGE >");
    EXPECT_THAT(desk.List(), ElementsAre("Schedule A", "Deed / Quitclaim", "Deed / Warranty"));

    const auto pickFor = [&](std::string_view capacity) {
        desk.screen.job.SetOption(EstateTrust, true);
        desk.screen.job.SetField(209, capacity);
        desk.Pick("< STANDARD SELLER'S PACKAGE >");
        return desk.List();
    };
    EXPECT_THAT(pickFor("Trustee"),
                ElementsAre("Schedule A", "Deed / Trustee", "Trustee's Affidavit", "Deed / Warranty"));
    EXPECT_THAT(pickFor("Executor"), ElementsAre("Schedule A", "Deed / Executor", "Deed / Warranty"));
    EXPECT_THAT(pickFor("[fiduciary type]"), ElementsAre("Schedule A", "Deed / Warranty"));
    desk.Pick("< NO DEED >");
    EXPECT_THAT(desk.List(), ElementsAre("Schedule A"));
}

TEST(JobList, TheFirmsOwnFormsAreOfferedBehindTheCatalogue) {
    Desk desk;
    for (const char* file : {"Lease.docx", "lease rider.doc", "Lease.inf", "userfields.lst", "~$Lease.docx"})
        WriteBytes(desk.folders.CustomFormsFolder / file, "");
    WriteBytes(desk.scratch / "package.def", "\"<00>EMPTY\"\r\n");
    desk.documents.Offer();
    ASSERT_EQ(desk.screen.List1.size(), 1 + DocumentCatalogue().size() + 2);
    EXPECT_EQ(desk.screen.List1.front(), "< EMPTY >");
    EXPECT_THAT(Names(desk.screen.List1.end() - 2, desk.screen.List1.end()),
                ElementsAre("[ Lease ]", "[ lease rider ]"));
    desk.Pick("[ Lease ]");
    EXPECT_THAT(desk.List(), ElementsAre("[ Lease ]"));
}

}  // namespace
}  // namespace quillmark::test
