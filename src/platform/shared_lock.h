#pragma once

#include <filesystem>

#include "platform/atomic_file.h"
#include "platform/file_holder.h"
#include "platform/file_lock.h"

namespace quillmark {

/// The turn of one program at files that several share: a lock file of their own beside them, and while it is
/// held a note beside it, "LOCK.who", that names who holds it.
class SharedLock {
 public:
    /// Waits as long as `wait` says, for ever without one; the lock of a program that has died is free.
    /// Throws FileError: kind InUse, with the holder in its text, when it gave up; any other where the folder
    /// can hold no lock.
    explicit SharedLock(const std::filesystem::path& lock, const WaitForFile& wait = {},
                        std::chrono::milliseconds pause = FileLock::kPause);
    ~SharedLock();
    SharedLock(const SharedLock&) = delete;
    SharedLock& operator=(const SharedLock&) = delete;

 private:
    std::filesystem::path who_;
    FileLock lock_;
};

/// Asks `wait` before another try at a file that is in use since `since`, and pauses. False to give up.
bool WaitsOn(const std::filesystem::path& file, const WaitForFile& wait,
             std::chrono::steady_clock::time_point since);

/// Runs `step`; while a file that it needs is in use elsewhere, tries again as long as `wait` says, and
/// throws the FileError then.
template <class Step>
auto RetriedWhileInUse(const WaitForFile& wait, Step step) {
    const auto since = std::chrono::steady_clock::now();
    for (;;) {
        try {
            return step();
        } catch (const FileError& failure) {
            if (failure.kind != FileError::Kind::InUse || !WaitsOn(failure.file, wait, since)) throw;
        }
    }
}

}  // namespace quillmark
