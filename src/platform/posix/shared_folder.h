#pragma once

#include <filesystem>

namespace quillmark {

/// Gives a file just made what its folder's group may do, so that whoever shares the folder shares the file,
/// whatever the user's own umask says; a folder that its group may not write, or in which everyone keeps to
/// their own files, is not shared. What the system does not grant is left as it is.
void ShareWithGroup(int descriptor, const std::filesystem::path& folder);

}  // namespace quillmark
