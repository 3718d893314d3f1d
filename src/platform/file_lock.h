#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>

namespace quillmark {

/// Holds a file exclusively against every other FileLock, in this program and in others, on this and on other
/// computers that share the folder. The file is created if absent and stays; its content is not touched. The
/// lock ends with the object, or with the program.
class FileLock {
 public:
    static constexpr std::chrono::milliseconds kPause{50};

    /// Called before every pause while another holds the lock; false gives up waiting.
    using KeepWaiting = std::function<bool()>;

    /// Waits as long as `keepWaiting` says, for ever without one, and tries again after every pause. Throws
    /// FileError, kind InUse when it gave up.
    explicit FileLock(const std::filesystem::path& file, const KeepWaiting& keepWaiting = {},
                      std::chrono::milliseconds pause = kPause);
    ~FileLock();
    FileLock(FileLock&&) noexcept;
    FileLock& operator=(FileLock&&) noexcept;

 private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

}  // namespace quillmark
