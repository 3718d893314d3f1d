#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "word/engine_session.h"

namespace quillmark::word::test {
namespace {

class EngineLists : public testing::Test, protected EngineSession {
 protected:
    EngineLists() : simple(doc.ListTemplates.Add(false)), outline(doc.ListTemplates.Add(true)) {
        outline.ListLevels(2).NumberStyle = NumberLowercaseLetter;
        outline.ListLevels(3).NumberStyle = NumberLowercaseRoman;
    }
    const docx::ListInstance& ListOf(std::size_t paragraph) const {
        return Model().lists.at(static_cast<std::size_t>(ListAt(paragraph)) - 1);
    }
    void TearDown() override { EXPECT_EQ(FaultIn(Model()), ""); }

    ListTemplate simple;
    ListTemplate outline;
};

TEST_F(EngineLists, EveryParagraphTypedAfterTheTemplateIsAnItemUntilNumbersAreRemoved) {
    sel.TypeText("subject to:\r");
    sel.ListFormat().ApplyListTemplate(simple);
    sel.TypeText("first\v\rsecond\v\r");
    sel.ListFormat().RemoveNumbers();
    sel.TypeText("after");
    EXPECT_EQ(ListAt(0), 0);
    EXPECT_EQ(ListAt(1), 1);
    EXPECT_EQ(ListAt(2), 1);
    EXPECT_EQ(ListAt(3), 0);
    EXPECT_FALSE(ListOf(1).restarts) << "the template's first list";
}

TEST_F(EngineLists, TheSameTemplateAgainStartsANewListAtOne) {
    for (int list = 0; list < 3; ++list) {
        sel.ListFormat().ApplyListTemplate(simple);
        sel.ListFormat().ApplyListTemplate(simple);
        sel.TypeText("one\rtwo\r");
        sel.ListFormat().ApplyListTemplate(simple);
        sel.TypeText("three\r");
        sel.ListFormat().RemoveNumbers();
        sel.TypeText("text\r");
    }
    ASSERT_EQ(Model().lists.size(), 3u) << "applying it within the list does nothing";
    for (std::size_t list = 0; list < 3; ++list) {
        EXPECT_EQ(ListAt(list * 4), ListAt(list * 4 + 2));
        EXPECT_EQ(ListOf(list * 4).restarts, list > 0);
        EXPECT_EQ(ListOf(list * 4).abstractIndex, 0);
    }
}

TEST_F(EngineLists, ListsHaveTheirOwnIndentsAndLeaveNone) {
    sel.Paragraphs.LeftIndent = 13.5;
    sel.Paragraphs.RightIndent = 13.5;
    sel.ListFormat().ApplyListTemplate(outline);
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 18);
    EXPECT_EQ(sel.Paragraphs.RightIndent, 13.5);
    sel.ListFormat().ListIndent();
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 36);
    sel.ListFormat().ListIndent();
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 54);
    sel.Paragraphs.LeftIndent = 60;
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 60) << "a direct indent goes before the list's";
    sel.ListFormat().ListOutdent();
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 36);
    sel.ListFormat().RemoveNumbers();
    EXPECT_EQ(sel.Paragraphs.LeftIndent, 0);
    EXPECT_EQ(sel.Paragraphs.RightIndent, 13.5);
}

TEST_F(EngineLists, LevelsStopAtBothEnds) {
    sel.ListFormat().ListIndent();
    EXPECT_EQ(ListAt(0), 0) << "outside of a list there is no level";
    sel.ListFormat().ApplyListTemplate(outline);
    for (int i = 0; i < 12; ++i) sel.ListFormat().ListIndent();
    EXPECT_EQ(FormatAt(0).listLevel, 8);
    for (int i = 0; i < 12; ++i) sel.ListFormat().ListOutdent();
    EXPECT_EQ(FormatAt(0).listLevel, 0);
    sel.ListFormat().RemoveNumbers();
    sel.ListFormat().ApplyListTemplate(simple);
    sel.ListFormat().ListIndent();
    EXPECT_EQ(FormatAt(0).listLevel, 0) << "a template of one level";
}

TEST_F(EngineLists, BackspaceAtAnItemsStartTakesTheNumberFirst) {
    sel.TypeText("text\r");
    sel.ListFormat().ApplyListTemplate(simple);
    sel.TypeBackspace();
    EXPECT_EQ(ListAt(1), 0);
    EXPECT_EQ(Texts().size(), 2u);
    sel.TypeBackspace();
    EXPECT_EQ(Texts().size(), 1u);
}

TEST_F(EngineLists, BulletsGoOnAndOff) {
    sel.ListFormat().ApplyBulletDefault();
    sel.TypeText("race\rcolour");
    EXPECT_EQ(ListAt(0), ListAt(1));
    EXPECT_EQ(
        Model().abstractLists.at(static_cast<std::size_t>(ListOf(0).abstractIndex)).levels[0].numberFormat,
        "bullet");
    sel.ListFormat().ApplyBulletDefault();
    EXPECT_NE(ListAt(0), 0);
    EXPECT_EQ(ListAt(1), 0);
    sel.ListFormat().ApplyBulletDefault();
    EXPECT_EQ(ListAt(1), ListAt(0)) << "bullets need no new list";
}

TEST_F(EngineLists, LevelsAreFormattedAndCounted) {
    EXPECT_EQ(outline.ListLevels(3).NumberFormat.Read(), "%3.");
    EXPECT_EQ(outline.ListLevels(3).NumberStyle, NumberLowercaseRoman);
    simple.ListLevels(1).NumberFormat = "(%1)";
    EXPECT_EQ(Model().abstractLists[0].levels[0].text, "(%1)");
    EXPECT_EQ(ErrorOf([&] { simple.ListLevels(2); }), error::kNoSuchElement);
    EXPECT_EQ(ErrorOf([&] { simple.ListLevels(1).NumberStyle = 77; }), error::kBadValue);
    const Document other = app.Documents.Add();
    EXPECT_EQ(ErrorOf([&] { app.Selection.ListFormat().ApplyListTemplate(simple); }), error::kBadValue);
}

TEST_F(EngineLists, TheListStyleLosesItsJoinedSpacingForGood) {
    const Style style = doc.Styles("List Paragraph");
    EXPECT_TRUE(style.NoSpaceBetweenParagraphsOfSameStyle);
    style.NoSpaceBetweenParagraphsOfSameStyle = false;
    EXPECT_FALSE(doc.Styles("list paragraph").NoSpaceBetweenParagraphsOfSameStyle);
    style.NoSpaceBetweenParagraphsOfSameStyle = true;
    EXPECT_TRUE(style.NoSpaceBetweenParagraphsOfSameStyle);
    EXPECT_EQ(ErrorOf([&] { doc.Styles("Body Text 9"); }), error::kNoSuchElement);
}

}  // namespace
}  // namespace quillmark::word::test
