#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "word/engine_session.h"

namespace quillmark::word::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class EngineApplication : public testing::Test, protected EngineSession {
 protected:
    /// The error of a late-bound call with these arguments.
    static int ErrorOfCall(const Handle& object, std::string_view member,
                           const std::vector<Argument>& arguments) {
        return ErrorOf([&] { object.Reach()->Call(member, arguments); });
    }
};

TEST_F(EngineApplication, SettingsAreKept) {
    EXPECT_TRUE(app.Options.CheckSpellingAsYouType);
    app.Options.CheckSpellingAsYouType = false;
    EXPECT_FALSE(app.Options.CheckSpellingAsYouType);
    EXPECT_TRUE(app.Options.CheckGrammarAsYouType);
    EXPECT_EQ(app.Version(), 16);
    app.Visible = true;
    app.Activate();
    app.WindowState = WindowMaximised;
    app.ActiveDocument.ActiveWindow.View.Type = PrintView;
    app.ActiveDocument.ActiveWindow.View.Zoom.PageFit = PageFitBestFit;
    EXPECT_TRUE(Model().zoomToPageWidth);
    app.ActiveDocument.ActiveWindow.View.Zoom.Percentage = 100;
    EXPECT_FALSE(Model().zoomToPageWidth);
    EXPECT_EQ(std::get<double>(app.Reach()->Call("InchesToPoints", std::vector<Argument>{{3.875}})), 279);
}

TEST_F(EngineApplication, EachDocumentHasItsOwnSelection) {
    sel.TypeText("first");
    const Document second = app.Documents.Add();
    app.Selection.TypeText("second");
    sel.TypeText(" goes on");
    EXPECT_EQ(app.Documents.Count(), 2);
    EXPECT_EQ(app.Documents(1).Content.Text.Read(), "second\r") << "the latest comes first";
    EXPECT_EQ(app.Documents(2).Content.Text.Read(), "first goes on\r");
    app.Documents(2).Select();
    EXPECT_EQ(app.ActiveDocument.Content.Text.Read(), "first goes on\r");
    app.Selection.Font.Italic = true;
    EXPECT_EQ(FontAt(0).italic, true);
    EXPECT_EQ(MarkFontAt(0).italic, true);
    app.Selection.TypeText("anew");
    EXPECT_THAT(Texts(), ElementsAre("anew"));
    EXPECT_EQ(ErrorOf([&] { app.Documents(3); }), error::kNoSuchElement);
}

TEST_F(EngineApplication, AMemberOutsideOfTheModelIsNamedInTheRefusal) {
    EXPECT_EQ(ErrorOf([&] { sel.Reach()->Call("EndKey"); }), error::kNoSuchMember);
    EXPECT_EQ(ErrorOf([&] { sel.Font.Reach()->Put("Color", true); }), error::kNoSuchMember);
    EXPECT_EQ(ErrorOf([&] { app.Reach()->Put("Version", std::string("12")); }), error::kNoSuchMember);
    try {
        doc.PageSetup.Reach()->Get("Gutter");
        FAIL();
    } catch (const AutomationError& refusal) {
        EXPECT_THAT(refusal.what(), HasSubstr("PageSetup.Gutter"));
    }
}

TEST_F(EngineApplication, WrongArgumentsAreToldApart) {
    EXPECT_EQ(ErrorOfCall(sel, "TypeText", {}), error::kArgumentNotOptional);
    EXPECT_EQ(ErrorOfCall(sel, "TypeText", {{std::string("a")}, {std::string("b")}}),
              error::kWrongArgumentCount);
    EXPECT_EQ(ErrorOfCall(sel, "TypeText", {{std::string("a"), "Words"}}), error::kNoSuchArgument);
    EXPECT_EQ(ErrorOfCall(sel, "TypeText", {{12.0}}), error::kTypeMismatch);
    EXPECT_EQ(ErrorOfCall(doc.Tables, "Add", {{sel.Reach()}, {1.0}, {1.0}}), error::kTypeMismatch);
    EXPECT_EQ(ErrorOfCall(doc.Tables, "Add", {{sel.Range().Reach()}, {0.0}, {1.0}}), error::kBadValue);
    EXPECT_EQ(ErrorOf([&] { sel.Font.Size = 1639; }), error::kBadValue);
    EXPECT_EQ(ErrorOf([&] { sel.Font.Size = std::nan(""); }), error::kTypeMismatch);
    EXPECT_EQ(ErrorOf([&] { sel.ParagraphFormat.Alignment = 4; }), error::kBadValue);
    EXPECT_EQ(ErrorOf([&] { sel.Paragraphs.SpaceAfter = -1; }), error::kBadValue);
    EXPECT_EQ(ErrorOf([&] { sel.Paragraphs.LineSpacing = 1e9; }), error::kBadValue);
    EXPECT_EQ(FaultIn(Model()), "");
    EXPECT_EQ(Model().paraFormats.size(), 1u) << "what was refused changed nothing";
}

TEST_F(EngineApplication, ObjectsOfAClosedDocumentAreGoneAndThoseOfOthersAreNot) {
    const Range range = sel.Range();
    const Section section = doc.Sections(1);
    const Document other = app.Documents.Add();
    doc.Close(false);
    EXPECT_EQ(ErrorOf([&] { sel.TypeText("x"); }), error::kObjectDeleted);
    EXPECT_EQ(ErrorOf([&] { range.Text = "x"; }), error::kObjectDeleted);
    EXPECT_EQ(ErrorOf([&] { section.PageSetup.TopMargin = 9; }), error::kObjectDeleted);
    EXPECT_EQ(app.Documents.Count(), 1);
    app.Selection.TypeText("other");
    other.Close(false);
    EXPECT_EQ(ErrorOf([&] { app.Selection.Reach(); }), error::kNoDocumentOpen);
    EXPECT_EQ(ErrorOf([&] { app.ActiveDocument.Reach(); }), error::kNoDocumentOpen);
}

TEST_F(EngineApplication, NothingWorksAfterQuit) {
    const Range range = sel.Range();
    app.Quit();
    EXPECT_EQ(ErrorOf([&] { app.Quit(); }), error::kServerGone);
    EXPECT_EQ(ErrorOf([&] { app.Documents.Add(); }), error::kServerGone);
    EXPECT_EQ(ErrorOf([&] { sel.TypeText("x"); }), error::kServerGone);
    EXPECT_EQ(ErrorOf([&] { range.Text = "x"; }), error::kServerGone);
    EXPECT_EQ(ErrorOf([&] { doc.Close(false); }), error::kServerGone);
}

TEST_F(EngineApplication, TheEngineEndsWithItsApplicationObject) {
    app = Application{docx::objects::StartEngine()};
    EXPECT_EQ(ErrorOf([&] { sel.TypeText("x"); }), error::kServerGone);
}

TEST_F(EngineApplication, ASavedDocumentOpensAsItWas) {
    sel.Font.Bold = true;
    sel.TypeText("Schedule A\r");
    sel.Font.Bold = false;
    sel.TypeText("text");
    EXPECT_FALSE(doc.Saved);
    EXPECT_EQ(ErrorOf([&] { doc.Save(); }), error::kNotAvailable) << "it has no name";
    doc.SaveAs("Roe v. Doe_QMF");
    EXPECT_TRUE(doc.Saved);
    EXPECT_EQ(docx::objects::PathOf(doc.Reach()), folder / "Roe v. Doe_QMF.docx");
    doc.Close(false);

    const Document opened = app.Documents.Open("Roe v. Doe_QMF.docx");
    EXPECT_EQ(opened.Content.Text.Read(), "Schedule A\rtext\r");
    EXPECT_TRUE(opened.Saved);
    app.Selection.TypeText("new ");
    EXPECT_FALSE(opened.Saved);
    app.Documents.Open("Roe v. Doe_QMF.docx");
    EXPECT_EQ(app.Documents.Count(), 1) << "it is open already";
    opened.Close(true);
    const Document again = app.Documents.Open("Roe v. Doe_QMF.docx");
    EXPECT_EQ(again.Content.Text.Read(), "new Schedule A\rtext\r");
}

TEST_F(EngineApplication, FilesThatCannotBeReadOrWrittenSayWhy) {
    EXPECT_EQ(ErrorOf([&] { app.Documents.Open("missing.docx"); }), error::kFileNotFound);
    quillmark::test::WriteBytes(folder / "torn.docx", "PK\x03\x04 torn");
    EXPECT_EQ(ErrorOf([&] { app.Documents.Open("torn.docx"); }), error::kFileDamaged);
    EXPECT_EQ(ErrorOf([&] { doc.SaveAs("no such folder/x"); }), error::kPathNotFound);
    EXPECT_EQ(app.Documents.Count(), 1);
    EXPECT_TRUE(docx::objects::PathOf(doc.Reach()).empty());
}

}  // namespace
}  // namespace quillmark::word::test
