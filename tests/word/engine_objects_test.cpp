#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "word/engine_session.h"

namespace quillmark::word::test {
namespace {

using testing::ElementsAre;

class EngineObjects : public testing::Test, protected EngineSession {
 protected:
    const docx::Picture& PictureAt(std::size_t paragraph, std::size_t object = 0) const {
        return std::get<docx::Picture>(ParagraphAt(paragraph).objects.at(object));
    }
    void TearDown() override { EXPECT_EQ(FaultIn(Model()), ""); }
};

// ---- Form fields ----

TEST_F(EngineObjects, TypingGoesOnBehindAFormField) {
    sel.Font.Size = 9;
    sel.TypeText("Urgent ");
    const FormField box = doc.FormFields.Add(sel.Range(), FieldFormCheckBox);
    sel.TypeText(" For review ");
    doc.FormFields.Add(sel.Range(), FieldFormCheckBox).CheckBox.Value = true;
    sel.TypeText("\r");
    const FormField text = doc.FormFields.Add(sel.Range(), FieldFormTextInput);
    text.Result = "Other Adjustment 1 (click to edit)";
    EXPECT_THAT(Texts(), ElementsAre("Urgent # For review #", "#"));
    EXPECT_FALSE(box.CheckBox.Value);
    EXPECT_TRUE(doc.FormFields(2).CheckBox.Value);
    EXPECT_EQ(doc.FormFields(3).Result.Read(), "Other Adjustment 1 (click to edit)");
    EXPECT_EQ(FontAt(1).halfPoints, 18);
}

TEST_F(EngineObjects, FormFieldsCountInTheOrderOfTheTextAndKeepTheirNames) {
    sel.TypeText("a ");
    const Range front = sel.Range();
    sel.TypeText("b ");
    const FormField later = doc.FormFields.Add(sel.Range(), FieldFormTextInput);
    doc.FormFields(1).Result = "later";
    const FormField earlier = doc.FormFields.Add(front, FieldFormTextInput);
    earlier.Result = "earlier";
    EXPECT_EQ(doc.FormFields(1).Result.Read(), "earlier");
    EXPECT_EQ(doc.FormFields(2).Result.Read(), "later");
    EXPECT_EQ(later.Result.Read(), "later");
    EXPECT_TRUE(doc.Bookmarks.Exists("Text1"));
    EXPECT_TRUE(doc.Bookmarks.Exists("Text2"));
    EXPECT_EQ(doc.Bookmarks.Count(), 2);
    EXPECT_EQ(ErrorOf([&] { doc.FormFields(3); }), error::kNoSuchElement);
    EXPECT_EQ(ErrorOf([&] { later.CheckBox.Value = true; }), error::kNotAvailable);

    sel.TypeBackspace();
    EXPECT_EQ(ErrorOf([&] { later.Result = "gone"; }), error::kObjectDeleted);
}

TEST_F(EngineObjects, AProtectedDocumentTakesFormFieldsAndOpenSectionsOnly) {
    sel.TypeText("one ");
    const FormField field = doc.FormFields.Add(sel.Range(), FieldFormTextInput);
    sel.InsertBreak(SectionBreakNextPage);
    sel.TypeText("two");
    const Range footer = doc.Sections(1).Footers(1).Range();
    doc.Protect(AllowOnlyFormFields, true);
    EXPECT_EQ(doc.ProtectionType, AllowOnlyFormFields);
    EXPECT_EQ(ErrorOf([&] { doc.Protect(AllowOnlyFormFields, true); }), error::kNotAvailable);

    EXPECT_EQ(ErrorOf([&] { sel.TypeText("x"); }), error::kNotAvailable);
    EXPECT_EQ(ErrorOf([&] { sel.TypeBackspace(); }), error::kNotAvailable);
    EXPECT_EQ(ErrorOf([&] { sel.Paragraphs.LeftIndent = 9; }), error::kNotAvailable);
    EXPECT_EQ(ErrorOf([&] { sel.ListFormat().ApplyBulletDefault(); }), error::kNotAvailable);
    EXPECT_EQ(ErrorOf([&] { doc.Tables.Add(sel.Range(), 1, 1); }), error::kNotAvailable);
    EXPECT_EQ(ErrorOf([&] { footer.Text = "x"; }), error::kNotAvailable);
    field.Result = "filled in";

    doc.Sections(2).ProtectedForForms = false;
    sel.TypeText(" is open");
    EXPECT_EQ(ErrorOf([&] { footer.Text = "x"; }), error::kNotAvailable) << "footers stay locked";
    sel.GoTo(GoToLine, GoToFirst);
    EXPECT_EQ(ErrorOf([&] { sel.TypeText("x"); }), error::kNotAvailable);
    EXPECT_THAT(Texts(), ElementsAre("one #=", "two is open"));
}

// ---- Pictures ----

TEST_F(EngineObjects, PicturesHaveTheirOwnSizeUntilTheTextIsTooNarrow) {
    quillmark::test::WriteBytes(folder / "small.png", PngBytes(300, 150, 300));
    quillmark::test::WriteBytes(folder / "wide.png", PngBytes(1920, 96));
    quillmark::test::WriteBytes(folder / "tall.png", PngBytes(96, 9600));
    sel.InlineShapes.AddPicture("small.png");
    sel.TypeText("\r");
    sel.InlineShapes.AddPicture((folder / "wide.png").string());
    sel.InlineShapes.AddPicture("tall.png");
    EXPECT_NEAR(static_cast<double>(PictureAt(0).widthEmu), 914400, 500) << "an inch at 300 dots";
    EXPECT_EQ(PictureAt(1).widthEmu, 468 * 12700) << "the text's width";
    EXPECT_EQ(PictureAt(1).heightEmu, 468 * 12700 / 20);
    EXPECT_NEAR(static_cast<double>(PictureAt(1, 1).heightEmu), (648 - 13.8) * 12700, 100)
        << "the page's height but for the line's own";
    EXPECT_EQ(PictureAt(0).extension, "png");
}

TEST_F(EngineObjects, APictureKeepsWithinTheIndentsAndLeavesRoomForTheHeadingAboveIt) {
    quillmark::test::WriteBytes(folder / "page.png", PngBytes(850, 1300, 100));
    const std::shared_ptr<Hints> hints = docx::objects::HintsOf(app.Reach());
    sel.Font.Size = 11;
    hints->SetRole(Role::Title);
    sel.TypeText("\rSCHEDULE\r\r\r");
    hints->SetRole(Role::Body);
    sel.Paragraphs.LeftIndent = 36;
    sel.Paragraphs.RightIndent = 18;
    sel.InlineShapes.AddPicture("page.png");
    const docx::Picture& page = PictureAt(4);
    EXPECT_NEAR(static_cast<double>(page.heightEmu) / static_cast<double>(page.widthEmu), 1300 / 850.0,
                0.001);
    const double height = static_cast<double>(page.heightEmu) / 12700;
    EXPECT_LT(height, 648 - 5 * 12) << "four lines of heading stand above, and its own line has letters";
    EXPECT_GT(height, 648 - 5 * 14);

    quillmark::test::WriteBytes(folder / "wide.png", PngBytes(1920, 96));
    sel.TypeText("\r");
    sel.InlineShapes.AddPicture("wide.png");
    EXPECT_EQ(PictureAt(5).widthEmu, (468 - 36 - 18) * 12700);
}

TEST_F(EngineObjects, APictureThatIsNoneIsRefused) {
    quillmark::test::WriteBytes(folder / "text.png", "not a picture");
    EXPECT_EQ(ErrorOf([&] { sel.InlineShapes.AddPicture("missing.png"); }), error::kNoSuchPicture);
    EXPECT_EQ(ErrorOf([&] { sel.InlineShapes.AddPicture("text.png"); }), error::kFileDamaged);
    EXPECT_THAT(Texts(), ElementsAre(""));
}

// ---- The clipboard ----

TEST_F(EngineObjects, PasteTakesWhatTheSystemPutOnTheClipboard) {
    EXPECT_EQ(ErrorOf([&] { sel.Paste(); }), error::kNotAvailable) << "nothing is on it";
    clipboard->SetPicture(PngBytes(96, 96), "A map");
    sel.TypeText("map: ");
    sel.Paste();
    clipboard->SetText("one\rtwo");
    sel.Font.Bold = true;
    sel.Paste();
    sel.TypeText(" three");
    EXPECT_THAT(Texts(), ElementsAre("map: #one", "two three"));
    EXPECT_EQ(PictureAt(0).widthEmu, 914400);
    EXPECT_EQ(PictureAt(0).description, "A map");
    EXPECT_EQ(FontAt(1).bold, true);
    clipboard->Clear();
    EXPECT_EQ(ErrorOf([&] { sel.Paste(); }), error::kNotAvailable);
}

TEST_F(EngineObjects, AWholeDocumentIsCopiedInBetweenAndARangeStaysInFrontOfIt) {
    sel.TypeText("first document\r");
    const Range start = sel.Range();
    const Document form = app.Documents.Add();
    app.Selection.Font.Bold = true;
    app.Selection.TypeText("form title\rform text");
    form.Select();
    app.Selection.Copy();
    sel.PasteAndFormat(FormatOriginalFormatting);
    form.Close(false);
    start.InsertBreak(SectionBreakNextPage);
    sel.TypeText("behind");
    EXPECT_THAT(Texts(), testing::Contains("form title"));
    const auto texts = Texts();
    ASSERT_GE(texts.size(), 4u);
    EXPECT_EQ(texts[0], "first document");
    EXPECT_EQ(texts[1], "=");
    EXPECT_EQ(texts[2], "form title");
    EXPECT_TRUE(texts.back().ends_with("behind"));
    EXPECT_EQ(FontAt(2).bold, true);

    clipboard->SetText("newer");
    sel.Paste();
    EXPECT_TRUE(Texts().back().ends_with("behindnewer"));
    EXPECT_EQ(ErrorOf([&] { sel.Copy(); }), error::kNotAvailable) << "nothing is selected";
}

TEST_F(EngineObjects, MarkersAreReplacedThroughoutADocument) {
    sel.TypeText("[seller 1 name] sells to [buyer 1 name].\r[SELLER 1 NAME] signs: [picture]");
    EXPECT_TRUE(doc.Content.Find.ReplaceAll("[seller 1 name]", "Jane Roe"));
    EXPECT_FALSE(doc.Content.Find.ReplaceAll("[no such marker]", "x"));
    clipboard->SetPicture(PngBytes(96, 48), {});
    EXPECT_TRUE(doc.Content.Find.ReplaceAll("[picture]", "^c"));
    EXPECT_THAT(Texts(), ElementsAre("Jane Roe sells to [buyer 1 name].", "Jane Roe signs: #"));
    sel.TypeText("!");
    EXPECT_EQ(FaultIn(Model()), "");

    const Range scan = sel.Range();
    EXPECT_TRUE(scan.Find.Execute("[buyer 1 name]", FindContinue));
    EXPECT_EQ(scan.Text.Read(), "[buyer 1 name]");
    EXPECT_TRUE(scan.Find.Execute("jane roe", FindContinue));
    EXPECT_FALSE(scan.Find.Execute("[buyer 2 name]", FindContinue));
}

}  // namespace
}  // namespace quillmark::word::test
