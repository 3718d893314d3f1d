#ifdef _WIN32

#include "platform/append_file.h"

#include <io.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include "platform/atomic_file.h"

namespace quillmark {

namespace fs = std::filesystem;

void AppendToOwnFile(const fs::path& file, std::string_view bytes) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> open(_wfopen(file.c_str(), L"ab"), std::fclose);
    const bool done = open && std::fwrite(bytes.data(), 1, bytes.size(), open.get()) == bytes.size() &&
                      std::fflush(open.get()) == 0 && _commit(_fileno(open.get())) == 0;
    if (!done) throw FileError(file, std::error_code(errno, std::generic_category()));
}

/// A user's local data are that user's alone.
void MakeOwnFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw FileError(folder, error);
}

}  // namespace quillmark

#endif
