#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "word/docx/find/find_replace.h"

/// The texts of a search, with their caret codes read.
namespace quillmark::word::docx::find {

/// Characters of a pattern that stand for the end of a paragraph, beyond all of Unicode.
inline constexpr char32_t kParagraphMark = 0x110000;
inline constexpr char32_t kSectionMark = 0x110001;

/// Throws AutomationError kTextTooLong for more than 255 characters as the word processor counts them.
void CheckLength(std::string_view text);

/// The characters to look for, in the form that FoldForSearch gives.
std::vector<char32_t> ParsePattern(std::string_view text);

/// One piece of a replacement, put in for every match.
struct ReplacementPiece {
    enum class Kind { Text, FoundText, Picture };
    Kind kind = Kind::Text;
    std::string text;  ///< with "\r" where a paragraph ends
};

/// Throws AutomationError kBadValue for ^c when there is no clipboard or nothing on it.
std::vector<ReplacementPiece> ParseReplacement(const FindRequest& request);

/// A text for a paragraph: control characters that the model has no meaning for are left out, and every kind
/// of line end is "\r".
std::string PlainText(std::string_view text);

}  // namespace quillmark::word::docx::find
