#include "entry/address_book_lock.h"

#include "platform/atomic_file.h"
#include "platform/paths.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr const char* kLock = "Access.lok";
constexpr const char* kTurn = "Access.nxt";
constexpr const char* kWho = "Access.who";

/// Those who wait stand in line at a lock of their own, and only the first of them watches the lock of the
/// books, closely. So a program that writes record after record cannot take it again and again while others
/// look away.
class Queue {
 public:
    Queue(const fs::path& folder, const WaitForFile& wait) : folder_(folder), wait_(wait) {}

    FileLock TakeTurn() const {
        constexpr std::chrono::milliseconds kWatch{5};
        try {
            const FileLock turn(folder_ / kTurn, Asking(FileLock::kPause));
            return FileLock(FindExisting(folder_ / kLock), Asking(kWatch), kWatch);
        } catch (const FileError& error) {
            if (error.kind != FileError::Kind::InUse) throw;
            throw FileError(error.file, error.kind, DescriptionOf(HolderOf(folder_)));
        }
    }

 private:
    /// Asks about twenty times a second.
    FileLock::KeepWaiting Asking(std::chrono::milliseconds pause) const {
        if (!wait_) return {};
        const auto every = FileLock::kPause / pause;
        return [this, every, pauses = every]() mutable {
            if (++pauses < every) return true;
            pauses = 0;
            return wait_({folder_ / kLock, HolderOf(folder_), Waited()});
        };
    }

    std::chrono::milliseconds Waited() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Time::now() - since_);
    }

    using Time = std::chrono::steady_clock;
    const fs::path& folder_;
    const WaitForFile& wait_;
    const Time::time_point since_ = Time::now();
};

}  // namespace

std::optional<FileHolder> HolderOf(const fs::path& folder) {
    return ReadHolder(folder / kWho);
}

AddressBookLock::AddressBookLock(const fs::path& folder, const Clock& clock, const WaitForFile& wait)
    : who_(folder / kWho), lock_(Queue(folder, wait).TakeTurn()) {
    WriteHolder(who_, clock);
}

AddressBookLock::~AddressBookLock() {
    std::error_code ignored;  // the next holder writes over it
    fs::remove(who_, ignored);
}

}  // namespace quillmark
