#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "word/docx/read/document_reader.h"
#include "word/docx/write/document_writer.h"
#include "word/reader_dump.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

/// Documents of everything that the model can say and a file can hold.
class RandomModel {
 public:
    explicit RandomModel(unsigned seed) : random_(seed), document_(test::EmptyDocument()) {}

    std::unique_ptr<Document> Build() {
        document_->abstractLists.push_back({{{1, "decimal", "%1.", 360, -360, ""}}, ""});
        document_->lists = {{0, false, ""}, {0, true, ""}};
        Fill(document_->body, 1 + Below(6), 2);
        for (Block& block : document_->body) {
            auto* paragraph = std::get_if<Paragraph>(&block);
            const bool isLast = &block == &document_->body.back();
            if (paragraph && !isLast && OneIn(4))
                paragraph->section = std::make_unique<SectionProperties>(Section());
        }
        document_->lastSection = Section();
        document_->defaultTabStop = Below(1000);
        document_->protection = OneIn(2) ? 2 : -1;
        document_->evenAndOddHeaders = OneIn(2);
        return std::move(document_);
    }

 private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    bool OneIn(int n) { return Below(n) == 0; }
    std::optional<int> Perhaps(int from, int to) {
        return OneIn(2) ? std::optional(from + Below(to - from)) : std::nullopt;
    }
    std::optional<bool> PerhapsFlag() { return OneIn(2) ? std::optional(OneIn(2)) : std::nullopt; }

    std::string Words() {
        constexpr std::string_view kPieces[] = {"deed", " ",    "&<>\"'",   "\t", "\v",
                                                "\f",   "\x0e", "\xC3\xA9", "]]>"};
        std::string text;
        for (int n = Below(5); n >= 0; --n) text += kPieces[Below(static_cast<int>(std::size(kPieces)))];
        return text;
    }
    CharFormat Look() {
        CharFormat look{.bold = PerhapsFlag(), .italic = PerhapsFlag(), .halfPoints = Perhaps(2, 3000)};
        if (OneIn(2)) look.font = "Courier & \"New\"";
        if (OneIn(3)) look.underline = Below(2) * 3;
        if (OneIn(3)) look.superscript = OneIn(2);
        if (OneIn(3)) look.extra = {{"caps", "<w:caps/>"}, {"color", "<w:color w:val=\"FF0000\"/>"}};
        return look;
    }
    ParaFormat Format() {
        ParaFormat format{
            .numId = Perhaps(0, 3), .spaceBefore = Perhaps(0, 500), .spaceAfter = Perhaps(0, 500)};
        if (OneIn(2)) format.style = "ListParagraph";
        if (format.numId) format.listLevel = Below(9);
        if (OneIn(2)) format.tabs = {{-20, "clear", ""}, {300 + Below(9), "decimal", "dot"}};
        format.line = Perhaps(1, 999);
        if (format.line) format.lineRule = static_cast<LineRule>(Below(3));
        format.leftIndent = Perhaps(-999, 999);
        format.rightIndent = Perhaps(-999, 999);
        format.firstLine = Perhaps(-999, 999);
        format.alignment = Perhaps(0, 4);
        if (OneIn(2))
            format.extra = {{"keepNext", "<w:keepNext/>"}, {"outlineLvl", "<w:outlineLvl w:val=\"1\"/>"}};
        return format;
    }
    InlineObject Object() {
        const std::string name = "Field" + std::to_string(++names_);
        switch (Below(3)) {
            case 0:
                if (OneIn(2)) return Picture{"BM and pixels", "bmp", 1 + Below(9999), 1};
                return Picture{test::PngBytes(1 + Below(3), 5), "png", 1 + Below(9999), 2000};
            case 1:
                return FormFieldData{.name = name, .result = OneIn(2) ? "" : Words()};
            default:
                return FormFieldData{.name = name, .isCheckBox = true, .checked = OneIn(2)};
        }
    }
    void AddField(Paragraph& paragraph) {
        const CharFormat look = Look();
        test::Insert(*document_, paragraph, FieldBegin{}, look);
        test::Insert(*document_, paragraph, FieldInstruction{" PAGE \\* \"x\" "}, look);
        test::Insert(*document_, paragraph, FieldSeparator{}, look);
        test::Type(*document_, paragraph, "12", look);
        test::Insert(*document_, paragraph, FieldEnd{}, look);
    }
    void AddParagraph(Blocks& blocks) {
        Paragraph& paragraph =
            test::AddParagraph(*document_, blocks, OneIn(4) ? "" : Words(), Format(), Look());
        for (int n = Below(4); n > 0; --n) {
            if (OneIn(3)) test::Insert(*document_, paragraph, Object(), Look());
            if (OneIn(6)) test::Insert(*document_, paragraph, RawInline{"<w:r><w:softHyphen/></w:r>"});
            if (OneIn(5)) AddField(paragraph);
            test::Type(*document_, paragraph, Words(), Look());
        }
        if (!OneIn(3)) return;
        const int id = document_->nextBookmarkId++;
        paragraph.anchors = {{0, true, id, "mark" + std::to_string(++names_)},
                             {paragraph.text.size(), false, id, ""}};
    }
    BorderLine Line() { return {OneIn(2) ? 1 : Below(2) * 7}; }
    void AddTable(Blocks& blocks, int depth) {
        auto table = std::make_unique<Table>();
        table->grid.assign(static_cast<std::size_t>(1 + Below(4)), 100 + Below(999));
        for (auto& line : table->borders) line = OneIn(2) ? std::optional(Line()) : std::nullopt;
        if (OneIn(2)) table->extra = {{"jc", "<w:jc w:val=\"center\"/>"}};
        for (int rows = Below(3); rows >= 0; --rows) {
            TableRow& row = table->rows.emplace_back();
            row.height = Perhaps(1, 999);
            if (row.height && OneIn(2)) row.heightRule = OneIn(2) ? "exact" : "atLeast";
            if (OneIn(3)) row.extra = {{"cantSplit", "<w:cantSplit/>"}};
            for (int left = static_cast<int>(table->grid.size()); left > 0; left -= row.cells.back().span) {
                TableCell& cell = row.cells.emplace_back();
                cell.span = 1 + Below(left);
                cell.vertical = static_cast<Merge>(Below(3));
                cell.fill = Perhaps(0, 0xFFFFFF);
                if (OneIn(2)) cell.verticalAlignment = Below(2) * 3;
                for (auto& line : cell.borders) line = OneIn(3) ? std::optional(Line()) : std::nullopt;
                if (OneIn(3)) cell.extra = {{"noWrap", "<w:noWrap/>"}};
                Fill(cell.blocks, 1 + Below(2), depth - 1);
            }
        }
        blocks.emplace_back(std::move(table));
    }
    void Fill(Blocks& blocks, int count, int depth) {
        for (int n = 0; n < count; ++n) {
            if (depth > 0 && OneIn(3)) AddTable(blocks, depth);
            AddParagraph(blocks);
        }
    }
    SectionProperties Section() {
        SectionProperties section;
        section.start = Below(5);
        section.topMargin = Below(3000) - 1000;
        section.leftMargin = Below(3000);
        section.gutter = Below(99);
        section.landscape = OneIn(2);
        section.pageNumberStart = Perhaps(0, 99);
        section.columns = 1 + Below(3);
        section.columnSpacing = Below(999);
        if (OneIn(3)) section.unequalColumns = {{1000, 200}, {2000, 0}};
        if (!section.unequalColumns.empty()) {
            section.columns = 2;
            section.columnSpacing = 720;
        }
        section.protectedForForms = OneIn(2);
        section.titlePage = OneIn(3);
        if (OneIn(3)) section.extra = {{"vAlign", "<w:vAlign w:val=\"center\"/>"}};
        for (auto* stories : {&section.headers, &section.footers}) {
            for (auto& story : *stories) {
                if (OneIn(2)) continue;
                story = std::make_unique<Story>();
                Fill(story->blocks, 1, 1);
                test::AddParagraph(*document_, story->blocks, "not empty");
            }
        }
        return section;
    }

    std::mt19937 random_;
    std::unique_ptr<Document> document_;
    int names_ = 0;
};

TEST(ReaderRoundTrip, WhatIsWrittenIsReadBack) {
    for (unsigned seed = 1; seed <= 120; ++seed) {
        SCOPED_TRACE(seed);
        const auto document = RandomModel(seed).Build();
        const std::string bytes = write::WriteDocx(*document);
        const auto opened = read::OpenDocxBytes(bytes);
        ASSERT_EQ(test::Dump(*opened), test::Dump(*document));
        ASSERT_EQ(test::Faults(*opened), "");
        // What was read is written as it was, lists and parts included.
        ASSERT_EQ(test::Dump(*read::OpenDocxBytes(write::WriteDocx(*opened))), test::Dump(*document));
    }
}

TEST(ReaderRoundTrip, ListsAndStylesAreReadBack) {
    const auto document = test::SampleDocument();
    document->lastSection.start = 2;  // on other paper, it would not be written as continuous
    const auto opened = read::OpenDocxBytes(write::WriteDocx(*document));
    EXPECT_EQ(test::Dump(*opened), test::Dump(*document));
    EXPECT_EQ(test::PartOf(*opened, "word/numbering.xml"), test::PartOf(*document, "word/numbering.xml"));
    EXPECT_EQ(test::PartOf(*opened, "word/styles.xml"), test::PartOf(*document, "word/styles.xml"));
    EXPECT_EQ(test::PartOf(*opened, "word/settings.xml"), test::PartOf(*document, "word/settings.xml"));
}

}  // namespace
}  // namespace quillmark::word::docx
