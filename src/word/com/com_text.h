#pragma once

#ifdef _WIN32

#include <string>
#include <string_view>

/// Texts of the program (UTF-8) as the automation interface of Windows has them (UTF-16). What is no valid
/// text comes through as the replacement character.
namespace quillmark::word {

std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

}  // namespace quillmark::word

#endif
