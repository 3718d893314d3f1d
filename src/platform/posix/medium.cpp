#ifndef _WIN32

#include "platform/medium.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/atomic_file.h"
#include "platform/medium_system.h"
#include "platform/posix/shared_folder.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

/// An open file or folder, closed with the object.
class Descriptor {
 public:
    Descriptor(const fs::path& path, int flags) : number_(::open(path.c_str(), flags | O_CLOEXEC)) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    operator int() const { return number_; }

 private:
    int number_;
};

std::FILE* Stream(int descriptor, const char* mode) {
    return descriptor < 0 ? nullptr : ::fdopen(descriptor, mode);
}

}  // namespace

namespace medium {

std::FILE* OpenToRead(const fs::path& file) {
    return Stream(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC), "rb");
}

std::FILE* OpenNew(const fs::path& file) {
    return Stream(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666), "wb");
}

bool Settle([[maybe_unused]] std::FILE* written) {
#ifdef __linux__
    return true;  // the whole medium at once is many times faster
#else
    return ::fsync(::fileno(written)) == 0;
#endif
}

void ForgetCached([[maybe_unused]] std::FILE* file) {
#ifdef POSIX_FADV_DONTNEED
    ::posix_fadvise(::fileno(file), 0, 0, POSIX_FADV_DONTNEED);
#endif
}

}  // namespace medium

void FlushMedium(const fs::path& folder) {
    const Descriptor open(folder, O_RDONLY | O_DIRECTORY);
#ifdef __linux__
    const bool done = open >= 0 && ::syncfs(open) == 0;
#else
    const bool done = open >= 0 && (::fsync(open) == 0 || errno == EINVAL);
#endif
    if (!done) throw FileError(folder, std::error_code(errno, std::generic_category()));
}

bool ExchangeFolders([[maybe_unused]] const fs::path& one, [[maybe_unused]] const fs::path& other) {
#ifdef RENAME_EXCHANGE
    return ::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0;
#else
    return false;
#endif
}

void TakeRightsOf(const fs::path& target, const fs::path& file) {
    const Descriptor open(file, O_RDONLY | O_NONBLOCK);
    if (open < 0) return;
    struct stat old = {};
    if (::stat(target.c_str(), &old) != 0) return ShareWithGroup(open, target.parent_path());
    if (::fchown(open, old.st_uid, old.st_gid) != 0)
        std::ignore = ::fchown(open, static_cast<uid_t>(-1), old.st_gid);
    ::fchmod(open, old.st_mode & 07777);
}

}  // namespace quillmark

#endif
