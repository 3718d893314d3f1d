#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/file_lock.h"
#include "session/undo_snapshot.h"

namespace quillmark {

/// What was done to the job in hand since its file was last read or written, on disk in the user's own state
/// folder, so that a crash costs nothing. It is appended to in the background: nobody waits for the disk, and
/// what was done a second ago is there. Each running program has one of its own; it goes when the program
/// ends cleanly.
class Journal {
 public:
    /// A journal of this program folder, in `folder`, which is made for this user alone. Nothing is on disk
    /// before the first act. What the disk refuses is let go: the program works as well without.
    Journal(std::filesystem::path folder, const std::filesystem::path& programFolder);
    /// Removes it: the program ends cleanly.
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// The job is now as in this snapshot, at `time` by the program's clock, after so many changes since its
    /// file.
    void Add(std::shared_ptr<const Snapshot> now, std::size_t changes, std::chrono::local_seconds time);
    /// The same, of a job taken over from a program that left it: its journal goes when this one is on disk.
    struct Left;
    void TakeOver(std::shared_ptr<const Snapshot> now, const Left& left);
    /// Nothing is left that a file does not hold.
    void Clear();

    /// What a program that did not end cleanly left.
    struct Left {
        std::filesystem::path file;
        std::string job;
        std::chrono::local_seconds time;  ///< of the last change
        std::size_t changes = 0;
        bool wasDeclined = false;  ///< somebody was asked already, and said No
        std::shared_ptr<const Snapshot> state;
    };
    /// Those of this program folder, newest first. What is torn gives what was whole; what holds nothing is
    /// removed.
    std::vector<Left> LeftByOthers() const;
    /// Somebody said No: it is kept until the next start, then dropped.
    void Decline(const Left& left) const;
    void Drop(const Left& left) const;

 private:
    struct Entry {
        std::shared_ptr<const Snapshot> state;  ///< null clears
        std::size_t changes = 0;
        std::chrono::local_seconds time;
        std::filesystem::path replaces = {};  ///< another program's journal
    };

    void Enter(Entry entry);
    void Write(std::stop_token stop);
    void Append(const Entry& entry);

    const std::filesystem::path folder_;
    const std::string prefix_;  ///< of the files of this program folder
    std::filesystem::path file_;
    std::optional<FileLock> lock_;
    std::shared_ptr<const Snapshot> written_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<Entry> waiting_;
    bool used_ = false;  ///< there may be something to clear
    std::jthread writer_;
};

}  // namespace quillmark
