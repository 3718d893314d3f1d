#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// Running another program to its end, as the PDF output needs it; one source file for each kind of system.
namespace quillmark {

/// The first of these programs that stands in a folder of the PATH, or, on Windows, of which its setup has
/// told the system.
std::optional<std::filesystem::path> FindProgram(const std::vector<std::string>& names);

enum class ProgramEnd { Done, Failed, TimedOut };

/// Runs the program without input and output and waits for it. When the limit has passed, it is ended with
/// all that it started. Throws std::system_error if it cannot be started.
ProgramEnd RunProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                      std::chrono::seconds limit);

/// A new folder below the system's temporary one, for the user alone. Throws
/// std::filesystem::filesystem_error.
std::filesystem::path MakePrivateFolder();

/// The "file:" address of an absolute path.
std::string FileAddress(const std::filesystem::path& path);

}  // namespace quillmark
