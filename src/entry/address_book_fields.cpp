#include "entry/address_book_fields.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <stdexcept>

#include "core/field_registry.h"
#include "core/fields.h"

namespace quillmark {

namespace {

/// A run of fields that take the items of a record in order.
struct Block {
    AddressBook book;
    int first;
};

constexpr std::array kBlocks = {
    Block{AddressBook::Attorneys, field::BuyerLawfirm},
    Block{AddressBook::Servicers, field::Payoff1Servicer},
    Block{AddressBook::Servicers, field::Payoff2Servicer},
};

const Block* BlockPickedFrom(int field) {
    const int first = field == field::BuyerAtty ? field::BuyerLawfirm : field;
    const auto block =
        std::find_if(kBlocks.begin(), kBlocks.end(), [&](const Block& b) { return b.first == first; });
    return block == kBlocks.end() ? nullptr : &*block;
}

const Block& RequireBlock(int field) {
    const Block* block = BlockPickedFrom(field);
    if (!block)
        throw std::invalid_argument(fmt::format("field {} takes no pick from an address book", field));
    return *block;
}

bool HasNeeded(const Job& job, const Block& block) {
    int n = block.first;
    const auto items = ItemsOf(block.book);
    return std::all_of(items.begin(), items.end(),
                       [&](const BookItem& item) { return job.IsFilled(n++) || !item.needed; });
}

std::vector<std::string> ItemsOfJob(const Job& job, const Block& block) {
    std::vector<std::string> items(ItemsOf(block.book).size());
    int n = block.first;
    for (std::string& item : items) {
        if (job.IsFilled(n)) item = job.D(n);
        ++n;
    }
    return items;
}

}  // namespace

std::optional<AddressBook> BookOfField(int n, bool lawFirmHasRow) {
    const Block* block = BlockPickedFrom(n);
    if (!block || (n == field::BuyerAtty && lawFirmHasRow)) return std::nullopt;
    return block->book;
}

DatabaseCombo FillDatabaseCombo(std::string_view listName, int field, const AddressBooks& books) {
    const AddressBook book = BookNamed(listName);
    if (RequireBlock(field).book != book)
        throw std::invalid_argument(fmt::format("field {} takes no pick from {}", field, listName));
    AddressList list = books.Read(book);
    DatabaseCombo combo = {book, field, std::string(FieldMarker(field)), {}, std::move(list.faults)};
    combo.lines.emplace_back(kSelectLine);
    for (std::string& record : list.records) combo.lines.push_back(std::move(record));
    return combo;
}

std::vector<FieldText> FieldsOfRecord(int field, std::string_view record, bool attorneyHasRow) {
    const Block& block = RequireBlock(field);
    std::vector<FieldText> fields;
    for (const std::string& item : ItemsOfRecord(block.book, record)) {
        const int n = block.first + static_cast<int>(fields.size());
        fields.push_back({n, item.empty() ? std::string(FieldMarker(n)) : item});
    }
    const bool loneAttorney = block.first == field::BuyerLawfirm && fields[0].text == fields[1].text;
    if (loneAttorney && attorneyHasRow) fields[0].text = FieldMarker(field::BuyerLawfirm);
    return fields;
}

std::vector<FieldText> FieldsOfPick(const DatabaseCombo& combo, std::size_t line, bool attorneyHasRow) {
    if (line == 0 || line >= combo.lines.size()) return {};
    return FieldsOfRecord(combo.field, combo.lines[line], attorneyHasRow);
}

JobEntries EntriesOfJob(const Job& job) {
    JobEntries found;
    for (const Block& block : kBlocks) {
        if (!HasNeeded(job, block)) continue;
        try {
            found.entries.push_back({block.book, RecordOf(block.book, ItemsOfJob(job, block))});
        } catch (const AddressRecordError& error) {
            found.leftOut.emplace_back(error.what());
        }
    }
    return found;
}

BooksFed SaveToDatabases(const Job& job, const AddressBooks& books) {
    JobEntries found = EntriesOfJob(job);
    return {books.AddAll(found.entries), std::move(found.leftOut)};
}

}  // namespace quillmark
