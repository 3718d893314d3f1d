#pragma once

#include <filesystem>
#include <string_view>

namespace quillmark {

/// Writes a small file whose loss does no harm, such as a note for others who wait: in place, not flushed to
/// disk, and without an error where it cannot be written.
void WriteNote(const std::filesystem::path& file, std::string_view bytes);

}  // namespace quillmark
