#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/job.h"
#include "entry/address_book_files.h"

/// Between a job's fields and the address books: a pick fills a block of fields, a job feeds the books.
namespace quillmark {

/// Line 0 of the drop-down; its pick does nothing.
inline constexpr std::string_view kSelectLine = "< SELECT FROM DATABASE >";

/// The drop-down `Combo2` over the grid.
struct DatabaseCombo {
    AddressBook book = AddressBook::Attorneys;
    int field = 0;                    ///< whose row it stands on
    std::string tag;                  ///< that field's marker
    std::vector<std::string> lines;   ///< `kSelectLine`, then the records whole, in file order
    std::vector<std::string> faults;  ///< lines of the list that are no records, for the user
};

/// The book that a click on field n offers to pick from: attorneys on the law firm, or on the attorney where
/// the firm has no row in the grid; servicers on either payoff's servicer.
std::optional<AddressBook> BookOfField(int n, bool lawFirmHasRow);

/// Reads the list afresh. Throws std::invalid_argument for a list other than "Attorneys" and "Servicers", and
/// for a field that takes no pick from it; else as AddressBooks::Read.
DatabaseCombo FillDatabaseCombo(std::string_view listName, int field, const AddressBooks& books);

struct FieldText {
    int n;
    std::string text;  ///< the field's marker where the record has no such item

    bool operator==(const FieldText&) const = default;
};

/// What a pick brings to the fields of the block, in the order in which they are to be set. A lone attorney,
/// kept with his name in the firm's place, leaves the firm unfilled if the attorney has a row of his own.
std::vector<FieldText> FieldsOfRecord(int field, std::string_view record, bool attorneyHasRow);
/// The same for a line of the drop-down; nothing for line 0 and for lines that it does not have.
std::vector<FieldText> FieldsOfPick(const DatabaseCombo& combo, std::size_t line, bool attorneyHasRow);

struct JobEntries {
    std::vector<BookEntry> entries;
    std::vector<std::string> leftOut;  ///< why an address cannot be kept in a book, for the user
};
/// What a job has for the books: its buyer's attorney if name, address, city, telephone and fax are filled;
/// each payoff's servicer if name, address and city are.
JobEntries EntriesOfJob(const Job& job);

struct BooksFed {
    std::size_t added = 0;
    std::vector<std::string> leftOut;
};
/// Adds those of them that the books do not have yet. Throws FileError; an entry added before it stays.
BooksFed SaveToDatabases(const Job& job, const AddressBooks& books);

}  // namespace quillmark
