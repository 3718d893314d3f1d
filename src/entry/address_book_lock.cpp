#include "entry/address_book_lock.h"

#include <fmt/format.h>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/note_file.h"
#include "platform/paths.h"
#include "platform/record_file.h"
#include "platform/this_user.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr const char* kLock = "Access.lok";
constexpr const char* kTurn = "Access.nxt";
constexpr const char* kWho = "Access.who";
constexpr std::size_t kWhoLimit = 4096;

std::string TimeText(std::chrono::local_seconds time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date{day};
    const std::chrono::hh_mm_ss hour{time - day};
    return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                       hour.hours().count(), hour.minutes().count(), hour.seconds().count());
}

/// Those who wait stand in line at a lock of their own, and only the first of them watches the lock of the
/// books, closely. So a program that writes record after record cannot take it again and again while others
/// look away.
class Queue {
 public:
    Queue(const fs::path& folder, const WaitForBooks& wait) : folder_(folder), wait_(wait) {}

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
            return wait_({HolderOf(folder_), Waited()});
        };
    }

    std::chrono::milliseconds Waited() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Time::now() - since_);
    }

    using Time = std::chrono::steady_clock;
    const fs::path& folder_;
    const WaitForBooks& wait_;
    const Time::time_point since_ = Time::now();
};

}  // namespace

std::string DescriptionOf(const std::optional<BookHolder>& holder) {
    if (!holder) return "In use by another user";
    return fmt::format("In use by {} at {} since {}", holder->user, holder->computer, holder->since);
}

std::optional<BookHolder> HolderOf(const fs::path& folder) {
    try {
        const std::string bytes = ReadFile(folder / kWho, kWhoLimit);
        RecordReader reader(kWho, bytes);
        if (!reader.Next()) return std::nullopt;
        return BookHolder{reader.Text(0), reader.Text(1), reader.Text(2)};
    } catch (const FileError&) {
        return std::nullopt;
    } catch (const RecordError&) {
        return std::nullopt;  // caught while it is being written
    }
}

AddressBookLock::AddressBookLock(const fs::path& folder, const Clock& clock, const WaitForBooks& wait)
    : who_(folder / kWho), lock_(Queue(folder, wait).TakeTurn()) {
    NameHolder(clock);
}

AddressBookLock::~AddressBookLock() {
    std::error_code ignored;  // the next holder writes over it
    fs::remove(who_, ignored);
}

/// The name is for those who wait; that it could not be written is no reason to do without the books.
void AddressBookLock::NameHolder(const Clock& clock) const {
    static const ComputerUser user = ThisUser();
    if (user.user.empty() && user.computer.empty()) return;
    RecordWriter record;
    try {
        record.Write({user.user, user.computer, TimeText(clock.Now())});
    } catch (const UnencodableError&) {
        return;
    }
    WriteNote(who_, record.Bytes());
}

}  // namespace quillmark
