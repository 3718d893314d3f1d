#pragma once

#include <cstddef>
#include <string_view>

#include "word/docx/model/document.h"

/// Arithmetic on one paragraph's text, spans and objects.
namespace quillmark::word::docx::inline model {

/// Puts `length` bytes of one format into the spans at a byte offset, joining equal neighbours.
void InsertIntoSpans(std::vector<Span>& spans, std::size_t offset, std::size_t length, FormatId format);
/// Takes the bytes between two offsets out of the spans.
void EraseFromSpans(std::vector<Span>& spans, std::size_t from, std::size_t to);
/// Cuts the spans at an offset and gives what is behind it.
std::vector<Span> CutSpans(std::vector<Span>& spans, std::size_t offset);
/// Takes the spans of the last `length` bytes off and gives them.
std::vector<Span> CutLastSpans(std::vector<Span>& spans, std::size_t length);
/// Adds spans at the end, joining equal neighbours.
void AppendSpans(std::vector<Span>& spans, const std::vector<Span>& more);
/// The format of the character that ends at this offset; at 0 that of the first one. The spans are not empty.
FormatId SpanFormatBefore(const std::vector<Span>& spans, std::size_t offset);

/// How many objects stand before an offset of the text.
std::size_t ObjectsBefore(std::string_view text, std::size_t offset);
/// Where the character that ends at `offset` begins; `offset` is above 0.
std::size_t CharacterBefore(std::string_view text, std::size_t offset);

/// Part of a paragraph's text, in bytes.
struct TextPart {
    std::size_t from = 0;
    std::size_t to = 0;
    bool operator==(const TextPart&) const = default;
};
/// The part and, with any mark of a field in it, all of that field, as far as it lies in the paragraph.
TextPart WithWholeFields(const Paragraph& paragraph, TextPart part);

/// Gives the characters between two offsets new formats: `change(FormatId) -> FormatId` for each stretch.
template <class Change>
void ChangeSpans(std::vector<Span>& spans, std::size_t from, std::size_t to, const Change& change) {
    std::vector<Span> tail = CutSpans(spans, to);
    std::vector<Span> middle = CutSpans(spans, from);
    for (Span& span : middle) span.format = change(span.format);
    AppendSpans(spans, middle);
    AppendSpans(spans, tail);
}

}  // namespace quillmark::word::docx::inline model
