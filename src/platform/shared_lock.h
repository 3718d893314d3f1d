#pragma once

#include <filesystem>

#include "platform/atomic_file.h"
#include "platform/file_holder.h"
#include "platform/file_lock.h"

namespace quillmark {

/// The turn of one program at files that several share: a lock file of their own beside them, and a note
/// beside it, ending in ".who", that names who holds it, or held it last.
class SharedLock {
 public:
    /// Waits as long as `wait` says, for ever without one; the lock of a program that has died is free.
    /// Throws FileError: kind InUse, with the holder in its text, when it gave up; any other where the folder
    /// can hold no lock.
    explicit SharedLock(const std::filesystem::path& lock, const WaitForFile& wait = {},
                        std::chrono::milliseconds pause = FileLock::kPause);

 private:
    FileLock lock_;
};

/// Who holds it, or held it last, as far as is told.
std::optional<FileHolder> LastHolderOf(const std::filesystem::path& lock);

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
