#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quillmark {

/// What the user is told about the documents just made, for the letters that they called for, each notice
/// once and in the order A to D; empty without letters.
std::string TextOfNotices(std::string_view letters);

/// How many sheets of letterhead the printer needs for these documents; empty when none prints on letterhead.
std::string LetterheadReminder(std::span<const std::string> documents);

}  // namespace quillmark
