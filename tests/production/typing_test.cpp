#include "production/kit/typing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "production/builders/builder_list.h"
#include "production/engine_desk.h"
#include "production/kit/job_values.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using namespace field;
using testing::ElementsAre;

TEST(WordSession, SetsTheDefaultPageInOrder) {
    EngineDesk desk(EngineDesk::Bare{});
    desk.session.WordApp.Options.CheckSpellingAsYouType = false;
    desk.session.WordApp.Options.CheckGrammarAsYouType = false;
    desk.operations.clear();
    SetUpWordSession(desk.session);
    EXPECT_THAT(
        desk.operations,
        ElementsAre("Application.Options.CheckSpellingAsYouType -> False",  //
                    "Application.Options.CheckGrammarAsYouType -> False",   //
                    "Documents.Add",                                        //
                    "ActiveDocument.DefaultTabStop = 18",                   //
                    "ActiveDocument.PageSetup.LeftMargin = 45",             //
                    "ActiveDocument.PageSetup.RightMargin = 45",            //
                    "ActiveDocument.PageSetup.TopMargin = 45",              //
                    "ActiveDocument.PageSetup.BottomMargin = 45",           //
                    "ActiveDocument.PageSetup.HeaderDistance = 36",         //
                    "ActiveDocument.PageSetup.FooterDistance = 18",         //
                    "Selection.Paragraphs.SpaceAfter = 0",                  //
                    "Selection.Paragraphs.LineSpacing = 12",                //
                    "ActiveDocument.Styles(\"List Paragraph\").NoSpaceBetweenParagraphsOfSameStyle = False",
                    "ActiveDocument.ListTemplates.Add OutlineNumbered:=False",               //
                    "ActiveDocument.ListTemplates(1).ListLevels(1).NumberStyle = 0",         //
                    "ActiveDocument.ListTemplates(1).ListLevels(1).NumberFormat = \"%1.\"",  //
                    "ActiveDocument.ListTemplates.Add OutlineNumbered:=True",                //
                    "ActiveDocument.ListTemplates(2).ListLevels(1).NumberStyle = 0",         //
                    "ActiveDocument.ListTemplates(2).ListLevels(2).NumberStyle = 4",         //
                    "ActiveDocument.ListTemplates(2).ListLevels(3).NumberStyle = 2",         //
                    "ActiveDocument.ListTemplates(2).ListLevels(1).NumberFormat = \"%1.\"",  //
                    "ActiveDocument.ListTemplates(2).ListLevels(2).NumberFormat = \"%2.\"",  //
                    "ActiveDocument.ListTemplates(2).ListLevels(3).NumberFormat = \"%3.\""));
}

TEST(WordSession, PutsBackTheCheckersThatWereOn) {
    EngineDesk desk(EngineDesk::Bare{});
    WordSession& session = desk.session;
    session.WordApp.Options.CheckGrammarAsYouType = false;
    SetUpWordSession(session);
    EXPECT_TRUE(session.SpellingWasOn);
    EXPECT_FALSE(session.GrammarWasOn);
    EXPECT_FALSE(session.WordApp.Options.CheckSpellingAsYouType);
    RestoreCheckers(session);
    EXPECT_TRUE(session.WordApp.Options.CheckSpellingAsYouType);
    EXPECT_FALSE(session.WordApp.Options.CheckGrammarAsYouType);
}

TEST(WordSession, GoesOnWithoutTheStyleThatAnOldWordLacks) {
    EngineDesk desk(EngineDesk::Bare{});
    desk.Refuse("ActiveDocument.Styles(\"List Paragraph\")", word::error::kNoSuchElement);
    SetUpWordSession(desk.session);
    EXPECT_TRUE(desk.session.ListTemplateOutline);

    desk.Refuse("ActiveDocument.Styles(\"List Paragraph\")", word::error::kServerGone);
    EXPECT_THROW(SetUpWordSession(desk.session), word::AutomationError);
}

TEST(Typist, BoldInsideABoldRunEndsIt) {
    EngineDesk desk;
    desk.type.Bold(true);
    desk.type.TypeBold("a");
    desk.type.Text("b");
    EXPECT_TRUE(desk.Reading().ends_with("*a*b\n")) << desk.Reading();
}

TEST(Typist, LineEndsOfAValueAreParagraphs) {
    EngineDesk desk;
    desk.type.Text("a\r\nb\nc\rd\n\ne", "\r");
    EXPECT_EQ(desk.Text(), "a\nb\nc\nd\n\ne\n\n");
}

TEST(Typist, ListEndsWithTheIndentsOfTheText) {
    EngineDesk desk;
    desk.type.Indents(0.5);
    desk.operations.clear();
    desk.type.NumberedList({"First", "Second"});
    EXPECT_THAT(desk.operations,
                ElementsAre("Selection.Range.ListFormat.ApplyListTemplate ActiveDocument.ListTemplates(1)",
                            "Selection.TypeText \"First\\v\\r\"", "Selection.TypeText \"Second\\v\\r\"",
                            "Selection.Range.ListFormat.RemoveNumbers",
                            "Selection.Paragraphs.LeftIndent = 36", "Selection.Paragraphs.RightIndent = 36"));
}

TEST(Typist, OutlineGoesInAndOut) {
    EngineDesk desk;
    desk.type.BeginOutline();
    desk.type.Text("AFFIDAVITS.");
    desk.type.EndItem();
    desk.type.ListIn();
    desk.type.Text("Verifying");
    desk.type.EndItem();
    desk.type.ListOut();
    desk.type.EndList();
    EXPECT_THAT(
        desk.operations,
        ElementsAre("Selection.Range.ListFormat.ApplyListTemplate ActiveDocument.ListTemplates(2)",
                    "Selection.TypeText \"AFFIDAVITS.\"", "Selection.TypeText \"\\v\\r\"",
                    "Selection.Range.ListFormat.ListIndent",  //
                    "Selection.TypeText \"Verifying\"", "Selection.TypeText \"\\v\\r\"",
                    "Selection.Range.ListFormat.ListOutdent", "Selection.Range.ListFormat.RemoveNumbers",
                    "Selection.Paragraphs.LeftIndent = 0", "Selection.Paragraphs.RightIndent = 0"));
}

TEST(Typist, FormFieldsStandAtTheInsertionPoint) {
    EngineDesk desk;
    desk.type.CheckBox(true);
    desk.type.TextField("(click here & enter text)");
    EXPECT_THAT(desk.operations,
                ElementsAre("ActiveDocument.FormFields.Add Selection.Range, 71",
                            "ActiveDocument.FormFields(1).CheckBox.Value = True",
                            "ActiveDocument.FormFields.Add Selection.Range, 70",
                            "ActiveDocument.FormFields(2).Result = \"(click here & enter text)\""));
}

TEST(Passages, JuratIsSwornBeforeTheSellersAttorney) {
    EngineDesk desk;
    const Job job = SampleDeal();
    TypeJurat(JobValues(job), desk.type);
    TypeNotary(JobValues(job), desk.type);
    EXPECT_EQ(desk.Text(),
              "Subscribed and sworn to before me this 2nd day of May, 2024.\n\n\n\t" + SignatureRule() +
                  "\n\tRuth Ann Penfield\n\tNotary Public/Commissioner of the Superior Court\n\n");
}

std::string Grantors(const Job& job, Names names) {
    EngineDesk desk;
    TypeGrantorPhrase(JobValues(job), desk.type, names);
    return desk.Reading();
}

std::string Grantees(const Job& job, Tenancy tenancy) {
    EngineDesk desk;
    TypeGranteePhrase(JobValues(job), desk.type, Names::Plain, tenancy);
    return desk.Text();
}

TEST(Phrases, NamesAreBoldOnRequest) {
    Job job = SampleDeal();
    SellersAtOneAddress(job);
    EXPECT_NE(Grantors(job, Names::Bold)
                  .find("*Walter B. Hollis and June Hollis* both of 14 Chestnut Lane, Branford"),
              std::string::npos);
    EXPECT_EQ(Grantors(job, Names::Plain).find('*'), std::string::npos);
}

TEST(Phrases, CapacityOfOneFiduciarySeller) {
    Job job = SampleDeal();
    SellerIsFiduciary(job, "Testamentary Trustee");
    EXPECT_NE(Grantors(job, Names::Plain)
                  .find("06405, duly qualified and authorized Trustee of the Hollis Family 2005 Trust\n"),
              std::string::npos);
    job.SetField(FiduciaryType, "Conservator");
    EXPECT_NE(
        Grantors(job, Names::Plain).find("Conservator of the Estate of Lionel Hollis, an incapable person\n"),
        std::string::npos);
    SellersAtOneAddress(job);
    EXPECT_EQ(Grantors(job, Names::Plain).find("qualified"), std::string::npos)
        << "two sellers act for themselves";
}

TEST(Phrases, TenancyOfTwoBuyersOnly) {
    Job job = SampleDeal();
    EXPECT_EQ(Grantees(job, Tenancy::Said).find(" AS "), std::string::npos);
    BuyersApart(job);
    EXPECT_EQ(Grantees(job, Tenancy::Unsaid).find(" AS "), std::string::npos);
    EXPECT_EQ(
        Grantees(job, Tenancy::Said),
        "Priya Castellan of 8 Harbor View, Unit 3, Clinton, CT 06413 and Omar Castellan of 8 Harborview, Unit "
        "3, Clinton, CT 06413 AS JOINT TENANTS WITH RIGHTS OF SURVIVORSHIP\n");
    job.SetField(TenancyType, "JOINT TENANTS");
    EXPECT_TRUE(Grantees(job, Tenancy::Said).ends_with(" AS JOINT TENANTS\n"));
    job.SetField(TenancyType, "as partners");
    EXPECT_TRUE(Grantees(job, Tenancy::Said).ends_with(" AS [tenancy type]\n"));
}

}  // namespace
}  // namespace quillmark::test
