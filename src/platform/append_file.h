#pragma once

#include <filesystem>
#include <string_view>

namespace quillmark {

/// Adds the bytes to the end of a file of the user's own, made for that user alone if it is not there, and
/// waits until the disk has them. Throws FileError.
void AppendToOwnFile(const std::filesystem::path& file, std::string_view bytes);

/// A folder for this user alone, with those above it. Throws FileError.
void MakeOwnFolder(const std::filesystem::path& folder);

}  // namespace quillmark
