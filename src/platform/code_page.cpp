#include "platform/code_page.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace quillmark {
namespace {

// clang-format off
/// Bytes 80 to 9F; all others stand for the character of their own number.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

struct Decoded {
    char32_t codePoint;
    std::size_t length;  // bytes read; 0 where they are no UTF-8
};

std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    if (lead >= 0xF0 && lead < 0xF5) return 4;
    return 0;
}

Decoded Decode(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || length > text.size()) return {0, 0};
    if (length == 1) return {lead, 1};
    char32_t codePoint = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80) return {0, 0};
        codePoint = (codePoint << 6) | (next & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = codePoint >= 0xD800 && codePoint < 0xE000;
    if (codePoint < kSmallest[length] || codePoint > 0x10FFFF || surrogate) return {0, 0};
    return {codePoint, length};
}

void Append(std::string& text, char32_t codePoint) {
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0 | (codePoint >> 6));
        text += static_cast<char>(0x80 | (codePoint & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (codePoint >> 12));
        text += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (codePoint & 0x3F));
    }
}

std::optional<std::uint8_t> ByteOf(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100)) {
        return static_cast<std::uint8_t>(codePoint);
    }
    const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), codePoint);
    if (found == kUpperControls.end()) return std::nullopt;
    return static_cast<std::uint8_t>(0x80 + (found - kUpperControls.begin()));
}

Unencodable Describe(std::string_view utf8, std::size_t offset, Decoded decoded) {
    if (decoded.length == 0) {
        return {offset, {}, fmt::format("the byte {:02X}", static_cast<unsigned char>(utf8[offset]))};
    }
    const std::string character(utf8.substr(offset, decoded.length));
    return {offset, character,
            fmt::format("the character \"{}\" (U+{:04X})", character,
                        static_cast<std::uint32_t>(decoded.codePoint))};
}

/// Appends the bytes of the text to `bytes` and tells what stopped it.
std::optional<Unencodable> Encode(std::string_view utf8, std::string& bytes) {
    for (std::size_t offset = 0; offset < utf8.size();) {
        const Decoded decoded = Decode(utf8.substr(offset));
        const auto byte = decoded.length ? ByteOf(decoded.codePoint) : std::nullopt;
        if (!byte) return Describe(utf8, offset, decoded);
        bytes += static_cast<char>(*byte);
        offset += decoded.length;
    }
    return std::nullopt;
}

char32_t Capital(char32_t c) {
    if (c >= U'a' && c <= U'z') return c - 0x20;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 0x20;
    if (c == 0xFF) return 0x178;
    if (c == 0x161 || c == 0x153 || c == 0x17E) return c - 1;
    return c;
}

}  // namespace

UnencodableError::UnencodableError(Unencodable w)
    : std::runtime_error(w.name + " cannot be kept in a data file"), where(std::move(w)) {}

bool IsUtf8(std::string_view bytes) {
    for (std::size_t offset = 0; offset < bytes.size();) {
        const Decoded decoded = Decode(bytes.substr(offset));
        if (decoded.length == 0) return false;
        offset += decoded.length;
    }
    return true;
}

std::optional<Unencodable> FirstUnencodable(std::string_view utf8) {
    std::string bytes;
    return Encode(utf8, bytes);
}

std::string ToWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    if (auto where = Encode(utf8, bytes)) throw UnencodableError(std::move(*where));
    return bytes;
}

std::string FromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool special = byte >= 0x80 && byte < 0xA0;
        Append(text, special ? kUpperControls[byte - 0x80u] : byte);
    }
    return text;
}

std::string UpperCase(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t offset = 0; offset < utf8.size();) {
        const Decoded decoded = Decode(utf8.substr(offset));
        const char32_t capital = Capital(decoded.codePoint);
        if (decoded.length != 0 && capital != decoded.codePoint) {
            Append(text, capital);
        } else {
            text.append(utf8.substr(offset, std::max<std::size_t>(decoded.length, 1)));
        }
        offset += std::max<std::size_t>(decoded.length, 1);
    }
    return text;
}

}  // namespace quillmark
