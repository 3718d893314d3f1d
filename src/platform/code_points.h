#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// The text as one number a character; a byte that is no UTF-8 counts as one.
std::u32string CodePoints(std::string_view utf8);
std::string Utf8Of(std::u32string_view codePoints);

}  // namespace quillmark
