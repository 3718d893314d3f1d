#include "tools/backup/drive_lock.h"

#include "platform/atomic_file.h"

namespace quillmark {

DriveLock::DriveLock(const Drive& drive) : file_(FileOn(drive)) {
    try {
        lock_.emplace(file_, [] { return false; });
    } catch (const FileError& failure) {
        if (failure.kind == FileError::Kind::InUse)
            throw FileError(drive.root, FileError::Kind::InUse,
                            "another computer is at work on the backup there");
    }
}

DriveLock::~DriveLock() {
    if (!lock_) return;
    lock_.reset();
    std::error_code none;
    std::filesystem::remove(file_, none);
}

}  // namespace quillmark
