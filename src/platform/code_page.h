#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillmark {

/// Text inside the program is UTF-8; data files are windows-1252. The five bytes that windows-1252 leaves
/// undefined (81, 8D, 8F, 90, 9D) stand for the control characters of the same number, so every byte
/// sequence becomes a text and comes back unchanged.

/// A character that data files cannot hold.
struct Unencodable {
    std::size_t offset;     ///< where it begins in the UTF-8 text, in bytes
    std::string character;  ///< the character itself; empty where the text is not UTF-8
    std::string
        name;  ///< for messages: the character "ł" (U+0142), or the byte C3 where the text is not UTF-8
};

/// A text that was to be written holds such a character.
class UnencodableError : public std::runtime_error {
 public:
    explicit UnencodableError(Unencodable where);
    const Unencodable where;
};

/// Whether the bytes are UTF-8 text. ASCII is.
bool IsUtf8(std::string_view bytes);

/// The first character of the text that windows-1252 lacks, or the first byte that is no UTF-8.
std::optional<Unencodable> FirstUnencodable(std::string_view utf8);

/// Throws UnencodableError where FirstUnencodable finds something.
std::string ToWindows1252(std::string_view utf8);

/// Never fails.
std::string FromWindows1252(std::string_view bytes);

/// The text in capitals. Only letters whose capital windows-1252 also holds change; bytes that are no UTF-8
/// stay as they are.
std::string UpperCase(std::string_view utf8);

}  // namespace quillmark
