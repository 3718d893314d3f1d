#include "word/docx/find/codes.h"

#include <algorithm>
#include <optional>

#include "word/docx/xml/text_codes.h"

namespace quillmark::word::docx::find {

namespace {

struct Code {
    char letter;
    char32_t character;
};

// clang-format off
/// Codes that mean the same in both texts.
constexpr Code kCodes[] = {
    {'p', U'\r'},   {'t', U'\t'},   {'l', U'\v'},   {'m', U'\f'},   {'n', U'\x0e'},
    {'s', 0xA0},    {'=', 0x2013},  {'+', 0x2014},  {'^', U'^'},
};
// clang-format on

std::optional<char32_t> CharacterOf(char letter) {
    const auto* code = std::ranges::find(kCodes, letter, &Code::letter);
    return code == std::end(kCodes) ? std::nullopt : std::optional(code->character);
}

bool IsTextCharacter(char32_t c) {
    return c >= 0x20 || c == U'\t' || c == U'\v' || c == U'\f' || c == U'\x0e' || c == U'\r';
}

/// Appends to the last piece while it is text.
void AppendText(std::vector<ReplacementPiece>& pieces, std::string_view text) {
    if (pieces.empty() || pieces.back().kind != ReplacementPiece::Kind::Text) pieces.emplace_back();
    pieces.back().text += text;
}

void AppendClipboard(std::vector<ReplacementPiece>& pieces, const ClipboardContent* clipboard) {
    if (!clipboard || std::holds_alternative<std::monostate>(*clipboard)) {
        throw AutomationError(error::kBadValue, "The clipboard is empty: there is nothing to put in for ^c.");
    }
    if (const auto* text = std::get_if<std::string>(clipboard)) return AppendText(pieces, PlainText(*text));
    pieces.push_back({ReplacementPiece::Kind::Picture, {}});
}

/// Reads the code behind a caret; false when there is none.
bool AppendCode(std::vector<ReplacementPiece>& pieces, char letter, const ClipboardContent* clipboard) {
    if (letter == '&') {
        pieces.push_back({ReplacementPiece::Kind::FoundText, {}});
    } else if (letter == 'c') {
        AppendClipboard(pieces, clipboard);
    } else if (const auto character = CharacterOf(letter)) {
        std::string text;
        xml::AppendUtf8(text, *character);
        AppendText(pieces, text);
    } else {
        return false;
    }
    return true;
}

}  // namespace

void CheckLength(std::string_view text) {
    std::size_t units = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0u) != 0x80u) units += byte >= 0xF0 ? 2 : 1;
    }
    if (units > kLongestFindText) throw AutomationError(kTextTooLong, "String parameter too long.");
}

std::string PlainText(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const xml::CodePoint c = xml::DecodeFirst(text.substr(at));
        const bool endsPair = c.value == U'\n' && at > 0 && text[at - 1] == '\r';
        if (c.length == 0) xml::AppendUtf8(plain, 0xFFFD);
        if (c.value == U'\n' && !endsPair) plain += '\r';
        if (c.length != 0 && IsTextCharacter(c.value)) plain += text.substr(at, c.length);
        at += std::max<std::size_t>(c.length, 1);
    }
    return plain;
}

std::vector<char32_t> ParsePattern(std::string_view text) {
    std::vector<char32_t> pattern;
    const std::string plain = PlainText(text);
    for (std::string_view rest = plain; !rest.empty();) {
        xml::CodePoint c = xml::DecodeFirst(rest);
        if (c.value == U'^' && rest.size() > 1) {
            const auto code = CharacterOf(rest[1]);
            if (code || rest[1] == 'b') c = {code.value_or(kSectionMark), 2};
        }
        pattern.push_back(c.value == U'\r' ? kParagraphMark : xml::FoldForSearch(c.value));
        rest.remove_prefix(c.length);
    }
    return pattern;
}

std::vector<ReplacementPiece> ParseReplacement(const FindRequest& request) {
    std::vector<ReplacementPiece> pieces;
    const std::string plain = PlainText(request.replaceWith);
    for (std::string_view rest = plain; !rest.empty();) {
        const bool isCode =
            rest[0] == '^' && rest.size() > 1 && AppendCode(pieces, rest[1], request.clipboard);
        if (!isCode) AppendText(pieces, rest.substr(0, 1));
        rest.remove_prefix(isCode ? 2 : 1);
    }
    return pieces;
}

}  // namespace quillmark::word::docx::find
