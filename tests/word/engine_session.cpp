#include "word/engine_session.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace quillmark::word::test {
namespace {

std::string Visible(const docx::Paragraph& paragraph) {
    std::string text = paragraph.text;
    std::replace(text.begin(), text.end(), docx::character::kObject, '#');
    return text;
}

std::string FaultIn(const docx::Document& document, const docx::Blocks& blocks);

std::string FaultIn(const docx::Document& document, const docx::Paragraph& paragraph) {
    std::size_t length = 0;
    for (const docx::Span& span : paragraph.spans) {
        if (span.length == 0) return "an empty span";
        if (span.format >= document.charFormats.size()) return "a span without a format";
        length += span.length;
    }
    if (length != paragraph.text.size()) return "spans that do not add up in: " + Visible(paragraph);
    if (std::count(paragraph.text.begin(), paragraph.text.end(), docx::character::kObject) !=
        std::ssize(paragraph.objects))
        return "objects that do not match: " + Visible(paragraph);
    if (paragraph.format >= document.paraFormats.size() ||
        paragraph.markFormat >= document.charFormats.size())
        return "a paragraph without a format";
    const int numId = document.paraFormats[paragraph.format].numId.value_or(0);
    if (numId < 0 || numId > std::ssize(document.lists)) return "an item of no list";
    for (const docx::Anchor& anchor : paragraph.anchors)
        if (anchor.offset > paragraph.text.size()) return "a bookmark outside of its paragraph";
    for (const char c : paragraph.text)
        if (c == '\r' || c == '\n' || c == '\0') return "a control character in the text";
    return {};
}

std::string FaultIn(const docx::Document& document, const docx::Table& table) {
    if (table.rows.empty()) return "a table without rows";
    for (const docx::TableRow& row : table.rows) {
        int span = 0;
        for (const docx::TableCell& cell : row.cells) {
            span += cell.span;
            if (std::string fault = FaultIn(document, cell.blocks); !fault.empty()) return "cell: " + fault;
        }
        if (span != std::ssize(table.grid)) return "a row that does not fill its table";
    }
    return {};
}

std::string FaultIn(const docx::Document& document, const docx::Blocks& blocks) {
    if (blocks.empty() || !std::holds_alternative<docx::Paragraph>(blocks.back()))
        return "blocks that do not end with a paragraph";
    for (const docx::Block& block : blocks) {
        std::string fault;
        if (const auto* paragraph = std::get_if<docx::Paragraph>(&block))
            fault = FaultIn(document, *paragraph);
        if (const auto* table = std::get_if<std::unique_ptr<docx::Table>>(&block))
            fault = FaultIn(document, **table);
        if (!fault.empty()) return fault;
    }
    return {};
}

std::string FaultIn(const docx::Document& document, const docx::SectionProperties& section) {
    for (const auto* stories : {&section.headers, &section.footers})
        for (const auto& story : *stories)
            if (story)
                if (std::string fault = FaultIn(document, story->blocks); !fault.empty())
                    return "footer: " + fault;
    return {};
}

void AppendBigEndian(std::string& bytes, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift);
}

void AppendChunk(std::string& bytes, const std::string& type, const std::string& data) {
    AppendBigEndian(bytes, static_cast<std::uint32_t>(data.size()));
    bytes += type + data + std::string(4, '\0');
}

}  // namespace

EngineSession::EngineSession()
    : app(docx::objects::StartEngine({folder.path(), clipboard})),
      doc(app.Documents.Add()),
      sel(app.Selection.Reach()) {}

std::vector<std::string> EngineSession::Texts() const {
    std::vector<std::string> texts;
    for (const docx::Block& block : Model().body) {
        const auto* paragraph = std::get_if<docx::Paragraph>(&block);
        texts.push_back(paragraph ? Visible(*paragraph) + (paragraph->section ? "=" : "") : "<table>");
    }
    return texts;
}

const docx::Paragraph& EngineSession::ParagraphAt(std::size_t i) const {
    return std::get<docx::Paragraph>(*std::next(Model().body.begin(), static_cast<std::ptrdiff_t>(i)));
}

const docx::ParaFormat& EngineSession::FormatAt(std::size_t i) const {
    return Model().paraFormats[ParagraphAt(i).format];
}

const docx::CharFormat& EngineSession::FontAt(std::size_t i, std::size_t offset) const {
    const docx::Paragraph& paragraph = ParagraphAt(i);
    for (const docx::Span& span : paragraph.spans) {
        if (offset < span.length) return Model().charFormats[span.format];
        offset -= span.length;
    }
    throw std::out_of_range("no character there: " + paragraph.text);
}

const docx::CharFormat& EngineSession::MarkFontAt(std::size_t i) const {
    return Model().charFormats[ParagraphAt(i).markFormat];
}

std::string BlocksText(const docx::Blocks& blocks) {
    std::string text;
    for (const docx::Block& block : blocks) {
        const auto* paragraph = std::get_if<docx::Paragraph>(&block);
        text += (text.empty() ? "" : "|") + (paragraph ? Visible(*paragraph) : std::string("<table>"));
    }
    return text;
}

int ErrorOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const AutomationError& refusal) {
        return refusal.number();
    }
    return 0;
}

std::string FaultIn(const docx::Document& document) {
    if (std::string fault = FaultIn(document, document.body); !fault.empty()) return fault;
    for (const docx::Block& block : document.body) {
        const auto* paragraph = std::get_if<docx::Paragraph>(&block);
        if (!paragraph || !paragraph->section) continue;
        if (std::string fault = FaultIn(document, *paragraph->section); !fault.empty()) return fault;
    }
    return FaultIn(document, document.lastSection);
}

std::string PngBytes(unsigned width, unsigned height, unsigned dotsPerInch) {
    std::string bytes = "\x89PNG\r\n\x1a\n";
    std::string head;
    AppendBigEndian(head, width);
    AppendBigEndian(head, height);
    AppendChunk(bytes, "IHDR", head + std::string("\x08\x02\0\0\0", 5));
    std::string resolution;
    AppendBigEndian(resolution, static_cast<std::uint32_t>(dotsPerInch / 0.0254 + 0.5));
    AppendBigEndian(resolution, static_cast<std::uint32_t>(dotsPerInch / 0.0254 + 0.5));
    if (dotsPerInch) AppendChunk(bytes, "pHYs", resolution + '\x01');
    AppendChunk(bytes, "IDAT", "xx");
    AppendChunk(bytes, "IEND", "");
    return bytes;
}

}  // namespace quillmark::word::test
