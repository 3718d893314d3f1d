#include "platform/shared_lock.h"

#include <thread>

namespace quillmark {

namespace fs = std::filesystem;

namespace {

using Time = std::chrono::steady_clock;

fs::path NoteOf(const fs::path& lock) {
    fs::path note = lock;
    return note.replace_extension(".who");
}

FileInUse UseOf(const fs::path& file, std::optional<FileHolder> holder, Time::time_point since) {
    return {file, std::move(holder),
            std::chrono::duration_cast<std::chrono::milliseconds>(Time::now() - since)};
}

/// Asks about twenty times a second, however short the pauses are.
FileLock::KeepWaiting Asking(const fs::path& lock, const WaitForFile& wait, std::chrono::milliseconds pause) {
    if (!wait) return {};
    const auto every = std::max<std::chrono::milliseconds::rep>(1, FileLock::kPause / pause);
    return [lock, &wait, every, pauses = every, since = Time::now()]() mutable {
        if (++pauses < every) return true;
        pauses = 0;
        return wait(UseOf(lock, ReadHolder(NoteOf(lock)), since));
    };
}

FileLock Take(const fs::path& lock, const WaitForFile& wait, std::chrono::milliseconds pause) {
    try {
        return FileLock(lock, Asking(lock, wait, pause), pause);
    } catch (const FileError& error) {
        if (error.kind != FileError::Kind::InUse) throw;
        throw FileError(error.file, error.kind, DescriptionOf(ReadHolder(NoteOf(lock))));
    }
}

}  // namespace

SharedLock::SharedLock(const fs::path& lock, const WaitForFile& wait, std::chrono::milliseconds pause)
    : lock_(Take(lock, wait, pause)) {
    WriteHolder(NoteOf(lock), SystemClock());
}

std::optional<FileHolder> LastHolderOf(const fs::path& lock) {
    return ReadHolder(NoteOf(lock));
}

bool WaitsOn(const fs::path& file, const WaitForFile& wait, Time::time_point since) {
    if (wait && !wait(UseOf(file, std::nullopt, since))) return false;
    std::this_thread::sleep_for(FileLock::kPause);
    return true;
}

}  // namespace quillmark
