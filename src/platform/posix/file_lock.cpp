#ifndef _WIN32

#include "platform/file_lock.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

#include "platform/atomic_file.h"
#include "platform/posix/shared_folder.h"

namespace quillmark {
namespace {

std::error_code LastError() {
    return {errno, std::generic_category()};
}

/// A lock of the open file description: unlike a lock of the process it also holds against this program's
/// other locks, and is not lost when some other use of the file is closed.
bool TryLock(int descriptor) {
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return ::fcntl(descriptor, F_OFD_SETLK, &whole) == 0;
}

/// The file, made if there is none and then shared with those who share its folder.
int Open(const std::filesystem::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor >= 0) {
        ShareWithGroup(descriptor, file.parent_path());
        return descriptor;
    }
    return ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
}

}  // namespace

struct FileLock::Handle {
    int descriptor;
    ~Handle() {
        if (descriptor >= 0) ::close(descriptor);
    }
};

FileLock::FileLock(const std::filesystem::path& file, const KeepWaiting& keepWaiting,
                   std::chrono::milliseconds pause)
    : handle_(new Handle{Open(file)}) {
    if (handle_->descriptor < 0) throw FileError(file, LastError());
    while (!TryLock(handle_->descriptor)) {
        if (errno == EINTR) continue;
        if (errno != EAGAIN && errno != EACCES) throw FileError(file, LastError());
        if (keepWaiting && !keepWaiting())
            throw FileError(file, FileError::Kind::InUse, "is locked by another user");
        std::this_thread::sleep_for(pause);
    }
}

FileLock::~FileLock() = default;
FileLock::FileLock(FileLock&&) noexcept = default;
FileLock& FileLock::operator=(FileLock&&) noexcept = default;

}  // namespace quillmark

#endif
