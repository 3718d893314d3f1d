#pragma once

#include <filesystem>
#include <string_view>

/// Files that cannot be read are kept for somebody to look at, and are in nobody's way.
namespace quillmark {

/// Renames the file to "NAME.damaged", or "NAME.damaged (2)" and so on, and gives the new path. Throws
/// FileError.
std::filesystem::path SetAside(const std::filesystem::path& file);

/// Keeps these bytes of it under such a name, where the file itself is about to be replaced. Throws
/// FileError.
std::filesystem::path KeepDamagedCopy(const std::filesystem::path& file, std::string_view bytes);

}  // namespace quillmark
