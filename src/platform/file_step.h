#pragma once

#include <filesystem>
#include <functional>

namespace quillmark {

/// An operation by which this program changes a disk.
enum class FileStep { Create, Write, Flush, Rename, Remove, MakeFolder };

/// Called just before each of them with the file that it is about. It may end the process there, or throw a
/// FileError, which then stands for the operation's failure. This is how it is tried that a kill or a failure
/// at any moment leaves whole files; empty, as in daily use, for none.
using FileWatch = std::function<void(FileStep step, const std::filesystem::path& file)>;

/// Not to be changed while another thread works with files.
void WatchFileSteps(FileWatch watch);

/// For the platform's own functions.
void BeforeStep(FileStep step, const std::filesystem::path& file);

}  // namespace quillmark
