#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The two address books that the office shares, and their records.
///
/// A record is one line: the items of its book in order, parted by " _ ". An empty item leaves two separators
/// side by side.
namespace quillmark {

enum class AddressBook { Attorneys, Servicers };

inline constexpr std::string_view kItemSeparator = " _ ";
/// The most bytes that a line of a list may have to be read as a record.
inline constexpr std::size_t kLongestRecord = 4096;

struct BookItem {
    std::string_view placeholder;  ///< ghost text of its box on the editing screen
    bool needed;                   ///< a job feeds the book only when the item's field is filled
    bool telephone = false;
};

/// A record that no list can hold. what() is for the user.
class AddressRecordError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// "Attorneys", "Servicers": the name on screens, and with ".lst" the name of the file.
std::string_view NameOf(AddressBook book);
/// Throws std::invalid_argument for any other name.
AddressBook BookNamed(std::string_view name);
/// In the order in which they stand in a record.
std::span<const BookItem> ItemsOf(AddressBook book);

/// The record of these items, as many as the book has. An attorney without a firm is kept under his own name
/// in the firm's place. Throws AddressRecordError for items that would not come back as they are: with a
/// separator, a line break or another control character in them, with a character that data files lack, or
/// too long together; and when all are empty. Throws std::invalid_argument for another number of items.
std::string RecordOf(AddressBook book, std::vector<std::string> items);
/// The items of a record, from the left; always as many as the book has. Items that the record lacks are
/// empty; separators beyond the last item belong to it. A placeholder in an item's place is no item: empty.
std::vector<std::string> ItemsOfRecord(AddressBook book, std::string_view record);

/// Ten or more digits as "(###) ###-####", surplus ones in front; any other text unchanged.
std::string BookTelephone(std::string_view text);

}  // namespace quillmark
