#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "word/docx/model/document.h"

/// Finding a pattern in the text of a story.
namespace quillmark::word::docx::find {

/// A paragraph of the story, in reading order.
struct Stop {
    Blocks* blocks = nullptr;
    Blocks::iterator block;

    Paragraph& paragraph() const { return std::get<Paragraph>(*block); }
    /// Whether another paragraph comes right behind it in the same container.
    bool HasNext() const {
        const auto next = std::next(block);
        return next != blocks->end() && std::holds_alternative<Paragraph>(*next);
    }
};

/// All paragraphs, those in tables at any depth included.
std::vector<Stop> CollectStops(Blocks& story);

using Pattern = std::vector<char32_t>;

/// Whether the pattern takes in marks between paragraphs.
bool HasMarks(const Pattern& pattern);

/// The end of a match without marks that begins at this offset.
std::optional<std::size_t> MatchAt(std::string_view text, std::size_t offset, const Pattern& pattern);
/// The first match without marks that begins at or behind `from` and ends by `until`.
struct PlainMatch {
    std::size_t begin = 0;
    std::size_t end = 0;
};
std::optional<PlainMatch> FindPlain(std::string_view text, std::size_t from, std::size_t until,
                                    const Pattern& pattern);

/// A match that takes in marks: it begins at an offset of one paragraph and ends at one of a later one.
struct MarkMatch {
    std::size_t begin = 0;
    std::size_t paragraphs = 0;  ///< how many paragraphs on its end stands
    std::size_t end = 0;
    /// The mark of the container's last paragraph: it can be found, not replaced.
    bool takesLastMark = false;
    bool isSectionBreak = false;  ///< nothing but one section break
};
std::optional<MarkMatch> FindAcross(const Stop& stop, std::size_t from, const Pattern& pattern);

/// The format of the character at the offset, or of the mark at the text's end. Quick near the end.
FormatId FormatFrom(const Paragraph& paragraph, std::size_t offset);

/// The formats of a paragraph's characters from its beginning on.
class FormatCursor {
 public:
    explicit FormatCursor(const Paragraph& paragraph) : paragraph_(paragraph) {}
    /// At an offset within the text and not before the one asked for last.
    FormatId At(std::size_t offset);

 private:
    const Paragraph& paragraph_;
    std::size_t span_ = 0;
    std::size_t start_ = 0;
};

}  // namespace quillmark::word::docx::find
