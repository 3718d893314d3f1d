#include "word/docx/find/search.h"

#include <algorithm>

#include "word/docx/find/codes.h"
#include "word/docx/model/walk.h"
#include "word/docx/xml/text_codes.h"

namespace quillmark::word::docx::find {

namespace {

constexpr std::size_t kLongestCharacter = 4;  ///< bytes of UTF-8

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

bool IsMark(char32_t unit) {
    return unit == kParagraphMark || unit == kSectionMark;
}

char32_t MarkOf(const Paragraph& paragraph) {
    return paragraph.section ? kSectionMark : kParagraphMark;
}

/// A character of the text in the form of patterns; broken bytes stand for nothing.
xml::CodePoint Folded(std::string_view text, std::size_t offset) {
    const auto byte = static_cast<unsigned char>(text[offset]);
    if (byte < 0x80) return {xml::FoldForSearch(byte), 1};
    xml::CodePoint c = xml::DecodeFirst(text.substr(offset));
    c.value = xml::FoldForSearch(c.value);
    return {c.value, std::max<std::size_t>(c.length, 1)};
}

std::optional<MarkMatch> MatchAcross(const Stop& start, std::size_t offset, const Pattern& pattern) {
    MarkMatch match{.begin = offset};
    Stop stop = start;
    std::size_t at = offset;
    for (std::size_t unit = 0; unit < pattern.size(); ++unit) {
        const std::string_view text = stop.paragraph().text;
        if (at < text.size()) {
            const xml::CodePoint c = Folded(text, at);
            if (c.value != pattern[unit]) return {};
            at += c.length;
            continue;
        }
        if (pattern[unit] != MarkOf(stop.paragraph())) return {};
        if (!stop.HasNext()) {
            if (unit + 1 != pattern.size()) return {};
            match.takesLastMark = true;
            break;
        }
        ++stop.block;
        ++match.paragraphs;
        at = 0;
    }
    match.end = at;
    match.isSectionBreak = pattern.size() == 1 && pattern[0] == kSectionMark;
    return match;
}

/// Whether no other character has this one for its form in patterns.
bool StandsForItselfAlone(char32_t unit) {
    constexpr std::u32string_view kPunctuation = U"[]{}()<>_#*/\\^$%&=+~|";
    return kPunctuation.find(unit) != kPunctuation.npos;
}

}  // namespace

std::vector<Stop> CollectStops(Blocks& story) {
    std::vector<Stop> stops;
    ForEachParagraph(story, [&](Blocks& blocks, Blocks::iterator block) {
        stops.push_back({&blocks, block});
    });
    return stops;
}

bool HasMarks(const Pattern& pattern) {
    return std::ranges::any_of(pattern, IsMark);
}

std::optional<std::size_t> MatchAt(std::string_view text, std::size_t offset, const Pattern& pattern) {
    for (const char32_t unit : pattern) {
        if (offset >= text.size()) return {};
        const xml::CodePoint c = Folded(text, offset);
        if (c.value != unit) return {};
        offset += c.length;
    }
    return offset;
}

std::optional<PlainMatch> FindPlain(std::string_view text, std::size_t from, std::size_t until,
                                    const Pattern& pattern) {
    const bool startsPlain = StandsForItselfAlone(pattern.front());
    for (std::size_t at = from; at < until;) {
        if (startsPlain) at = text.find(static_cast<char>(pattern.front()), at);
        if (at >= until) break;
        const auto end = MatchAt(text, at, pattern);
        if (end && *end <= until) return PlainMatch{at, *end};
        at += Folded(text, at).length;
    }
    return {};
}

std::optional<MarkMatch> FindAcross(const Stop& stop, std::size_t from, const Pattern& pattern) {
    const std::string_view text = stop.paragraph().text;
    // Each mark in the pattern is the end of a paragraph, so only what stands as far before it can match.
    const auto beforeMark = std::ranges::find_if(pattern, IsMark) - pattern.begin();
    const std::size_t reach = std::min(text.size(), static_cast<std::size_t>(beforeMark) * kLongestCharacter);
    std::size_t at = std::max(from, text.size() - reach);
    while (at < text.size() && IsContinuation(text[at])) ++at;
    for (; at <= text.size(); at += at < text.size() ? Folded(text, at).length : 1) {
        if (const auto match = MatchAcross(stop, at, pattern)) return match;
    }
    return {};
}

FormatId FormatFrom(const Paragraph& paragraph, std::size_t offset) {
    std::size_t start = paragraph.text.size();
    if (offset >= start) return paragraph.markFormat;
    auto span = paragraph.spans.end();
    while (start > offset) start -= (--span)->length;
    return span->format;
}

FormatId FormatCursor::At(std::size_t offset) {
    while (start_ + paragraph_.spans[span_].length <= offset) start_ += paragraph_.spans[span_++].length;
    return paragraph_.spans[span_].format;
}

}  // namespace quillmark::word::docx::find
