#include "platform/code_points.h"

#include <bit>

namespace quillmark {

namespace {

bool Continues(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Bytes of the character that begins the text; 1 where it is no UTF-8.
std::size_t LengthOfFirst(std::string_view text) {
    const auto ones = static_cast<std::size_t>(std::countl_one(static_cast<unsigned char>(text[0])));
    if (ones < 2 || ones > 4 || ones > text.size()) return 1;
    for (std::size_t i = 1; i < ones; ++i)
        if (!Continues(text[i])) return 1;
    return ones;
}

}  // namespace

std::u32string CodePoints(std::string_view utf8) {
    std::u32string points;
    points.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::size_t length = LengthOfFirst(utf8);
        const auto lead = static_cast<unsigned char>(utf8[0]);
        char32_t point = length == 1 ? lead : lead & (0x7Fu >> length);
        for (std::size_t i = 1; i < length; ++i)
            point = (point << 6) | (static_cast<unsigned char>(utf8[i]) & 0x3Fu);
        points += point;
        utf8.remove_prefix(length);
    }
    return points;
}

std::string Utf8Of(std::u32string_view codePoints) {
    std::string text;
    for (const char32_t point : codePoints) {
        const auto next = [&](int shift) { text += static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
        if (point < 0x80) {
            text += static_cast<char>(point);
        } else if (point < 0x800) {
            text += static_cast<char>(0xC0 | (point >> 6));
            next(0);
        } else if (point < 0x10000) {
            text += static_cast<char>(0xE0 | (point >> 12));
            next(6);
            next(0);
        } else {
            text += static_cast<char>(0xF0 | (point >> 18));
            next(12);
            next(6);
            next(0);
        }
    }
    return text;
}

}  // namespace quillmark
