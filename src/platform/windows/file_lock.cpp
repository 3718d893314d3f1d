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

// Opened for this program alone, the file is held as long as it is open.
FileLock::FileLock(const std::filesystem::path& file, const KeepWaiting& keepWaiting,
                   std::chrono::milliseconds pause)
    : handle_(new Handle) {
    while (true) {
        handle_->file = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle_->file != INVALID_HANDLE_VALUE) return;
        const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
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
