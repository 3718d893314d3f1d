#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "word/engine_session.h"

namespace quillmark::word::test {
namespace {

using testing::ElementsAre;

class EngineTables : public testing::Test, protected EngineSession {
 protected:
    const docx::Table& TableOf(std::size_t block) const {
        return *std::get<std::unique_ptr<docx::Table>>(
            *std::next(Model().body.begin(), static_cast<std::ptrdiff_t>(block)));
    }
    std::string CellText(std::size_t row, std::size_t cell) const {
        return BlocksText(TableOf(0).rows.at(row).cells.at(cell).blocks);
    }
    void TearDown() override { EXPECT_EQ(FaultIn(Model()), ""); }
};

TEST_F(EngineTables, ATableAtAKeptRangeLeavesTheInsertionPointBehindIt) {
    const Range place = sel.Range();
    sel.TypeText("under the table");
    const Table table = doc.Tables.Add(place, 2, 3);
    table.Cell(2, 3).Range.Text = "last";
    sel.TypeText(", typed on");
    EXPECT_THAT(Texts(), ElementsAre("<table>", "under the table, typed on"));
    EXPECT_EQ(CellText(1, 2), "last");
    EXPECT_EQ(table.Cell(2, 3).Range.Text.Read(), "last\r\a");
}

TEST_F(EngineTables, ATableAtTheInsertionPointPutsItIntoTheFirstCell) {
    sel.TypeText("above");
    doc.Tables.Add(sel.Range(), 1, 2);
    sel.TypeText("in the cell");
    EXPECT_THAT(Texts(), ElementsAre("above", "<table>", ""));
    EXPECT_EQ(BlocksText(TableOf(1).rows[0].cells[0].blocks), "in the cell");
    sel.Reach()->Call("GoTo", std::vector<Argument>{{std::int32_t{3}}, {std::int32_t{-1}}});
    sel.TypeText("below");
    EXPECT_THAT(Texts(), ElementsAre("above", "<table>", "below"));
}

TEST_F(EngineTables, ATableCutsTheParagraphThatItIsPutIn) {
    sel.TypeText("above");
    const Range middle = sel.Range();
    sel.TypeText("below");
    doc.Tables.Add(middle, 1, 1);
    EXPECT_THAT(Texts(), ElementsAre("above", "<table>", "below"));
    doc.Tables.Add(sel.Range(), 1, 1);
    EXPECT_THAT(Texts(), ElementsAre("above", "<table>", "below", "<table>", ""));
}

TEST_F(EngineTables, TwoTablesAtOnePlaceStayTwo) {
    const Range first = sel.Range();
    sel.TypeText("end");
    doc.Tables.Add(first, 1, 1);
    sel.GoTo(GoToLine, GoToFirst);
    const Document other = app.Documents.Add();
    const Range place = app.Selection.Range();
    app.Selection.TypeText("x");
    other.Tables.Add(place, 1, 1);
    EXPECT_THAT(Texts(), ElementsAre("<table>", "end"));
}

TEST_F(EngineTables, ColumnsShareTheTextsWidthAndTakeAnother) {
    doc.PageSetup.LeftMargin = 45;
    doc.PageSetup.RightMargin = 45;
    const Table table = doc.Tables.Add(sel.Range(), 1, 3);
    EXPECT_EQ(TableOf(0).grid, (std::vector{3480, 3480, 3480}));
    table.Columns(1).Width = 30;
    EXPECT_EQ(TableOf(0).grid[0], 600);
    EXPECT_EQ(ErrorOf([&] { table.Columns(4); }), error::kNoSuchElement);
}

TEST_F(EngineTables, CellsStartInTheFormatOfThePlaceButOutsideOfItsList) {
    sel.ParagraphFormat.Alignment = AlignCentre;
    sel.Font.Name = "Arial";
    sel.ListFormat().ApplyListTemplate(doc.ListTemplates.Add(false));
    const Table table = doc.Tables.Add(sel.Range(), 1, 1);
    table.Cell(1, 1).Range.Text = "text";
    const docx::Paragraph& paragraph = std::get<docx::Paragraph>(TableOf(0).rows[0].cells[0].blocks.front());
    EXPECT_EQ(Model().paraFormats[paragraph.format].alignment, AlignCentre);
    EXPECT_EQ(Model().paraFormats[paragraph.format].numId, std::nullopt);
    EXPECT_EQ(Model().charFormats[paragraph.spans[0].format].font, "Arial");
}

TEST_F(EngineTables, ASelectedCellTakesTypingPicturesAndCheckBoxes) {
    const Range place = sel.Range();
    sel.TypeText("end");
    const Table table = doc.Tables.Add(place, 1, 3);
    quillmark::test::WriteBytes(folder / "alarm.png", PngBytes(96 * 20, 960));
    table.Cell(1, 1).Select();
    sel.Font.Size = 8;
    sel.TypeText("detector");
    table.Cell(1, 2).Select();
    sel.InlineShapes.AddPicture("alarm.png");
    doc.FormFields.Add(table.Cell(1, 3).Range, FieldFormCheckBox).CheckBox.Value = true;
    EXPECT_EQ(CellText(0, 0), "detector");
    EXPECT_EQ(CellText(0, 1), "#");
    EXPECT_EQ(CellText(0, 2), "#");
    const auto& cell = TableOf(0).rows[0].cells[1];
    const auto& picture = std::get<docx::Picture>(std::get<docx::Paragraph>(cell.blocks.front()).objects[0]);
    EXPECT_EQ(picture.widthEmu, (9360 / 3 - 216) * 635) << "as wide as the cell's text";
    EXPECT_EQ(picture.heightEmu * 2, picture.widthEmu);

    table.Cell(1, 3).Range.Text = "";
    table.Cell(1, 3).Select();
    doc.FormFields.Add(sel.Range(), FieldFormCheckBox);
    sel.TypeText(" yes");
    EXPECT_EQ(CellText(0, 2), "# yes");
    table.Cell(1, 1).Select();
    sel.TypeText("other");
    EXPECT_EQ(CellText(0, 0), "other") << "typing replaces what is selected";
}

TEST_F(EngineTables, MergingJoinsTheTextOfARectangle) {
    const Table table = doc.Tables.Add(sel.Range(), 3, 3);
    const char* const names[3][3] = {{"a", "b", "c"}, {"d", "e", "f"}, {"g", "", "i"}};
    for (int row = 1; row <= 3; ++row)
        for (int column = 1; column <= 3; ++column)
            table.Cell(row, column).Range.Text = names[row - 1][column - 1];
    const Range kept = table.Cell(2, 3).Range;
    table.Cell(1, 1).Merge(table.Cell(1, 2));
    EXPECT_EQ(CellText(0, 0), "a|b");
    table.Cell(2, 1).Merge(table.Cell(3, 2));
    EXPECT_EQ(CellText(1, 0), "d|e|g");
    kept.InsertAfter("!");
    EXPECT_EQ(CellText(1, 1), "f!") << "a range moves along with its cell";
    EXPECT_EQ(table.Cell(1, 2).Range.Text.Read(), "c\r\a");

    EXPECT_EQ(ErrorOf([&] { table.Cell(3, 1); }), error::kNoSuchElement) << "joined to the one above";
    EXPECT_EQ(ErrorOf([&] { table.Cell(1, 3); }), error::kNoSuchElement);
    EXPECT_EQ(ErrorOf([&] { table.Rows(1); }), error::kMergedRows);
    EXPECT_EQ(ErrorOf([&] { table.Columns(1); }), error::kMixedCellWidths);
}

TEST_F(EngineTables, OnlyRectanglesMerge) {
    const Table table = doc.Tables.Add(sel.Range(), 2, 3);
    table.Cell(1, 1).Merge(table.Cell(1, 2));
    EXPECT_EQ(ErrorOf([&] { table.Cell(2, 2).Merge(table.Cell(1, 2)); }), error::kBadValue);
    EXPECT_EQ(TableOf(0).rows[1].cells.size(), 3u) << "a refused merge changes nothing";
    const Range above = sel.Range();
    const Table other = doc.Tables.Add(above, 1, 1);
    EXPECT_EQ(ErrorOf([&] { table.Cell(1, 1).Merge(other.Cell(1, 1)); }), error::kBadValue);
}

TEST_F(EngineTables, BordersOfTheTableAndOfOneRow) {
    const Table table = doc.Tables.Add(sel.Range(), 3, 2);
    EXPECT_EQ(table.Borders.OutsideLineStyle, LineStyleNone);
    table.Borders.OutsideLineStyle = LineStyleDouble;
    table.Borders.InsideLineStyle = LineStyleSingle;
    EXPECT_EQ(table.Borders.LineStyle, 9999999);
    EXPECT_EQ(table.Rows(2).Borders.InsideLineStyle, LineStyleSingle);
    table.Rows(2).Borders.LineStyle = LineStyleNone;
    EXPECT_EQ(table.Rows(2).Borders.LineStyle, LineStyleNone);
    EXPECT_EQ(TableOf(0).rows[0].cells[1].borders[2], docx::BorderLine{LineStyleNone})
        << "the line they share";
    EXPECT_EQ(TableOf(0).rows[0].cells[1].borders[0], std::nullopt);
    table.Borders.LineStyle = LineStyleSingle;
    EXPECT_EQ(table.Rows(2).Borders.LineStyle, LineStyleSingle);
    EXPECT_EQ(ErrorOf([&] { table.Borders.LineStyle = 99; }), error::kBadValue);
}

TEST_F(EngineTables, RowsHaveHeightShadingAndFont) {
    const Table table = doc.Tables.Add(sel.Range(), 2, 2);
    table.Cell(1, 1).Range.Text = "head";
    const Row row = table.Rows(1);
    row.Height = 30;
    row.Shading.BackgroundPatternColor = 0xD9D9D9;
    row.Range.Font.Bold = true;
    row.Range.ParagraphFormat.Alignment = AlignCentre;
    table.Cell(1, 2).VerticalAlignment = CellAlignCentre;
    const docx::TableRow& model = TableOf(0).rows[0];
    EXPECT_EQ(model.height, 600);
    EXPECT_EQ(model.heightRule, "atLeast");
    EXPECT_EQ(model.cells[1].fill, 0xD9D9D9);
    EXPECT_EQ(model.cells[1].verticalAlignment, CellAlignCentre);
    const auto& empty = std::get<docx::Paragraph>(model.cells[1].blocks.front());
    EXPECT_EQ(Model().charFormats[empty.markFormat].bold, true) << "so that text put in later is bold too";
    EXPECT_TRUE(row.Range.Font.Bold);
    EXPECT_EQ(TableOf(0).rows[1].cells[0].fill, std::nullopt);
}

TEST_F(EngineTables, ABreakKeptAtATableGoesInFrontOfIt) {
    sel.TypeText("first");
    sel.TypeText("\r");
    const Range start = sel.Range();
    const Range place = sel.Range();
    sel.TypeText("end");
    const Table table = doc.Tables.Add(place, 1, 1);
    table.Cell(1, 1).Range.Text = "cell";
    start.InsertBreak(SectionBreakNextPage);
    EXPECT_THAT(Texts(), ElementsAre("first", "=", "<table>", "end"));
    EXPECT_EQ(doc.Sections.Count(), 2);
}

TEST_F(EngineTables, ATableWhoseTextIsTakenOutIsGone) {
    const Table table = doc.Tables.Add(sel.Range(), 1, 1);
    const Range cell = table.Cell(1, 1).Range;
    doc.Select();
    sel.TypeText("all new");
    EXPECT_THAT(Texts(), ElementsAre("all new"));
    EXPECT_EQ(ErrorOf([&] { table.Cell(1, 1); }), error::kObjectDeleted);
    cell.InsertAfter("");
}

}  // namespace
}  // namespace quillmark::word::test
