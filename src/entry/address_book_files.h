#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "entry/address_book.h"
#include "entry/address_book_list.h"
#include "entry/address_book_lock.h"
#include "platform/clock.h"

namespace quillmark {

struct BookEntry {
    AddressBook book;
    std::string record;
};

/// The address books in the database folder: "Attorneys.lst" and "Servicers.lst". Every function takes the
/// lock for its whole run, leaves no file open, and replaces a list in one step, so that a list is never seen
/// half written. A missing list is empty, unless another program ended while it put the copy "NAME.new" in
/// the list's place: then the copy becomes the list.
///
/// All throw FileError: kind InUse when waiting was given up, TooLarge for a list of more than 64 MB, which
/// stays as it is. After any failure the lists are unchanged, or whole as another user left them.
class AddressBooks {
 public:
    /// `clock` must outlive the object. For `wait` see AddressBookLock.
    AddressBooks(std::filesystem::path folder, const Clock& clock, WaitForFile wait = {});

    AddressList Read(AddressBook book) const;

    struct Change {
        bool made;         ///< the list is another one now
        AddressList list;  ///< as it is now
    };
    /// Nothing is written when an equal record is there. Throws UnencodableError.
    Change Add(AddressBook book, std::string_view record) const;
    /// Removes every line that equals the record.
    Change Remove(AddressBook book, std::string_view record) const;

    /// Adds all that are not there yet, under one lock; gives how many. Entries of one book follow each
    /// other or cost a writing each.
    std::size_t AddAll(const std::vector<BookEntry>& entries) const;

 private:
    std::filesystem::path FileOf(AddressBook book) const;
    std::string BytesOf(AddressBook book) const;
    AddressList ListOf(AddressBook book, std::string_view bytes) const;
    bool Replace(AddressBook book, std::string_view before, std::string_view after) const;

    std::filesystem::path folder_;
    const Clock& clock_;
    WaitForFile wait_;
};

}  // namespace quillmark
