#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "word/docx/find/find_replace.h"
#include "word/reader_dump.h"
#include "word/writer_samples.h"

namespace quillmark::word::docx {
namespace {

using test::AddParagraph;
using test::Text;
using test::Type;

class FindTest : public testing::Test {
 protected:
    find::FindResult FindText(std::string_view text) {
        return docx::find::Find(*document, document->body, {text});
    }
    int ReplaceAllOf(std::string_view text, std::string_view with,
                     const find::ClipboardContent& clipboard = {}) {
        const find::FindRequest request{text, with, ReplaceAll, FindStop, &clipboard};
        const int replaced = docx::find::Find(*document, document->body, request).replaced;
        EXPECT_EQ(test::Faults(*document), "");
        return replaced;
    }
    Paragraph& Add(std::string_view text, const ParaFormat& format = {}) {
        return AddParagraph(*document, document->body, text, format);
    }
    Paragraph& At(int index) { return std::get<Paragraph>(*std::next(document->body.begin(), index)); }
    const CharFormat& LookAt(int paragraph, std::size_t span) {
        return document->charFormats[At(paragraph).spans.at(span).format];
    }
    /// Ends the last paragraph's section, which starts as this number says.
    SectionProperties& EndSection(int start) {
        auto& section = std::get<Paragraph>(document->body.back()).section;
        section = std::make_unique<SectionProperties>();
        section->start = start;
        return *section;
    }

    std::unique_ptr<Document> document = test::EmptyDocument();
};

TEST_F(FindTest, SplitRunsCapitalsAndCurlyQuotesDoNotMatter) {
    Paragraph& paragraph = Add("the ");
    Type(*document, paragraph, "[SEL", {.italic = true});
    Type(*document, paragraph, "LER\xE2\x80\x99S", {.bold = true});
    Type(*document, paragraph, " N\xC3\x89] and");
    paragraph.anchors = {{6, true, 1, "in"}, {8, false, 1, ""}};
    const find::FindResult found = FindText("[seller's n\xC3\xA9]");
    ASSERT_TRUE(found.found);
    EXPECT_EQ(found.match->start.offset, 4u);
    EXPECT_EQ(found.match->end.offset, 20u);
    EXPECT_EQ(ReplaceAllOf("[Seller's N\xC3\xA9]", "Jane Doe"), 1);
    EXPECT_EQ(Text(document->body), "the Jane Doe and\n");
    // The first character replaced was in italics.
    EXPECT_EQ(LookAt(0, 1).italic, true);
    EXPECT_EQ(At(0).spans.at(1).length, 8u);
    EXPECT_EQ(At(0).anchors.at(1).offset, 4u);
}

TEST_F(FindTest, TablesAtAnyDepthAreSearched) {
    auto outer = std::make_unique<Table>();
    auto inner = std::make_unique<Table>();
    AddParagraph(*document, inner->rows.emplace_back().cells.emplace_back().blocks, "[x] [X]");
    Blocks& cell = outer->rows.emplace_back().cells.emplace_back().blocks;
    cell.emplace_back(std::move(inner));
    AddParagraph(*document, cell, "[x]");
    document->body.emplace_back(std::move(outer));
    Add("[x]");
    EXPECT_EQ(ReplaceAllOf("[x]", "[x][x]"), 4);
    EXPECT_EQ(Text(document->body), "[[[x][x] [x][x]\n]\n[x][x]\n]\n[x][x]\n");
}

TEST_F(FindTest, CodesOfBothTexts) {
    Add("a\tb\vc\fd^e");
    EXPECT_TRUE(FindText("a^tB^lc^md^^e").found);
    EXPECT_FALSE(FindText("a b").found);
    EXPECT_EQ(ReplaceAllOf("b^lc", "^t^l^m^^^&^q"), 1);
    EXPECT_EQ(Text(document->body), "a<9><9><b><c>^b<b>c^q<c>d^e\n");
}

TEST_F(FindTest, ParagraphsInTheReplacementKeepTheFormat) {
    Paragraph& paragraph = Add("to [address], CT", {.leftIndent = 720});
    test::Insert(*document, paragraph, FieldInstruction{"behind"});
    paragraph.anchors = {{0, true, 1, "m"}, {paragraph.text.size(), false, 1, ""}};
    EndSection(0);
    Add("next");
    const find::FindRequest request{"[ADDRESS]", "1 Elm St\rUnit 2", ReplaceAll};
    const find::FindResult found = docx::find::Find(*document, document->body, request);
    EXPECT_EQ(Text(document->body), "to 1 Elm St\nUnit 2, CT<1>=\nnext\n");
    EXPECT_EQ(document->paraFormats[At(0).format].leftIndent, 720);
    EXPECT_EQ(document->paraFormats[At(1).format].leftIndent, 720);
    EXPECT_EQ(&std::get<Paragraph>(*found.match->start.block), &At(0));
    EXPECT_EQ(found.match->start.offset, 3u);
    EXPECT_EQ(&std::get<Paragraph>(*found.match->end.block), &At(1));
    EXPECT_EQ(found.match->end.offset, 6u);
    EXPECT_EQ(At(1).anchors.at(0).offset, At(1).text.size());
    EXPECT_EQ(test::Faults(*document), "");
}

TEST_F(FindTest, TheClipboardGoesInWhole) {
    Add("see [long] and [image]");
    EXPECT_EQ(ReplaceAllOf("[long]", "^c", std::string(300, 'x') + "\r\nsecond^p"), 1);
    EXPECT_EQ(Text(document->body), "see " + std::string(300, 'x') + "\nsecond^p and [image]\n");
    EXPECT_EQ(ReplaceAllOf("[image]", "^c", Picture{"bytes", "png", 5, 6}), 1);
    EXPECT_EQ(std::get<Picture>(At(1).objects.at(0)).widthEmu, 5);
    EXPECT_THROW(ReplaceAllOf("see", "^c"), AutomationError);
}

TEST_F(FindTest, WhatFormFieldsHoldIsText) {
    Paragraph& paragraph = Add("[x] ");
    test::Insert(*document, paragraph,
                 FormFieldData{.name = "Check1", .isCheckBox = true, .result = "[buyer]"});
    test::Insert(*document, paragraph, FormFieldData{.name = "Text1", .result = "by [BUYER], [x]"});
    const find::FindResult found = FindText("[buyer]");
    ASSERT_TRUE(found.found);
    EXPECT_EQ(found.match->start.offset, 5u);
    EXPECT_EQ(ReplaceAllOf("[x]", "one^ptwo"), 2);
    EXPECT_EQ(ReplaceAllOf("[buyer]", "^& & Co."), 1);
    EXPECT_EQ(std::get<FormFieldData>(At(1).objects.at(1)).result, "by [BUYER] & Co., one\vtwo");
    EXPECT_EQ(Text(document->body), "one\ntwo <1><1>\n");
    // A field that ends up in another paragraph than the text's last match.
    test::Type(*document, At(1), " [x]");
    EXPECT_EQ(ReplaceAllOf("two", "[x]"), 2);
    EXPECT_EQ(ReplaceAllOf("[X]", "1^p2"), 3);
    EXPECT_EQ(Text(document->body), "one\n1\n2 <1><1> 1\n2\n");
    EXPECT_EQ(std::get<FormFieldData>(At(2).objects.at(1)).result, "by [BUYER] & Co., one\v1\v2");
}

TEST_F(FindTest, ReplacedMarksJoinParagraphsUnderTheNextFormat) {
    Add("one", {.alignment = 1});
    Add("two", {.alignment = 2});
    Add("three", {.alignment = 3});
    EXPECT_TRUE(FindText("three^p").found);
    EXPECT_EQ(ReplaceAllOf("^p", "-"), 2);
    EXPECT_EQ(Text(document->body), "one-two-three\n");
    EXPECT_EQ(document->paraFormats[At(0).format].alignment, 3);
    EXPECT_EQ(ReplaceAllOf("-", "^p"), 2);
    EXPECT_EQ(ReplaceAllOf("O^pT", "0^l1"), 1);
    EXPECT_EQ(Text(document->body), "one\ntw0<b>1hree\n");
}

TEST_F(FindTest, SectionBreaksBecomePageBreaks) {
    Add("cover", {.alignment = 1});
    SectionProperties& first = EndSection(2);
    first.pageHeight = 20160;
    first.footers[0] = std::make_unique<Story>();
    AddParagraph(*document, first.footers[0]->blocks, "of the first");
    Add("");
    EndSection(0);
    document->body.emplace_back(std::make_unique<Table>());
    AddParagraph(*document,
                 std::get<1>(document->body.back())->rows.emplace_back().cells.emplace_back().blocks, "t");
    Add("end");
    document->lastSection.leftMargin = 99;
    EXPECT_TRUE(FindText("^b").found);
    EXPECT_EQ(ReplaceAllOf("^b", "^m"), 2);
    EXPECT_EQ(Text(document->body), "cover<c>\n<c>\n[t\n]\nend\n");
    EXPECT_FALSE(FindText("^b").found);
    EXPECT_EQ(document->paraFormats[At(0).format].alignment, 1);
    // The text has the last section's page now, which shows the footer that it showed.
    EXPECT_EQ(document->lastSection.leftMargin, 99);
    ASSERT_TRUE(document->lastSection.footers[0]);
    EXPECT_EQ(Text(document->lastSection.footers[0]->blocks), "of the first\n");
}

TEST_F(FindTest, ASectionBreakTakenOutJoinsItsParagraphs) {
    Add("first", {.alignment = 1});
    EndSection(2);
    Add("second", {.alignment = 2});
    EXPECT_EQ(ReplaceAllOf("st^bse", "-"), 1);
    EXPECT_EQ(Text(document->body), "fir-cond\n");
    EXPECT_EQ(document->paraFormats[At(0).format].alignment, 2);
}

TEST_F(FindTest, RangesAndGoingOnAroundTheEnd) {
    Add("ab ab");
    Add("ab");
    const auto first = document->body.begin();
    const Place behind{&document->body, first, 4};
    const auto find = [&](const Place& from, const Place& to, FindWrap wrap,
                          FindReplace replace = ReplaceNone) {
        return docx::find::Find(*document, document->body, {"AB", "x", replace, wrap},
                                find::TextRange{from, to});
    };
    find::FindResult found = find(behind, behind, FindStop);
    ASSERT_TRUE(found.found);
    EXPECT_EQ(found.match->start.block, std::next(first));
    const Place last{&document->body, std::next(first), 1};
    EXPECT_FALSE(find(last, last, FindStop).found);
    found = find(last, last, FindContinue);
    ASSERT_TRUE(found.found);
    EXPECT_EQ(found.match->start.block, first);
    EXPECT_EQ(found.match->start.offset, 0u);
    EXPECT_FALSE(find({&document->body, first, 1}, {&document->body, first, 4}, FindStop).found);
    EXPECT_EQ(find({&document->body, first, 1}, {&document->body, first, 5}, FindStop, ReplaceAll).replaced,
              1);
    EXPECT_EQ(Text(document->body), "ab x\nab\n");
    EXPECT_EQ(find(last, last, FindContinue, ReplaceOne).replaced, 1);
    EXPECT_EQ(Text(document->body), "x x\nab\n");
}

TEST_F(FindTest, TextsAreAsLongAsTheWordProcessorAllows) {
    Add(std::string(255, 'a'));
    EXPECT_TRUE(FindText(std::string(255, 'A')).found);
    try {
        FindText(std::string(256, 'a'));
        FAIL();
    } catch (const AutomationError& refusal) {
        EXPECT_EQ(refusal.number(), find::kTextTooLong);
    }
    // Letters count, not bytes.
    std::string accents;
    for (int n = 0; n < 255; ++n) accents += "\xC3\xA9";
    EXPECT_EQ(ReplaceAllOf("a", accents), 255);
    EXPECT_THROW(ReplaceAllOf("e", accents + "e"), AutomationError);
    EXPECT_FALSE(FindText("").found);
}

/// What the same replacement makes of the texts, with paragraphs ended by "\r".
std::string Expected(std::string text, const std::string& find, const std::string& replaceWith) {
    std::string folded = text;
    std::ranges::transform(folded, folded.begin(), [](char c) { return c == 'A' ? 'a' : c; });
    std::string result;
    for (std::size_t at = 0;;) {
        const std::size_t found = folded.find(find, at);
        result += text.substr(at, found - at);
        if (found == std::string::npos) return result;
        result += replaceWith;
        at = found + find.size();
    }
}

TEST_F(FindTest, ReplacingAgreesWithPlainTextReplacing) {
    std::mt19937 random(7);
    const auto letters = [&](std::string_view from, std::size_t length) {
        std::string text;
        while (text.size() < length) text += from[random() % from.size()];
        return text;
    };
    for (int round = 0; round < 2000; ++round) {
        document = test::EmptyDocument();
        std::string whole;
        std::size_t marked = 0;
        for (auto n = 1 + random() % 4; n > 0; --n) {
            Paragraph& paragraph = Add("");
            for (auto spans = random() % 4; spans > 0; --spans) {
                Type(*document, paragraph, letters("aAb\t", 1 + random() % 4),
                     {.halfPoints = 20 + static_cast<int>(random() % 3)});
            }
            paragraph.anchors = {{random() % (paragraph.text.size() + 1), true, 1, "x"}};
            whole += paragraph.text + "\r";
            ++marked;
        }
        whole.pop_back();
        const std::string find = letters("ab\r", 1 + random() % 3);
        const std::string with = letters("ab\r\t", random() % 4);
        SCOPED_TRACE(testing::PrintToString(whole) + " find " + testing::PrintToString(find) + " with " +
                     testing::PrintToString(with));
        ReplaceAllOf(find, with);
        std::string result;
        std::size_t bookmarks = 0;
        for (const Block& block : document->body) {
            result += std::get<Paragraph>(block).text + "\r";
            bookmarks += std::get<Paragraph>(block).anchors.size();
        }
        ASSERT_EQ(bookmarks, marked);
        result.pop_back();
        ASSERT_EQ(result, Expected(whole, find, with));
    }
}

}  // namespace
}  // namespace quillmark::word::docx
