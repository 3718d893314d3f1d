#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "word/engine_session.h"

namespace quillmark::word::test {
namespace {

using testing::ElementsAre;

using Stops = std::vector<docx::TabStop>;

class EngineTyping : public testing::Test, protected EngineSession {
 protected:
    void TearDown() override { EXPECT_EQ(FaultIn(Model()), ""); }
};

TEST_F(EngineTyping, AReturnSplitsAndTheNewParagraphTakesAllOverFromTheOld) {
    sel.ParagraphFormat.Alignment = AlignCentre;
    sel.Paragraphs.LeftIndent = 13.5;
    sel.Paragraphs.TabStops.Add(279);
    sel.Font.Name = "Arial";
    sel.Font.Size = 11;
    sel.Font.Bold = true;
    sel.TypeText("WARRANTY DEED - STATUTORY FORM\r\r");
    sel.Font.Bold = false;
    sel.ParagraphFormat.Alignment = AlignLeft;
    sel.TypeText("Witness:\tone\vtwo");

    ASSERT_THAT(Texts(), ElementsAre("WARRANTY DEED - STATUTORY FORM", "", "Witness:\tone\vtwo"));
    EXPECT_EQ(FormatAt(1).alignment, AlignCentre);
    EXPECT_EQ(FormatAt(2).alignment, AlignLeft);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(FormatAt(i).leftIndent, 270);
        EXPECT_EQ(FormatAt(i).tabs, (Stops{{5580, "left", ""}}));
    }
    EXPECT_EQ(MarkFontAt(1).bold, true);
    EXPECT_EQ(MarkFontAt(1).halfPoints, 22);
    EXPECT_EQ(FontAt(2).bold, false);
    EXPECT_EQ(FontAt(2).font, "Arial");
}

TEST_F(EngineTyping, TheFontSetWithNothingSelectedIsThatOfTheNextText) {
    sel.TypeText("plain ");
    sel.Font.Bold = true;
    sel.Font.Underline = UnderlineDouble;
    EXPECT_EQ(MarkFontAt(0).bold, std::nullopt) << "a paragraph with text keeps its mark";
    sel.TypeText("bold");
    sel.Font.Bold = false;
    sel.Font.Underline = UnderlineNone;
    sel.Font.Superscript = true;
    sel.TypeText("2");
    EXPECT_EQ(FontAt(0).bold, std::nullopt);
    EXPECT_EQ(FontAt(0, 6).bold, true);
    EXPECT_EQ(FontAt(0, 6).underline, UnderlineDouble);
    EXPECT_EQ(FontAt(0, 10).superscript, true);

    sel.TypeText("\r");
    sel.Font.Size = 18;
    EXPECT_EQ(MarkFontAt(1).halfPoints, 36) << "an empty paragraph is as high as its mark";
}

TEST_F(EngineTyping, WhatWasNeverSetIsReadFromTheStyles) {
    EXPECT_EQ(sel.Font.Name.Read(), "Times New Roman");
    EXPECT_EQ(sel.Font.Size, 12);
    EXPECT_FALSE(sel.Font.Bold);
    EXPECT_EQ(sel.Paragraphs.LineSpacing, 12);
    EXPECT_EQ(sel.Paragraphs.SpaceAfter, 0);
    EXPECT_EQ(sel.ParagraphFormat.Alignment, AlignLeft);

    sel.TypeText("a");
    sel.Font.Bold = true;
    sel.TypeText("b");
    EXPECT_EQ(std::get<std::int32_t>(doc.Content.Font.Reach()->Get("Bold")), 9999999) << "both";
}

TEST_F(EngineTyping, LineSpacingIsANumberOfLinesUnlessTheRuleIsAnother) {
    const auto spacing = [&](double points) {
        sel.Paragraphs.LineSpacing = points;
        return *FormatAt(0).line;
    };
    EXPECT_EQ(spacing(12), 240);
    EXPECT_EQ(spacing(11.9), 238);
    EXPECT_EQ(spacing(10), 200);
    EXPECT_EQ(spacing(18), 360);
    EXPECT_EQ(spacing(0), 240) << "single";
    EXPECT_EQ(FormatAt(0).lineRule, docx::LineRule::Auto);
}

TEST_F(EngineTyping, ControlCharactersOfTheFormatNeverReachTheText) {
    sel.TypeText(
        std::string_view("a\x01z\0b\x02\x07y\x1f"
                         "c\r\nd\ne",
                         16));
    EXPECT_THAT(Texts(), ElementsAre("azbyc", "d", "e"));
}

TEST_F(EngineTyping, BackspaceTakesOneCharacterOfAnyLength) {
    sel.TypeText("§1445 “x”");
    sel.TypeBackspace();
    sel.TypeBackspace();
    EXPECT_THAT(Texts(), ElementsAre("§1445 “"));
    doc.FormFields.Add(sel.Range(), FieldFormCheckBox);
    sel.TypeBackspace();
    EXPECT_EQ(doc.FormFields.Count(), 0);
    EXPECT_THAT(Texts(), ElementsAre("§1445 “"));
}

TEST_F(EngineTyping, BackspaceAtAParagraphsStartJoinsIt) {
    sel.ParagraphFormat.Alignment = AlignCentre;
    sel.TypeText("one\r");
    sel.ParagraphFormat.Alignment = AlignRight;
    sel.TypeBackspace();
    EXPECT_THAT(Texts(), ElementsAre("one"));
    EXPECT_EQ(FormatAt(0).alignment, AlignCentre) << "an empty paragraph has nothing to give";
    sel.TypeText(" more");
    EXPECT_THAT(Texts(), ElementsAre("one more"));

    sel.GoTo(GoToLine, GoToFirst);
    sel.TypeBackspace();
    EXPECT_THAT(Texts(), ElementsAre("one more")) << "nothing is in front of the text";
}

TEST_F(EngineTyping, AFieldGoesAsAWhole) {
    sel.TypeText("page ");
    const Range range = sel.Range();
    range.Fields.Add(range, FieldPage);
    EXPECT_EQ(doc.Content.Text.Read(), "page 1\r");
    sel.TypeBackspace();
    EXPECT_THAT(Texts(), ElementsAre("page "));
    EXPECT_TRUE(ParagraphAt(0).objects.empty());
}

TEST_F(EngineTyping, GoingToTheTopTypesInFrontInTheFontFoundThere) {
    sel.Font.Italic = true;
    sel.TypeText("second");
    sel.Font.Italic = false;
    sel.TypeText("\rthird");
    sel.GoTo(GoToLine, GoToFirst);
    sel.TypeText("first\r");
    EXPECT_THAT(Texts(), ElementsAre("first", "second", "third"));
    EXPECT_EQ(FontAt(0).italic, true);
    EXPECT_EQ(FontAt(1).italic, true);
}

TEST_F(EngineTyping, IndentGoesToTheNextDefaultTabStopAndOutdentBack) {
    doc.DefaultTabStop = 18;
    sel.Paragraphs.LeftIndent = 20;
    sel.Paragraphs.Indent();
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 36);
    sel.Paragraphs.LeftIndent = 20;
    sel.Paragraphs.Outdent();
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 18);
    sel.Paragraphs.Outdent();
    sel.Paragraphs.Outdent();
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 0);
}

TEST_F(EngineTyping, TabStopsAreSortedReplacedAndCleared) {
    const TabStops& stops = sel.Paragraphs.TabStops;
    stops.Add(396);
    stops.Add(288);
    stops.Add(288);
    stops.Reach()->Call("Add", std::vector<Argument>{{396.0}, {std::int32_t{2}}, {std::int32_t{1}}});
    EXPECT_EQ(FormatAt(0).tabs, (Stops{{5760, "left", ""}, {7920, "right", "dot"}}));
    stops.Clear(288);
    EXPECT_EQ(FormatAt(0).tabs.size(), 1u);
    EXPECT_EQ(ErrorOf([&] { stops.Clear(288); }), error::kNoSuchElement);
    stops.ClearAll();
    EXPECT_TRUE(FormatAt(0).tabs.empty());
}

TEST_F(EngineTyping, AStopOfTheStyleIsClearedByOneThatSaysSo) {
    auto& model = const_cast<docx::Document&>(Model());
    docx::ParaFormat inFooterStyle;
    inFooterStyle.style = "Footer";
    std::get<docx::Paragraph>(model.body.front()).format = model.paraFormats.Intern(inFooterStyle);
    sel.Paragraphs.TabStops.Clear(468);
    EXPECT_EQ(FormatAt(0).tabs, (Stops{{9360, "clear", ""}}));
    EXPECT_EQ(ErrorOf([&] { sel.Paragraphs.TabStops.Clear(468); }), error::kNoSuchElement);
    sel.Paragraphs.TabStops.ClearAll();
    EXPECT_EQ(FormatAt(0).tabs.size(), 2u);
}

TEST_F(EngineTyping, ARangeKeptFromTheSelectionStaysInFrontOfWhatIsTyped) {
    sel.TypeText("before ");
    const Range kept = sel.Range();
    sel.TypeText("behind\rmore");
    kept.InsertAfter("between ");
    EXPECT_THAT(Texts(), ElementsAre("before between behind", "more"));
    EXPECT_EQ(kept.Text.Read(), "between ");
    sel.TypeText("!");
    EXPECT_THAT(Texts(), ElementsAre("before between behind", "more!"));
}

TEST_F(EngineTyping, DocumentsTypedOneAfterTheOtherInheritTheParagraphOfTheLast) {
    sel.Paragraphs.SpaceAfter = 0;
    sel.Paragraphs.LineSpacing = 12;
    sel.Font.Name = "Lucida Console";
    sel.TypeText("RECORD & RETURN TO:\r");
    sel.Paragraphs.RightIndent = 13.5;
    sel.Paragraphs.TabStops.Add(279);
    sel.TypeText("Notary Public\r");
    sel.Paragraphs.RightIndent = 0;

    const Range start = sel.Range();
    sel.TypeText("next document");
    start.InsertBreak(SectionBreakNextPage);
    ASSERT_THAT(Texts(), ElementsAre("RECORD & RETURN TO:", "Notary Public", "=", "next document"));
    EXPECT_EQ(FormatAt(1).rightIndent, 270);
    EXPECT_EQ(FormatAt(3).rightIndent, 0);
    EXPECT_EQ(FormatAt(3).tabs.size(), 1u) << "a stop that the first left behind";
    EXPECT_EQ(FontAt(3).font, "Lucida Console");
}

}  // namespace
}  // namespace quillmark::word::test
