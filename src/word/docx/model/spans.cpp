#include "word/docx/model/spans.h"

#include <algorithm>

namespace quillmark::word::docx::inline model {

void InsertIntoSpans(std::vector<Span>& spans, std::size_t offset, std::size_t length, FormatId format) {
    if (length == 0) return;
    std::vector<Span> tail = CutSpans(spans, offset);
    AppendSpans(spans, {{length, format}});
    AppendSpans(spans, tail);
}

void EraseFromSpans(std::vector<Span>& spans, std::size_t from, std::size_t to) {
    const std::vector<Span> tail = CutSpans(spans, to);
    CutSpans(spans, from);
    AppendSpans(spans, tail);
}

std::vector<Span> CutSpans(std::vector<Span>& spans, std::size_t offset) {
    std::size_t begin = 0;
    for (auto span = spans.begin(); span != spans.end(); begin += span->length, ++span) {
        if (begin + span->length <= offset) continue;
        std::vector<Span> tail(span, spans.end());
        const std::size_t kept = offset - begin;
        tail.front().length -= kept;
        span->length = kept;
        spans.erase(kept ? span + 1 : span, spans.end());
        return tail;
    }
    return {};
}

std::vector<Span> CutLastSpans(std::vector<Span>& spans, std::size_t length) {
    auto first = spans.end();
    std::size_t taken = 0;
    while (taken < length) taken += (--first)->length;
    std::vector<Span> tail(first, spans.end());
    if (taken > length) {
        tail.front().length -= taken - length;
        first->length = taken - length;
        ++first;
    }
    spans.erase(first, spans.end());
    return tail;
}

void AppendSpans(std::vector<Span>& spans, const std::vector<Span>& more) {
    for (const Span& span : more) {
        if (!spans.empty() && spans.back().format == span.format)
            spans.back().length += span.length;
        else
            spans.push_back(span);
    }
}

FormatId SpanFormatBefore(const std::vector<Span>& spans, std::size_t offset) {
    std::size_t end = 0;
    for (const Span& span : spans) {
        end += span.length;
        if (end >= offset && end > 0) return span.format;
    }
    return spans.back().format;
}

std::size_t ObjectsBefore(std::string_view text, std::size_t offset) {
    return static_cast<std::size_t>(std::count(text.begin(), text.begin() + offset, character::kObject));
}

std::size_t CharacterBefore(std::string_view text, std::size_t offset) {
    do --offset;
    while (offset > 0 && (static_cast<unsigned char>(text[offset]) & 0xC0) == 0x80);
    return offset;
}

TextPart WithWholeFields(const Paragraph& paragraph, TextPart part) {
    std::vector<std::size_t> begins;
    std::size_t object = 0;
    for (std::size_t i = 0; i < paragraph.text.size() && object < paragraph.objects.size(); ++i) {
        if (paragraph.text[i] != character::kObject) continue;
        const InlineObject& mark = paragraph.objects[object++];
        if (std::holds_alternative<FieldBegin>(mark)) begins.push_back(i);
        if (!std::holds_alternative<FieldEnd>(mark) || begins.empty()) continue;
        const TextPart field{begins.back(), i + 1};
        begins.pop_back();
        const bool isCut = std::any_of(
            paragraph.text.begin() + std::max(field.from, part.from),
            paragraph.text.begin() + std::max({std::min(field.to, part.to), field.from, part.from}),
            [](char c) { return c == character::kObject; });
        if (isCut) part = {std::min(part.from, field.from), std::max(part.to, field.to)};
    }
    return part;
}

}  // namespace quillmark::word::docx::inline model
