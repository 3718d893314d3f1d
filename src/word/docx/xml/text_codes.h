#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Characters of UTF-8 text.
namespace quillmark::word::docx::xml {

struct CodePoint {
    char32_t value = 0;
    std::size_t length = 0;  ///< bytes; 0 where the bytes are no UTF-8, or at the end
};

/// The character at the beginning of the text.
CodePoint DecodeFirst(std::string_view text);
void AppendUtf8(std::string& text, char32_t value);

/// Whether XML may hold the text as it stands: UTF-8 without control characters but tab and line ends.
bool IsCleanXmlText(std::string_view text);
/// The text without what XML forbids; bytes that are no UTF-8 become U+FFFD.
std::string CleanXmlText(std::string_view text);

/// The name with its ASCII letters small. Names of parts and of bookmarks differ by more than capitals.
std::string SmallLetters(std::string_view name);

/// The letter that stands for all forms of it when letter case does not count, and the straight quotation
/// mark for curly ones.
char32_t FoldForSearch(char32_t value);

}  // namespace quillmark::word::docx::xml
