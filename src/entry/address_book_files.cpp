#include "entry/address_book_files.h"

#include <fmt/format.h>

#include "platform/atomic_file.h"
#include "platform/paths.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLargestList = 64u << 20;

/// A program that removes a record by copying the others to "NAME.new" and renaming that may have ended
/// between deleting the list and renaming its copy.
void TakeUpReplacement(const fs::path& list) {
    std::error_code error;
    if (fs::exists(list, error)) return;
    const fs::path replacement = FindExisting(fs::path(list).replace_extension(".new"));
    if (!fs::is_regular_file(replacement, error)) return;
    fs::rename(replacement, list, error);
    if (error) throw FileError(replacement, error);
}

}  // namespace

AddressBooks::AddressBooks(fs::path folder, const Clock& clock, WaitForFile wait)
    : folder_(std::move(folder)), clock_(clock), wait_(std::move(wait)) {}

fs::path AddressBooks::FileOf(AddressBook book) const {
    return FindExisting(folder_ / fmt::format("{}.lst", NameOf(book)));
}

std::string AddressBooks::BytesOf(AddressBook book) const {
    const fs::path list = FileOf(book);
    TakeUpReplacement(list);
    try {
        return ReadFile(list, kLargestList);
    } catch (const FileError& error) {
        if (error.kind != FileError::Kind::NotFound) throw;
        return {};
    }
}

AddressList AddressBooks::ListOf(AddressBook book, std::string_view bytes) const {
    return AddressListOf(TextOf(FileOf(book).filename()), bytes);
}

bool AddressBooks::Replace(AddressBook book, std::string_view before, std::string_view after) const {
    if (after == before) return false;
    ReplaceFile(FileOf(book), after);
    return true;
}

AddressList AddressBooks::Read(AddressBook book) const {
    const AddressBookLock lock(folder_, clock_, wait_);
    return ListOf(book, BytesOf(book));
}

AddressBooks::Change AddressBooks::Add(AddressBook book, std::string_view record) const {
    const AddressBookLock lock(folder_, clock_, wait_);
    const std::string before = BytesOf(book);
    const std::string after = WithRecord(before, record);
    return {Replace(book, before, after), ListOf(book, after)};
}

AddressBooks::Change AddressBooks::Remove(AddressBook book, std::string_view record) const {
    const AddressBookLock lock(folder_, clock_, wait_);
    const std::string before = BytesOf(book);
    const std::string after = WithoutRecord(before, record);
    return {Replace(book, before, after), ListOf(book, after)};
}

std::size_t AddressBooks::AddAll(const std::vector<BookEntry>& entries) const {
    if (entries.empty()) return 0;
    const AddressBookLock lock(folder_, clock_, wait_);
    std::size_t added = 0;
    for (const BookEntry& entry : entries) {
        const std::string before = BytesOf(entry.book);
        added += Replace(entry.book, before, WithRecord(before, entry.record));
    }
    return added;
}

}  // namespace quillmark
