#pragma once

#include <filesystem>

namespace quillmark::cli {

/// The file of this program; empty where the system does not tell.
std::filesystem::path ProgramFile();

}  // namespace quillmark::cli
