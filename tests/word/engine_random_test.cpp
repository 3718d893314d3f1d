#include <gtest/gtest.h>

#include <array>
#include <random>

#include "word/docx/check/package_check.h"
#include "word/docx/read/document_reader.h"
#include "word/docx/write/document_writer.h"
#include "word/engine_session.h"

namespace quillmark::word::test {
namespace {

/// Drives an engine with operations that a builder could make, in any order; what the engine refuses for a
/// reason of its own (a break inside a table, cells that form no rectangle) is part of the game.
class Monkey : public EngineSession {
 public:
    explicit Monkey(unsigned seed) : random_(seed) {
        quillmark::test::WriteBytes(folder / "p.png", PngBytes(400, 100));
        lists_ = {doc.ListTemplates.Add(false), doc.ListTemplates.Add(true)};
        ranges_.push_back(sel.Range());
        tables_.push_back(doc.Tables.Add(sel.Range(), 3, 3));
    }

    void Act() {
        const int refusal = ErrorOf([this] { Operation(); });
        const bool isExpected = refusal == 0 || refusal == error::kNotAvailable ||
                                refusal == error::kBadValue || refusal == error::kNoSuchElement ||
                                refusal == error::kObjectDeleted || refusal == error::kMergedRows ||
                                refusal == error::kMixedCellWidths;
        EXPECT_TRUE(isExpected) << "error " << refusal;
    }

    std::string Fault() {
        if (std::string fault = FaultIn(Model()); !fault.empty()) return fault;
        int ends = 1;
        for (const docx::Block& block : Model().body)
            if (const auto* paragraph = std::get_if<docx::Paragraph>(&block))
                ends += paragraph->section != nullptr;
        if (doc.Sections.Count() != ends) return "sections that were not counted";
        for (const Range& range : ranges_) static_cast<void>(range.Text.Read());
        for (int i = 1; i <= doc.FormFields.Count(); ++i) static_cast<void>(doc.FormFields(i).Result.Read());
        return {};
    }

 private:
    int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

    std::string SomeText() {
        static constexpr std::array kPieces = {"word ", "§ “q” ",        "\r", "\t", "\v", "\r\r",
                                               "",      "longer text. ", "\f"};
        std::string text;
        for (int n = Below(4); n >= 0; --n) text += kPieces[static_cast<std::size_t>(Below(kPieces.size()))];
        return text;
    }

    const Range& SomeRange() {
        return ranges_[static_cast<std::size_t>(Below(static_cast<int>(ranges_.size())))];
    }

    Range SomeCell() {
        return SomeCellOf(tables_[static_cast<std::size_t>(Below(static_cast<int>(tables_.size())))]).Range;
    }
    Cell SomeCellOf(const Table& table) { return table.Cell(1 + Below(3), 1 + Below(3)); }
    Section SomeSection() { return doc.Sections(1 + Below(doc.Sections.Count())); }

    void Operation() {
        switch (Below(4)) {
            case 0:
                return Type();
            case 1:
                return Format();
            case 2:
                return Insert();
            default:
                return Below(3) ? UseRange() : UseTable();
        }
    }

    void Type() {
        if (Below(4) == 0) return sel.TypeBackspace();
        if (Below(40) == 0) return sel.GoTo(GoToLine, GoToFirst);
        sel.TypeText(SomeText());
    }

    void Format() {
        switch (Below(9)) {
            case 0:
                sel.Font.Bold = Below(2) == 0;
                break;
            case 1:
                sel.Font.Size = 8 + Below(5);
                break;
            case 2:
                sel.Paragraphs.LeftIndent = Below(3) * 9;
                break;
            case 3:
                sel.Paragraphs.TabStops.Add(Below(3) * 100 + 10);
                break;
            case 4:
                sel.Paragraphs.TabStops.ClearAll();
                break;
            case 5:
                sel.ListFormat().ApplyListTemplate(lists_[static_cast<std::size_t>(Below(2))]);
                break;
            case 6:
                Below(2) ? sel.ListFormat().ListIndent() : sel.ListFormat().ListOutdent();
                break;
            case 7:
                Below(2) ? sel.ListFormat().RemoveNumbers() : sel.ListFormat().ApplyBulletDefault();
                break;
            default:
                doc.Content.Font.Name = "Arial";
                break;
        }
    }

    void Insert() {
        switch (Below(7)) {
            case 0:
                ranges_.push_back(sel.Range());
                break;
            case 1:
                sel.InsertBreak(Below(2) ? SectionBreakNextPage : SectionBreakContinuous);
                break;
            case 2:
                doc.FormFields.Add(sel.Range(), Below(2) ? FieldFormCheckBox : FieldFormTextInput);
                break;
            case 3:
                sel.InlineShapes.AddPicture("p.png");
                break;
            case 4:
                tables_.push_back(doc.Tables.Add(SomeRange(), 3, 3));
                break;
            case 5:
                SomeSection().Footers(1 + Below(3)).LinkToPrevious = Below(2) == 0;
                break;
            default:
                ranges_.push_back(SomeSection().Footers(1 + Below(3)).Range());
                break;
        }
    }

    void UseRange() {
        const Range& range = SomeRange();
        switch (Below(7)) {
            case 0:
                range.InsertAfter(SomeText());
                break;
            case 1:
                range.Text = SomeText();
                break;
            case 2:
                range.Font.Italic = true;
                break;
            case 3:
                range.MoveStart(UnitStory);
                break;
            case 4:
                range.Fields.Add(range, FieldPage);
                break;
            case 5:
                range.InsertBreak(Below(3) ? SectionBreakNextPage : PageBreak);
                break;
            default:
                ranges_.push_back(SomeCell());
                break;
        }
    }

    void UseTable() {
        const Table& table = tables_[static_cast<std::size_t>(Below(static_cast<int>(tables_.size())))];
        switch (Below(6)) {
            case 0:
                SomeCellOf(table).Select();
                break;
            case 1:
                SomeCellOf(table).Merge(SomeCellOf(table));
                break;
            case 2:
                SomeCellOf(table).Range.Text = SomeText();
                break;
            case 3:
                table.Rows(1 + Below(3)).Borders.LineStyle = LineStyleSingle;
                break;
            case 4:
                table.Rows(1 + Below(3)).Range.Font.Bold = true;
                break;
            default:
                if (Below(20) == 0) doc.Select();
                break;
        }
    }

    std::mt19937 random_;
    std::array<ListTemplate, 2> lists_;
    std::vector<Range> ranges_;
    std::vector<Table> tables_;
};

TEST(EngineRandom, TheModelStaysWholeWhateverIsDone) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        Monkey monkey(seed);
        for (int step = 0; step < 400; ++step) {
            monkey.Act();
            ASSERT_EQ(monkey.Fault(), "") << "seed " << seed << ", step " << step;
        }
    }
}

TEST(EngineRandom, WhateverWasDoneIsWrittenAndReadBack) {
    for (unsigned seed = 100; seed < 130; ++seed) {
        Monkey monkey(seed);
        for (int step = 0; step < 200; ++step) monkey.Act();
        const std::string bytes = docx::write::WriteDocx(monkey.Model());
        EXPECT_EQ(docx::check::CheckPackage(bytes), std::vector<std::string>()) << "seed " << seed;
        quillmark::test::WriteBytes(monkey.folder / "again.docx", bytes);
        const std::string text = monkey.doc.Content.Text;
        const std::size_t sections = static_cast<std::size_t>(monkey.doc.Sections.Count());
        const Document again = monkey.app.Documents.Open("again.docx");
        EXPECT_EQ(again.Content.Text.Read(), text) << "seed " << seed;
        EXPECT_EQ(static_cast<std::size_t>(again.Sections.Count()), sections) << "seed " << seed;
        EXPECT_EQ(FaultIn(docx::objects::ModelOf(again.Reach())), "") << "seed " << seed;
    }
}

}  // namespace
}  // namespace quillmark::word::test
