#include "platform/note_file.h"

#include <fstream>

namespace quillmark {

void WriteNote(const std::filesystem::path& file, std::string_view bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace quillmark
