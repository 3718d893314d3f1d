#include "platform/scratch_file.h"

#include <fstream>
#include <system_error>

#include "platform/atomic_file.h"
#include "platform/temporary_name.h"

namespace quillmark {
namespace fs = std::filesystem;

ScratchFile::ScratchFile(const fs::path& name, std::string_view bytes) {
    std::error_code failure;
    const fs::path folder = fs::temp_directory_path(failure) / TemporaryName();
    if (failure || !fs::create_directory(folder, failure)) throw FileError(folder, failure);
    folder_ = folder;
    path_ = folder_ / name;
    std::ofstream out(path_, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (out.flush()) return;
    Remove();
    throw FileError(path_, FileError::Kind::Other, "could not be written");
}

ScratchFile::~ScratchFile() {
    Remove();
}

void ScratchFile::Remove() {
    std::error_code ignored;
    if (!folder_.empty()) fs::remove_all(folder_, ignored);
}

}  // namespace quillmark
