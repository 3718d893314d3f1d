#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "platform/file_lock.h"

namespace quillmark {

/// Files on their way to the places of others, all or none. They wait in a folder of their own beside those
/// places, and the files that they replace wait there too; a list of the places, written before the first
/// file moves and removed after the last one has, says that what has moved is to be put back.
class Replacement {
 public:
    /// Of files below `data` and of files in `files`, the same folder or the one above it. Both are made if
    /// absent. Throws FileError, InUse where another replacement is at work.
    Replacement(const std::filesystem::path& data, const std::filesystem::path& files);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// A file is to stand at `target`. Gives where it is to be written until then.
    std::filesystem::path Add(const std::filesystem::path& target);
    void AddFolder(const std::filesystem::path& folder) { folders_.push_back(folder); }

    /// Moves every file to its place and calls `afterEach`. Throws FileError, and then everything is as it
    /// was, or will be after UndoUnfinished where even that fails.
    void Replace(const std::function<void()>& afterEach);

    /// Puts back what a replacement of files below `data` has moved before its program died; true when there
    /// was any. Leaves one alone that is at work. Throws FileError, and can be called again then.
    static bool UndoUnfinished(const std::filesystem::path& data);

 private:
    struct Move {
        std::filesystem::path target;
        std::filesystem::path fresh;   ///< gone once it stands at the target
        std::filesystem::path former;  ///< what stood there, if anything did
    };

    explicit Replacement(const std::filesystem::path& data);
    void Lock();
    void WriteList() const;
    void ReadList();
    void MakeFolders() const;
    void PutBack() const;
    void Flush() const;

    std::filesystem::path data_;
    std::filesystem::path files_;
    std::optional<FileLock> lock_;
    bool isOwner_ = false;  ///< of what waits; else another replacement is at work
    std::vector<Move> moves_;
    std::vector<std::filesystem::path> folders_;  ///< that are made on the way
};

}  // namespace quillmark
