#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <random>

#include "word/docx/check/package_check.h"
#include "word/docx/write/document_writer.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

/// Builds documents of every kind of block and content, from a seed.
class RandomDocument {
 public:
    explicit RandomDocument(unsigned seed) : random_(seed), document_(test::EmptyDocument()) {}

    std::unique_ptr<Document> Build() {
        document_->abstractLists.push_back({{{1, "decimal", "%1.", 360, -360, ""}}, ""});
        document_->lists = {{0, false, ""}, {0, true, ""}};
        FillBlocks(document_->body, Below(12), 2);
        for (Block& block : document_->body) {
            auto* paragraph = std::get_if<Paragraph>(&block);
            if (paragraph && OneIn(4)) paragraph->section = std::make_unique<SectionProperties>(Section());
        }
        document_->lastSection = Section();
        document_->evenAndOddHeaders = OneIn(2);
        return std::move(document_);
    }

 private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    bool OneIn(int n) { return Below(n) == 0; }

    std::string Text() {
        constexpr std::string_view kPieces[] = {"deed ", "&<>\"'",      "\t",           "\v", "\f",
                                                "\x0e",  "caf\xC3\xA9", "\xE2\x80\x94", " ",  "\x02"};
        std::string text;
        for (int n = Below(6); n >= 0; --n) text += kPieces[Below(static_cast<int>(std::size(kPieces)))];
        return text;
    }

    CharFormat Look() {
        CharFormat look;
        if (OneIn(2)) look.font = "Arial";
        if (OneIn(3)) look.bold = OneIn(2);
        if (OneIn(3)) look.halfPoints = 14 + Below(20);
        if (OneIn(4)) look.underline = Below(4);
        return look;
    }

    ParaFormat Format() {
        ParaFormat format;
        if (OneIn(3)) format.numId = Below(3);
        if (OneIn(3)) format.tabs = {{Below(9000), "left", ""}};
        if (OneIn(2)) format.line = 200 + Below(200);
        if (OneIn(2)) format.leftIndent = Below(2000) - 500;
        if (OneIn(2)) format.firstLine = Below(2000) - 1000;
        if (OneIn(2)) format.alignment = Below(4);
        return format;
    }

    InlineObject Object() {
        const std::string name = "Text" + std::to_string(Below(5));
        switch (Below(4)) {
            case 0:
                return Picture{test::PngBytes(1 + Below(3), 5), "png", 1000 * (1 + Below(9)), 2000};
            case 1:
                return FormFieldData{.name = name, .result = Text()};
            case 2:
                return FormFieldData{.name = name, .isCheckBox = true, .checked = OneIn(2)};
            default:
                return RawInline{"<w:r><w:t>raw</w:t></w:r>"};
        }
    }

    void AddParagraph(Blocks& blocks) {
        Paragraph& paragraph = test::AddParagraph(*document_, blocks, Text(), Format(), Look());
        for (int n = Below(4); n > 0; --n) {
            if (OneIn(3)) test::Insert(*document_, paragraph, Object(), Look());
            test::Type(*document_, paragraph, Text(), Look());
        }
        const int bookmark = document_->nextBookmarkId++;
        auto start = static_cast<std::size_t>(Below(static_cast<int>(paragraph.text.size())));
        while (start > 0 && (paragraph.text[start] & 0xC0) == 0x80) --start;
        paragraph.anchors = {{start, true, bookmark, "mark" + std::to_string(Below(20))},
                             {paragraph.text.size(), false, bookmark, ""}};
    }

    void AddTable(Blocks& blocks, int depth) {
        auto table = std::make_unique<Table>();
        table->grid.assign(static_cast<std::size_t>(1 + Below(4)), 1500);
        for (int rows = Below(3); rows >= 0; --rows) {
            TableRow& row = table->rows.emplace_back();
            for (int left = static_cast<int>(table->grid.size()); left > 0; left -= row.cells.back().span) {
                TableCell& cell = row.cells.emplace_back();
                cell.span = 1 + Below(left);
                FillBlocks(cell.blocks, Below(2), depth - 1);
            }
        }
        blocks.emplace_back(std::move(table));
    }

    void FillBlocks(Blocks& blocks, int count, int depth) {
        for (int n = 0; n < count; ++n) {
            if (depth > 0 && OneIn(4)) AddTable(blocks, depth);
            if (OneIn(8)) blocks.emplace_back(RawBlock{"<w:p/>"});
            AddParagraph(blocks);
        }
    }

    SectionProperties Section() {
        SectionProperties section;
        section.start = Below(5);
        section.pageHeight = OneIn(2) ? 15840 : 20160;
        section.columns = 1 + Below(3);
        section.titlePage = OneIn(3);
        for (auto* stories : {&section.headers, &section.footers}) {
            for (auto& story : *stories) {
                if (OneIn(2)) continue;
                story = std::make_unique<Story>();
                FillBlocks(story->blocks, Below(3), 1);
            }
        }
        return section;
    }

    std::mt19937 random_;
    std::unique_ptr<Document> document_;
};

/// What the model says of the paragraphs of the body, form fields and raw XML included.
void AppendExpected(std::string& text, const Paragraph& paragraph) {
    auto object = paragraph.objects.begin();
    for (const char c : paragraph.text) {
        if (c == character::kTab) text += "[tab]";
        if (c == character::kLineBreak || c == character::kPageBreak || c == character::kColumnBreak)
            text += "[br]";
        if (static_cast<unsigned char>(c) >= 0x20) text += c;
        if (c != character::kObject) continue;
        if (std::holds_alternative<Picture>(*object)) text += "[picture]";
        if (std::holds_alternative<RawInline>(*object)) text += "raw";
        if (std::holds_alternative<FormFieldData>(*object)) text += "[field]";
        ++object;
    }
    text += '\n';
}

/// What the written XML says of them; what is inside a field counts for nothing.
struct TextWalker : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node& node) override {
        const std::string_view name = node.name();
        if (name == "w:fldChar") {
            const std::string_view type = node.attribute("w:fldCharType").value();
            if (type == "begin") text += "[field]";
            inField = type != "end";
        }
        if (inField) return true;
        if (name == "w:t") text += node.text().get();
        if (name == "w:tab" && std::string_view(node.parent().name()) == "w:r") text += "[tab]";
        if (name == "w:br") text += "[br]";
        if (name == "w:drawing") text += "[picture]";
        return true;
    }
    std::string text;
    bool inField = false;
};

TEST(RandomDocuments, AreGoodPackagesThatSayWhatTheModelSays) {
    for (unsigned seed = 1; seed <= 150; ++seed) {
        const auto document = RandomDocument(seed).Build();
        const std::string package = write::WriteDocx(*document);
        ASSERT_THAT(check::CheckPackage(package), ::testing::IsEmpty()) << "seed " << seed;
        ASSERT_EQ(package, write::WriteDocx(*RandomDocument(seed).Build())) << "seed " << seed;

        std::string expected, written;
        for (const Block& block : document->body) {
            if (const auto* paragraph = std::get_if<Paragraph>(&block)) AppendExpected(expected, *paragraph);
        }
        const std::string xml = test::Unzip(package).at("word/document.xml");
        pugi::xml_document parsed;
        ASSERT_TRUE(parsed.load_buffer(xml.data(), xml.size(), pugi::parse_default | pugi::parse_ws_pcdata));
        for (const pugi::xml_node paragraph : parsed.document_element().child("w:body").children("w:p")) {
            if (!paragraph.first_child()) continue;  // the raw ones
            TextWalker walker;
            pugi::xml_node(paragraph).traverse(walker);
            written += walker.text + "\n";
        }
        ASSERT_EQ(written, expected) << "seed " << seed;
    }
}

}  // namespace
}  // namespace quillmark::word::docx
