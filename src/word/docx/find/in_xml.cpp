#include "word/docx/find/in_xml.h"

#include <algorithm>
#include <functional>

#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::find {

using xml::IsNamed;
using xml::ParseFragment;
using xml::PrintFragment;

namespace {

// clang-format off
/// Elements whose text is not the paragraph's own, or no longer there.
constexpr std::string_view kApart[] = {
    "w:p", "w:txbxContent", "w:del", "w:moveFrom", "w:rPr", "w:pPr", "w:sdtPr", "w:instrText", "w:delText",
};
// clang-format on

void ForParagraphs(pugi::xml_node parent, const std::function<void(pugi::xml_node)>& visit) {
    for (const pugi::xml_node child : parent.children()) {
        if (IsNamed(child, "w:p")) visit(child);
        ForParagraphs(child, visit);
    }
}

/// Puts a text in for a w:t's, with elements of their own for tabs and line ends.
void SetText(pugi::xml_node node, std::string_view text) {
    pugi::xml_node run = node.parent();
    pugi::xml_node last = node;
    for (bool isFirst = true;; isFirst = false) {
        const std::size_t end = std::min(text.find_first_of("\t\r\v"), text.size());
        if (!isFirst) last = run.insert_child_after("w:t", last);
        last.text().set(std::string(text.substr(0, end)).c_str());
        last.remove_attribute("xml:space");
        last.append_attribute("xml:space") = "preserve";
        if (end == text.size()) return;
        last = run.insert_child_after(text[end] == '\t' ? "w:tab" : "w:br", last);
        text.remove_prefix(end + 1);
    }
}

}  // namespace

/// A w:p's own text, and the elements that it stands in.
class XmlParagraph {
 public:
    explicit XmlParagraph(pugi::xml_node paragraph) { Collect(paragraph); }

    const std::string& text() const { return text_; }

    /// Puts a text in for the bytes from `begin` to `end`, in the element and look of the first.
    void Replace(std::size_t begin, std::size_t end, std::string_view text) {
        bool isDone = false;
        for (Piece& piece : pieces_) {
            const std::size_t from = std::max(begin, piece.begin);
            const std::size_t until = std::min(end, piece.begin + piece.length);
            if (from >= until) continue;
            std::string& content = piece.text;
            content.replace(from - piece.begin, until - from, isDone ? std::string_view() : text);
            piece.isChanged = isDone = true;
        }
    }
    void Write() {
        for (Piece& piece : pieces_)
            if (piece.isChanged) SetText(piece.node, piece.text);
    }

 private:
    struct Piece {
        pugi::xml_node node;
        std::size_t begin = 0;
        std::size_t length = 0;
        std::string text;
        bool isChanged = false;
    };

    void Collect(pugi::xml_node parent) {
        for (const pugi::xml_node child : parent.children()) {
            const std::string_view name = child.name();
            if (std::ranges::find(kApart, name) != std::end(kApart)) continue;
            if (name == "w:t") {
                const std::string text = child.text().get();
                pieces_.push_back({child, text_.size(), text.size(), text, false});
                text_ += text;
            } else if (name == "w:tab" || name == "w:br" || name == "w:cr" || name == "w:drawing") {
                text_ += character::kObject;
            } else {
                Collect(child);
            }
        }
    }

    std::string text_;
    std::vector<Piece> pieces_;
};

std::vector<std::string> ParagraphsIn(std::string_view content) {
    std::vector<std::string> texts;
    const auto tree = ParseFragment(content);
    ForParagraphs(*tree, [&](pugi::xml_node node) { texts.push_back(XmlParagraph(node).text()); });
    return texts;
}

/// A quick look at what stands between the tags, before the XML is read.
bool XmlFinder::MayHold(std::string_view content) const {
    std::string text;
    for (std::size_t at = 0; at < content.size();) {
        const std::size_t tag = std::min(content.find('<', at), content.size());
        text.append(content, at, tag - at);
        at = std::min(content.find('>', tag), content.size() - 1) + 1;
        if (tag == content.size()) break;
    }
    return text.find('&') != text.npos || FindPlain(text, 0, text.size(), pattern_).has_value();
}

bool XmlFinder::Holds(std::string_view content) const {
    if (!MayHold(content)) return false;
    const auto tree = ParseFragment(content);
    bool holds = false;
    ForParagraphs(*tree, [&](pugi::xml_node node) {
        const XmlParagraph paragraph(node);
        holds = holds || FindPlain(paragraph.text(), 0, paragraph.text().size(), pattern_);
    });
    return holds;
}

bool XmlFinder::BringsPicture() const {
    return std::ranges::any_of(
        replacement_, [](const auto& piece) { return piece.kind == ReplacementPiece::Kind::Picture; });
}

std::string XmlFinder::TextFor(std::string_view found) const {
    std::string text;
    for (const ReplacementPiece& piece : replacement_)
        text += piece.kind == ReplacementPiece::Kind::FoundText ? std::string(found) : piece.text;
    // Breaks of page and column mean nothing here.
    std::erase_if(text, [](char c) { return c == character::kPageBreak || c == character::kColumnBreak; });
    return text;
}

int XmlFinder::Replace(std::string& content, bool all) const {
    if (BringsPicture() || !MayHold(content)) return 0;
    const auto tree = ParseFragment(content);
    int replaced = 0;
    ForParagraphs(*tree, [&](pugi::xml_node node) {
        if (!all && replaced > 0) return;
        XmlParagraph paragraph(node);
        replaced += ReplaceIn(paragraph, all);
    });
    if (replaced > 0) content = PrintFragment(*tree);
    return replaced;
}

bool XmlFinder::Counts(const PlainMatch& match, std::string_view text) const {
    const bool isBehind = unless_.behind && match.begin > 0 && text[match.begin - 1] == unless_.behind;
    const bool isBefore = unless_.before && match.end < text.size() && text[match.end] == unless_.before;
    return !isBehind && !isBefore;
}

int XmlFinder::ReplaceIn(XmlParagraph& paragraph, bool all) const {
    const std::string text = paragraph.text();
    std::vector<PlainMatch> matches;
    for (auto match = FindPlain(text, 0, text.size(), pattern_); match;
         match = FindPlain(text, match->end, text.size(), pattern_)) {
        if (Counts(*match, text)) matches.push_back(*match);
        if (!all && !matches.empty()) break;
    }
    // From the last on, so that the places of those before stay.
    for (auto match = matches.rbegin(); match != matches.rend(); ++match)
        paragraph.Replace(match->begin, match->end,
                          TextFor(std::string_view(text).substr(match->begin, match->end - match->begin)));
    if (!matches.empty()) paragraph.Write();
    return static_cast<int>(matches.size());
}

}  // namespace quillmark::word::docx::find
