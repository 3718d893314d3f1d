#ifdef _WIN32

#include "platform/file_lock.h"

#include <windows.h>

#include "platform/atomic_file.h"

namespace quillmark {

struct FileLock::Handle {
    HANDLE file = INVALID_HANDLE_VALUE;
    ~Handle() {
        if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
    }
};

namespace {

/// The whole of the file, however long.
bool TryLock(HANDLE file) {
    OVERLAPPED fromStart = {};
    return LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, MAXDWORD, MAXDWORD,
                      &fromStart) != 0;
}

}  // namespace

// Opened for this program alone, the file is held as long as it is open: against other programs of Windows.
// The lock beside it is what a server of another system passes on to programs of its own.
FileLock::FileLock(const std::filesystem::path& file, const KeepWaiting& keepWaiting,
                   std::chrono::milliseconds pause)
    : handle_(new Handle) {
    while (true) {
        handle_->file = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle_->file != INVALID_HANDLE_VALUE && TryLock(handle_->file)) return;
        const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
        handle_ = std::make_unique<Handle>();
        const FileError failure(file, error);
        if (failure.kind != FileError::Kind::InUse || (keepWaiting && !keepWaiting())) throw failure;
        Sleep(static_cast<DWORD>(pause.count()));
    }
}

FileLock::~FileLock() = default;
FileLock::FileLock(FileLock&&) noexcept = default;
FileLock& FileLock::operator=(FileLock&&) noexcept = default;

}  // namespace quillmark

#endif
