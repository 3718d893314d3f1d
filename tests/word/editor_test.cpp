#include "word/docx/edit/editor.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "word/docx/check/package_check.h"
#include "word/docx/model/pieces.h"
#include "word/docx/write/document_writer.h"
#include "word/writer_samples.h"

/// What goes along when text is cut, joined and taken out: formats, sections, bookmarks.
namespace quillmark::word::docx {
namespace {

constexpr FormatId kMark = 0;

class Editing : public ::testing::Test {
 protected:
    /// Bookmarks stand as {1 ... 1} in the texts.
    explicit Editing(std::initializer_list<std::string_view> texts = {}) : editor_(test::EmptyDocument()) {
        for (const std::string_view text : texts) Add(text);
    }

    void Add(std::string_view text) {
        Document& document = editor_.document();
        Paragraph paragraph;
        paragraph.format = document.paraFormats.Intern({.alignment = 1});
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool isStart = text[i] == '{', isEnd = i + 1 < text.size() && text[i + 1] == '}';
            if (isStart || isEnd) {
                const int id = text[isStart ? ++i : i++] - '0';
                paragraph.anchors.push_back(
                    {paragraph.text.size(), isStart, id, isStart ? fmt::format("b{}", id) : ""});
            } else {
                paragraph.text += text[i];
            }
        }
        if (!paragraph.text.empty()) paragraph.spans = {{paragraph.text.size(), 0}};
        document.body.push_back(std::move(paragraph));
    }

    Place At(std::size_t paragraph, std::size_t offset) {
        Blocks& body = editor_.document().body;
        return {&body, std::next(body.begin(), static_cast<std::ptrdiff_t>(paragraph)), offset};
    }

    /// The paragraphs, parted by "|", with their bookmarks.
    std::string Shown() {
        std::string shown;
        for (const Block& block : editor_.document().body) {
            const auto& paragraph = std::get<Paragraph>(block);
            if (&block != &editor_.document().body.front()) shown += '|';
            std::string text = paragraph.text;
            for (auto anchor = paragraph.anchors.rbegin(); anchor != paragraph.anchors.rend(); ++anchor)
                text.insert(anchor->offset, fmt::format("{}{}{}", anchor->isStart ? "{" : "", anchor->id,
                                                        anchor->isStart ? "" : "}"));
            shown += text;
        }
        return shown;
    }

    void ExpectWholeFile() {
        const auto faults = check::CheckPackage(write::WriteDocx(editor_.document()));
        EXPECT_TRUE(faults.empty()) << fmt::format("{}", fmt::join(faults, "\n"));
    }

    edit::Editor editor_;
};

TEST_F(Editing, BothPartsOfACutParagraphHaveItsFormatAndTheLaterOneItsSection) {
    Add("first second");
    Paragraph& whole = std::get<Paragraph>(editor_.document().body.front());
    const FormatId centred = whole.format;
    ASSERT_NE(centred, 0u);
    whole.markFormat = editor_.document().charFormats.Intern({.bold = true});
    const FormatId bold = whole.markFormat;
    whole.section = std::make_unique<SectionProperties>();
    Add("last");
    editor_.Split(At(0, 6), kMark);
    const Paragraph& before = edit::Editor::ParagraphAt(At(0, 0));
    const Paragraph& behind = edit::Editor::ParagraphAt(At(1, 0));
    EXPECT_EQ(before.text + "|" + behind.text, "first |second");
    EXPECT_EQ(before.format, centred);
    EXPECT_EQ(behind.format, centred);
    EXPECT_EQ(before.markFormat, kMark);
    EXPECT_EQ(behind.markFormat, bold) << "the mark stays behind its text";
    EXPECT_FALSE(before.section);
    EXPECT_TRUE(behind.section);
    editor_.Split(At(0, 0), bold);
    EXPECT_EQ(edit::Editor::ParagraphAt(At(0, 0)).format, centred) << "also an empty one put before it";
}

TEST_F(Editing, BookmarksAreCutWithTheTextThatTheyStandAt) {
    Add("{1a{2bc1}d2}e");
    editor_.Split(At(0, 3), kMark);
    EXPECT_EQ(Shown(), "{1a{2bc1}|d2}e") << "a mark at the cut stays";
    ExpectWholeFile();
}

TEST_F(Editing, BookmarksWithinErasedTextGoAndOthersKeepTheirEnds) {
    Add("a{1bc{2d2}e{3f1}g3}h{4i4}");
    editor_.Erase(At(0, 2), At(0, 6));
    EXPECT_EQ(Shown(), "a{1b{31}g3}h{4i4}");
    ExpectWholeFile();
}

TEST_F(Editing, ABookmarkOverErasedParagraphsKeepsBothEndsOrNone) {
    for (const std::string_view text : {"a{1bc", "d1}e{2f", "{3g3}h", "i2}jk"}) Add(text);
    editor_.Erase(At(0, 2), At(3, 2));
    EXPECT_EQ(Shown(), "a{1b1}{22}k") << "their ends are where the text was";
    ExpectWholeFile();
}

}  // namespace
}  // namespace quillmark::word::docx
