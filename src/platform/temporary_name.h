#pragma once

#include <filesystem>
#include <string>

/// Files that are written beside the one that they will replace.
namespace quillmark {

/// A file name unlike every other in its folder, and short, since the name of the file that it will replace
/// may already be the longest that the system allows.
std::string TemporaryName();

/// Removes what writers that died have left in the folder of `present`, a temporary file just made: files of
/// such a name that were last written a day or more before it, by the clock of the disk that both lie on, and
/// that no living writer holds. Looks through each folder once in a run of the program; what cannot be
/// removed stays.
void SweepLeftovers(const std::filesystem::path& present);

/// Whether a writer has the file in hand at this moment; true also where that cannot be found out.
bool IsBeingWritten(const std::filesystem::path& temporary);

}  // namespace quillmark
