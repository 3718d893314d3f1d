#pragma once

#include <filesystem>
#include <optional>

#include "platform/drives.h"
#include "platform/file_lock.h"

namespace quillmark {

/// Keeps others who share a drive from its backup while it is written or read. A medium that knows no locks,
/// or cannot be written, does without.
class DriveLock {
 public:
    /// Throws FileError, InUse, where another program holds it.
    explicit DriveLock(const Drive& drive);
    ~DriveLock();
    DriveLock(const DriveLock&) = delete;
    DriveLock& operator=(const DriveLock&) = delete;

    /// There while it is held, or left by a program that died.
    static std::filesystem::path FileOn(const Drive& drive) { return drive.root / ".quillmark-backup.lok"; }

 private:
    std::filesystem::path file_;
    std::optional<FileLock> lock_;
};

}  // namespace quillmark
