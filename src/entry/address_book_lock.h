#pragma once

#include <filesystem>
#include <optional>

#include "platform/clock.h"
#include "platform/file_holder.h"
#include "platform/file_lock.h"

/// The one lock of both address books: the file "Access.lok" in the database folder, held exclusively while a
/// list is read or written. It stays empty; who holds it stands beside it, in "Access.who". "Access.nxt",
/// empty too, is held by the one who is next.
namespace quillmark {

class AddressBookLock {
 public:
    /// Waits as long as `wait` says, for ever without one; the lock of a program that has died is free.
    /// Throws FileError: kind InUse, with the holder in its text, when it gave up; any other when the folder
    /// can hold no lock.
    AddressBookLock(const std::filesystem::path& folder, const Clock& clock, const WaitForFile& wait = {});
    ~AddressBookLock();
    AddressBookLock(const AddressBookLock&) = delete;
    AddressBookLock& operator=(const AddressBookLock&) = delete;

 private:
    std::filesystem::path who_;
    FileLock lock_;
};

/// Who holds the books of this folder, as far as is told. What a holder that died has left there is told as
/// well, until the next one takes over, so this means something only while the lock is found held.
std::optional<FileHolder> HolderOf(const std::filesystem::path& folder);

}  // namespace quillmark
