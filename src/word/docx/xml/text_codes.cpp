#include "word/docx/xml/text_codes.h"

#include <algorithm>

namespace quillmark::word::docx::xml {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsXmlCharacter(char32_t c) {
    if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
    return c != 0xFFFE && c != 0xFFFF;
}

std::size_t LengthByLead(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

// Alphabets whose capitals stand at even places, each before its small letter, or at odd ones.
bool HasEvenCapitals(char32_t c) {
    return (c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177) || (c >= 0x460 && c <= 0x481) ||
           (c >= 0x48A && c <= 0x4BF) || (c >= 0x1E00 && c <= 0x1E95);
}

bool HasOddCapitals(char32_t c) {
    return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
}

char32_t FoldCase(char32_t c) {
    if (c >= 'A' && c <= 'Z') return c + 32;
    if (c < 0xC0) return c;
    if (c <= 0xDE) return c == 0xD7 ? c : c + 32;
    if (HasEvenCapitals(c)) return c | 1;
    if (HasOddCapitals(c)) return c + (c & 1);
    if (c >= 0x391 && c <= 0x3A9) return c + 32;
    if (c >= 0x410 && c <= 0x42F) return c + 32;
    if (c >= 0x400 && c <= 0x40F) return c + 80;
    return c;
}

}  // namespace

CodePoint DecodeFirst(std::string_view text) {
    if (text.empty()) return {};
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = LengthByLead(lead);
    if (length == 1) return {lead, 1};
    if (length == 0 || text.size() < length) return {};
    char32_t value = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0u) != 0x80u) return {};
        value = (value << 6) | (next & 0x3Fu);
    }
    const bool tooLong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (tooLong || surrogate || value > 0x10FFFF) return {};
    return {value, length};
}

void AppendUtf8(std::string& text, char32_t value) {
    const auto tail = [&](int shift) { text += static_cast<char>(0x80u | ((value >> shift) & 0x3Fu)); };
    if (value < 0x80) {
        text += static_cast<char>(value);
    } else if (value < 0x800) {
        text += static_cast<char>(0xC0u | (value >> 6));
        tail(0);
    } else if (value < 0x10000) {
        text += static_cast<char>(0xE0u | (value >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0u | (value >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

bool IsCleanXmlText(std::string_view text) {
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text.front());
        const CodePoint c = byte < 0x80 ? CodePoint{byte, 1} : DecodeFirst(text);
        if (c.length == 0 || !IsXmlCharacter(c.value)) return false;
        text.remove_prefix(c.length);
    }
    return true;
}

std::string CleanXmlText(std::string_view text) {
    std::string clean;
    clean.reserve(text.size());
    while (!text.empty()) {
        const CodePoint c = DecodeFirst(text);
        if (c.length == 0) AppendUtf8(clean, kReplacement);
        if (c.length != 0 && IsXmlCharacter(c.value)) clean.append(text.substr(0, c.length));
        text.remove_prefix(std::max<std::size_t>(c.length, 1));
    }
    return clean;
}

char32_t FoldForSearch(char32_t value) {
    switch (value) {
        case 0x2018:
        case 0x2019:
            return U'\'';
        case 0x201C:
        case 0x201D:
            return U'"';
        default:
            return FoldCase(value);
    }
}

std::string SmallLetters(std::string_view name) {
    std::string small(name);
    for (char& c : small) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return small;
}

}  // namespace quillmark::word::docx::xml
