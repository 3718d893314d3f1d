#ifndef _WIN32

#include "platform/append_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/atomic_file.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(const fs::path& file) {
    throw FileError(file, std::error_code(errno, std::generic_category()));
}

class Descriptor {
 public:
    explicit Descriptor(const fs::path& file)
        : number(::open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR)) {
        if (number < 0) Fail(file);
    }
    ~Descriptor() { ::close(number); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    const int number;
};

}  // namespace

void AppendToOwnFile(const fs::path& file, std::string_view bytes) {
    const Descriptor open(file);
    while (!bytes.empty()) {
        const ssize_t written = ::write(open.number, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) Fail(file);
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    if (::fsync(open.number) != 0) Fail(file);
}

void MakeOwnFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::is_directory(folder, error)) return;
    if (folder.has_parent_path()) fs::create_directories(folder.parent_path(), error);
    if (error) throw FileError(folder, error);
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) Fail(folder);
}

}  // namespace quillmark

#endif
