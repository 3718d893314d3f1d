#include "word/trace.h"

#include <gtest/gtest.h>

#include "word/scripted_object.h"
#include "word/word.h"

namespace quillmark::word {
namespace {

class TraceTest : public ::testing::Test {
 protected:
    using Lines = std::vector<std::string>;

    /// The lines since the last time.
    Lines Take() { return std::exchange(lines_, {}); }

    test::ScriptedPtr fake_ = test::ScriptedApplication();
    Lines lines_;
    Application word_{Trace(fake_, [this](std::string_view line) { lines_.emplace_back(line); })};
};

TEST_F(TraceTest, WritesTheSessionSetUpInTheModelsOwnTerms) {
    fake_->Child("Options")->Set("CheckSpellingAsYouType", true);
    if (word_.Options.CheckSpellingAsYouType) word_.Options.CheckSpellingAsYouType = false;
    Document document = word_.Documents.Add();
    document.DefaultTabStop = InchesToPoints(0.25);
    document.PageSetup.LeftMargin = 45;
    word_.Selection.Paragraphs.SpaceAfter = 0;
    document.Styles("List Paragraph").NoSpaceBetweenParagraphsOfSameStyle = false;
    const ListTemplate simple = document.ListTemplates.Add(false);
    const ListTemplate outline = document.ListTemplates.Add(true);
    simple.ListLevels(1).NumberFormat = "%1.";
    outline.ListLevels(3).NumberStyle = NumberLowercaseRoman;
    word_.Selection.ListFormat().ApplyListTemplate(outline);
    EXPECT_EQ(Take(),
              (Lines{
                  "Application.Options.CheckSpellingAsYouType -> True",
                  "Application.Options.CheckSpellingAsYouType = False",
                  "Documents.Add",
                  "ActiveDocument.DefaultTabStop = 18",
                  "ActiveDocument.PageSetup.LeftMargin = 45",
                  "Selection.Paragraphs.SpaceAfter = 0",
                  "ActiveDocument.Styles(\"List Paragraph\").NoSpaceBetweenParagraphsOfSameStyle = False",
                  "ActiveDocument.ListTemplates.Add OutlineNumbered:=False",
                  "ActiveDocument.ListTemplates.Add OutlineNumbered:=True",
                  "ActiveDocument.ListTemplates(1).ListLevels(1).NumberFormat = \"%1.\"",
                  "ActiveDocument.ListTemplates(2).ListLevels(3).NumberStyle = 2",
                  "Selection.Range.ListFormat.ApplyListTemplate ActiveDocument.ListTemplates(2)",
              }));
}

TEST_F(TraceTest, EscapesTextsAndWritesPlainDecimals) {
    word_.Selection.TypeText("\tSay \"yes\"\v\r\n C:\\deeds § 47-36a");
    word_.Selection.Paragraphs.TabStops.Add(InchesToPoints(0.7));
    word_.Selection.Paragraphs.TabStops.Add(InchesToPoints(3.875));
    word_.Selection.Paragraphs.TabStops.Clear(InchesToPoints(3.875));
    word_.Selection.Paragraphs.LeftIndent = -0.0;
    word_.Selection.Font.Size = 1e7;
    EXPECT_EQ(Take(), (Lines{
                          R"(Selection.TypeText "\tSay \"yes\"\v\r\n C:\\deeds § 47-36a")",
                          "Selection.Paragraphs.TabStops.Add 50.4",
                          "Selection.Paragraphs.TabStops.Add 279",
                          "Selection.Paragraphs.TabStops(279).Clear",
                          "Selection.Paragraphs.LeftIndent = 0",
                          "Selection.Font.Size = 10000000",
                      }));
}

TEST_F(TraceTest, ARangeIsKeptOnceSomethingElseWasDoneSinceItWasTaken) {
    Document document = word_.Documents.Add();
    const Range unused = word_.Selection.Range();
    const Range first = word_.Selection.Range();
    word_.Selection.TypeText("one");
    document.FormFields.Add(word_.Selection.Range(), FieldFormCheckBox);
    const Range second = word_.Selection.Range();
    second.InsertBreak(SectionBreakNextPage);
    second.InsertAfter("x");
    Take();

    word_.Selection.TypeText("two");
    second.ListFormat.RemoveNumbers();
    const Range copied = first;
    copied.InsertBreak(SectionBreakNextPage);
    document.FormFields.Add(second, FieldFormCheckBox);
    EXPECT_EQ(Take(), (Lines{
                          "Selection.TypeText \"two\"",
                          "Range(1).ListFormat.RemoveNumbers",
                          "Range(2).InsertBreak 2",
                          "ActiveDocument.FormFields.Add Range(1), 71",
                      }));
}

TEST_F(TraceTest, ARangeForABreakIsKeptEvenWhereNothingWasTyped) {
    const Range empty = word_.Selection.Range();
    empty.InsertBreak(SectionBreakNextPage);
    word_.Selection.InsertBreak(PageBreak);
    EXPECT_EQ(Take(), (Lines{"Range(1).InsertBreak 2", "Selection.InsertBreak 7"}));
}

TEST_F(TraceTest, ARangeUsedAtOnceIsTheSelections) {
    Document document = word_.Documents.Add();
    const Range range = word_.Selection.Range();
    range.Font.Bold = true;
    document.FormFields.Add(range, FieldFormCheckBox).CheckBox.Value = true;
    const Table table = document.Tables.Add(word_.Selection.Range(), 2, 3);
    const Range cell = table.Cell(1, 2).Range;
    word_.Selection.TypeText("between");
    cell.Text = "Yes";
    table.Cell(1, 1).Merge(table.Cell(1, 2));
    EXPECT_EQ(Take(),
              (Lines{
                  "Documents.Add",
                  "Selection.Range.Font.Bold = True",
                  "ActiveDocument.FormFields.Add Selection.Range, 71",
                  "ActiveDocument.FormFields(1).CheckBox.Value = True",
                  "ActiveDocument.Tables.Add Selection.Range, 2, 3",
                  "Selection.TypeText \"between\"",
                  "ActiveDocument.Tables(1).Cell(1, 2).Range.Text = \"Yes\"",
                  "ActiveDocument.Tables(1).Cell(1, 1).Merge MergeTo:=ActiveDocument.Tables(1).Cell(1, 2)",
              }));
}

TEST_F(TraceTest, DocumentsAreNamedByWhichIsActive) {
    Document deed = word_.Documents.Add();
    const Document form = word_.Documents.Open("C:\\forms\\lease.docx");
    fake_->Child("Documents")
        ->Child("Item,2")
        ->Child("Content")
        ->Child("Find")
        ->Answers("Execute", [](Arguments) { return Value(true); });
    EXPECT_TRUE(form.Content.Find.ReplaceAll("[seller 1 name]", "Ann Lee"));
    EXPECT_TRUE(word_.Documents(2).Content.Find.Execute("^b", FindContinue));
    deed.DefaultTabStop = 36;
    deed.Select();
    form.Close(false);
    word_.ActiveDocument.ActiveWindow.View.Zoom.PageFit = PageFitBestFit;
    deed.Protect(AllowOnlyFormFields, true);
    deed.Close(false);
    EXPECT_EQ(Take(), (Lines{
                          "Documents.Add",
                          R"(Documents.Open "C:\\forms\\lease.docx")",
                          "ActiveDocument.Content.Find.Execute FindText:=\"[seller 1 name]\", "
                          "ReplaceWith:=\"Ann Lee\", Replace:=2",
                          "Documents(2).Content.Find.Execute FindText:=\"^b\", Wrap:=1",
                          "Documents(2).DefaultTabStop = 36",
                          "Documents(2).Select",
                          "Documents(1).Close SaveChanges:=False",
                          "ActiveDocument.ActiveWindow.View.Zoom.PageFit = 2",
                          "ActiveDocument.Protect 2, True",
                          "ActiveDocument.Close SaveChanges:=False",
                      }));
}

TEST_F(TraceTest, ARefusalIsMarkedAndGoesOnToTheCaller) {
    const Document document = word_.Documents.Add();
    const auto made = fake_->Child("Documents")->Child("Item,1");
    made->Child("Styles")->Refuses("Item", error::kNoSuchElement, "There is no such style.");
    made->Refuses("SaveAs", error::kPermissionDenied, "The file \"a\" is open.\nClose it.");
    fake_->Child("Selection")->Child("Font")->Refuses("Size", error::kBadValue, "Out of range");
    Take();
    EXPECT_THROW(document.Styles("List Paragraph"), AutomationError);
    EXPECT_THROW(document.SaveAs("a"), AutomationError);
    EXPECT_THROW(word_.Selection.Font.Size = 9999, AutomationError);
    EXPECT_EQ(Take(), (Lines{
                          R"(ActiveDocument.Styles("List Paragraph") ! 5941 "There is no such style.")",
                          R"(ActiveDocument.SaveAs "a" ! 70 "The file \"a\" is open.\nClose it.")",
                          R"(Selection.Font.Size = 9999 ! 4608 "Out of range")",
                      }));
}

TEST_F(TraceTest, TheApplicationsOwnMembersBearItsName) {
    fake_->Set("Version", "16.0");
    word_.Visible = true;
    word_.Activate();
    word_.WindowState = WindowMaximised;
    EXPECT_EQ(word_.Version(), 16);
    word_.Quit();
    EXPECT_EQ(Take(),
              (Lines{"Application.Visible = True", "Application.Activate", "Application.WindowState = 1",
                     "Application.Version -> \"16.0\"", "Application.Quit 0"}));
}

}  // namespace
}  // namespace quillmark::word
