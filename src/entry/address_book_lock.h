#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "platform/clock.h"
#include "platform/file_lock.h"

/// The one lock of both address books: the file "Access.lok" in the database folder, held exclusively while a
/// list is read or written. It stays empty; who holds it stands beside it, in "Access.who". "Access.nxt",
/// empty too, is held by the one who is next.
namespace quillmark {

/// Who holds the address books.
struct BookHolder {
    std::string user;
    std::string computer;
    std::string since;  ///< "2026-03-05 10:16:04", by the holder's clock

    bool operator==(const BookHolder&) const = default;
};

/// "In use by jane at FRONTDESK since 2026-03-05 10:16:04"; "In use by another user" for nobody known.
std::string DescriptionOf(const std::optional<BookHolder>& holder);

/// The books are in another's hands.
struct BooksInUse {
    std::optional<BookHolder> holder;  ///< as far as it is known
    std::chrono::milliseconds waited{0};
};

/// Called about twenty times a second while another holds the books; false gives up waiting.
using WaitForBooks = std::function<bool(const BooksInUse& use)>;

class AddressBookLock {
 public:
    /// Waits as long as `wait` says, for ever without one; the lock of a program that has died is free.
    /// Throws FileError: kind InUse, with the holder in its text, when it gave up; any other when the folder
    /// can hold no lock.
    AddressBookLock(const std::filesystem::path& folder, const Clock& clock, const WaitForBooks& wait = {});
    ~AddressBookLock();
    AddressBookLock(const AddressBookLock&) = delete;
    AddressBookLock& operator=(const AddressBookLock&) = delete;

 private:
    void NameHolder(const Clock& clock) const;

    std::filesystem::path who_;
    FileLock lock_;
};

/// Who holds the books of this folder, as far as is told. What a holder that died has left there is told as
/// well, until the next one takes over, so this means something only while the lock is found held.
std::optional<BookHolder> HolderOf(const std::filesystem::path& folder);

}  // namespace quillmark
