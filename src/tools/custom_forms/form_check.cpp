#include "tools/custom_forms/form_check.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/paths.h"
#include "production/pdf/form_copy.h"
#include "word/docx/find/in_xml.h"
#include "word/docx/model/style_look.h"
#include "word/docx/read/document_reader.h"

namespace quillmark {

namespace docx = word::docx;

namespace {

constexpr std::size_t kWordsOfContext = 3;

std::string InSmallLetters(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return text;
}

/// The last words before the place, by which a person finds it.
std::string WordsBefore(std::string_view text, std::size_t at) {
    std::string_view before = text.substr(0, at);
    while (before.ends_with(' ')) before.remove_suffix(1);
    std::size_t from = before.size();
    for (std::size_t words = 0; words < kWordsOfContext && from > 0 && from != before.npos; ++words)
        from = from == 0 ? 0 : before.rfind(' ', from - 1);
    const std::string_view context = from == before.npos || from == 0 ? before : before.substr(from + 1);
    std::string clean(context);
    std::erase_if(clean, [](char c) { return static_cast<unsigned char>(c) < ' '; });
    return clean;
}

class FormCheck {
 public:
    FormCheck(const MarkerJudge& judge, const std::set<std::string>& fonts) : judge_(judge), fonts_(fonts) {}

    std::vector<FormFinding> Run(const docx::Document& document) {
        document_ = &document;
        CheckBody(document.body);
        CheckStories(document.lastSection);
        for (const auto& [id, relation] : document.relations) {
            if (relation.type.ends_with("/footnotes")) CheckXml(relation.bytes, "a footnote");
            if (relation.type.ends_with("/endnotes")) CheckXml(relation.bytes, "an endnote");
        }
        return std::move(findings_);
    }

 private:
    void CheckBody(const docx::Blocks& body) {
        std::size_t paragraphs = 0;
        std::size_t tables = 0;
        for (const docx::Block& block : body) {
            if (const auto* table = std::get_if<std::unique_ptr<docx::Table>>(&block))
                CheckTable(**table, fmt::format("table {}", ++tables));
            const auto* paragraph = std::get_if<docx::Paragraph>(&block);
            if (!paragraph) continue;
            const std::string place = fmt::format("paragraph {}", ++paragraphs);
            CheckParagraph(*paragraph, place);
            if (!paragraph->section) continue;
            findings_.push_back(
                {place, "a section break ends here; a job has a page break in its place", false});
            CheckStories(*paragraph->section);
        }
    }

    void CheckTable(const docx::Table& table, const std::string& place) {
        for (std::size_t row = 0; row < table.rows.size(); ++row)
            for (std::size_t column = 0; column < table.rows[row].cells.size(); ++column)
                CheckBlocks(table.rows[row].cells[column].blocks,
                            fmt::format("{}, row {}, column {}", place, row + 1, column + 1));
    }

    void CheckBlocks(const docx::Blocks& blocks, const std::string& place) {
        for (const docx::Block& block : blocks) {
            if (const auto* paragraph = std::get_if<docx::Paragraph>(&block))
                CheckParagraph(*paragraph, place);
            if (const auto* table = std::get_if<std::unique_ptr<docx::Table>>(&block))
                CheckTable(**table, "a table in " + place);
        }
    }

    void CheckStories(const docx::SectionProperties& section) {
        for (const auto& story : section.headers)
            if (story) CheckBlocks(story->blocks, "the header");
        for (const auto& story : section.footers)
            if (story) CheckBlocks(story->blocks, "the footer");
    }

    void CheckParagraph(const docx::Paragraph& paragraph, const std::string& place) {
        CheckText(paragraph.text, place);
        CheckFonts(paragraph, place);
        CheckReview(paragraph, place);
        for (const docx::InlineObject& object : paragraph.objects) {
            const auto* raw = std::get_if<docx::RawInline>(&object);
            if (raw && raw->xml.find("w:txbxContent") != raw->xml.npos)
                CheckXml(raw->xml, "a text box at " + place);
        }
    }

    /// What others wrote on the form is in the document of a job too.
    void CheckReview(const docx::Paragraph& paragraph, const std::string& place) {
        const auto tell = [&](std::string_view what) {
            findings_.push_back({place, fmt::format("{}; a job's document shows it too", what), false});
        };
        const auto holds = [&](docx::Anchor::Kind kind, std::string_view element) {
            return std::ranges::any_of(paragraph.anchors, [&](const docx::Anchor& anchor) {
                return anchor.kind == kind && anchor.xml.find(element) != anchor.xml.npos;
            });
        };
        using Kind = docx::Anchor::Kind;
        if (holds(Kind::Alone, "<w:commentReference")) tell("a comment stands here");
        const bool isChanged = holds(Kind::Alone, "<w:del") || holds(Kind::Around, "<w:ins") ||
                               !document_->paraFormats[paragraph.format].markReview.empty();
        if (isChanged) tell("a tracked change stands here");
    }

    void CheckXml(const std::string& xml, const std::string& place) {
        std::set<std::string> seen;  // A text box is written twice, for newer and older programs.
        for (const std::string& text : docx::find::ParagraphsIn(xml))
            if (seen.insert(text).second) CheckText(text, place);
    }

    void CheckText(std::string_view text, const std::string& place) {
        for (MarkerFault& fault : judge_.Faults(text)) {
            const std::string before = WordsBefore(text, fault.at);
            std::string what = before.empty() ? std::string() : "after '" + before + "': ";
            findings_.push_back({place, what + fault.what, true, std::move(fault.mend)});
        }
    }

    void CheckFonts(const docx::Paragraph& paragraph, const std::string& place) {
        if (fonts_.empty()) return;
        for (const docx::Span& span : paragraph.spans) {
            const std::string font = FontOf(paragraph, document_->charFormats[span.format]);
            if (font.empty() || fonts_.contains(InSmallLetters(font)) || !told_.insert(font).second) continue;
            findings_.push_back({place, "the font " + font + " is not installed", false});
        }
    }

    /// Of western letters: a run may name another font for each script.
    std::string FontOf(const docx::Paragraph& paragraph, const docx::CharFormat& direct) const {
        constexpr std::string_view kWestern = "w:ascii=\"";
        for (const auto& [name, xml] : direct.extra) {
            const std::size_t at = name == "rFonts" ? xml.find(kWestern) : xml.npos;
            if (at == xml.npos) continue;
            const std::size_t from = at + kWestern.size();
            return xml.substr(from, xml.find('"', from) - from);
        }
        return docx::EffectiveFont(*document_, document_->paraFormats[paragraph.format], direct).font;
    }

    const MarkerJudge& judge_;
    const std::set<std::string>& fonts_;
    const docx::Document* document_ = nullptr;
    std::set<std::string> told_;
    std::vector<FormFinding> findings_;
};

}  // namespace

std::vector<FormFinding> CheckForm(const std::filesystem::path& form, const MarkerJudge& judge,
                                   const std::set<std::string>& fonts) {
    const ReadableForm readable(form, true);
    const auto document = docx::read::OpenDocx(readable.path());
    return FormCheck(judge, fonts).Run(*document);
}

}  // namespace quillmark
