#pragma once

#include <filesystem>
#include <optional>
#include <string>

/// Files that are written beside the one that they will replace.
namespace quillmark {

/// A file name unlike every other in its folder, and short, since the name of the file that it will replace
/// may already be the longest that the system allows.
std::string TemporaryName();

/// Removes what writers that died have left in the folder of `present`, a temporary file just made: files of
/// such a name that no living writer holds; where the disk cannot tell, those that were last written a day or
/// more before it, by the clock of the disk that both lie on. Looks through each folder once in a run of the
/// program; what cannot be removed stays.
void SweepLeftovers(const std::filesystem::path& present);

/// Whether a writer has the file in hand at this moment; nothing where that cannot be found out.
std::optional<bool> IsBeingWritten(const std::filesystem::path& temporary);

}  // namespace quillmark
