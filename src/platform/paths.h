#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillmark {

/// A path from UTF-8 text and back, with the system's own separators.
std::filesystem::path PathOf(std::string_view utf8);
std::string TextOf(const std::filesystem::path& path);

/// The path that a stored folder or file text names: separated by backslashes or slashes, relative to `base`
/// unless it begins with a separator (or a drive, on Windows). Without a trailing separator. Where names
/// differ only in case the existing one is meant, as in FindExisting.
std::filesystem::path PathOfStored(std::string_view stored, const std::filesystem::path& base);

/// The text to store for a path: separated by backslashes.
std::string StoredTextOf(const std::filesystem::path& path);

/// The file or folder that the path means to a user for whom case makes no difference: the path itself if it
/// exists, else the existing one whose components differ from it only in case (the first in order of name
/// if there are several), as far down as there is one.
std::filesystem::path FindExisting(const std::filesystem::path& path);

}  // namespace quillmark
