#include "entry/address_book.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "platform/code_page.h"

namespace quillmark {

namespace {

// clang-format off
constexpr BookItem kAttorneyItems[] = {
    // placeholder                      needed  telephone
    {"< attorney firm name >",          false},
    {"< attorney name >",               true},
    {"< attorney address 1 >",          true},
    {"< attorney address 2 >",          false},
    {"< attorney city state zip >",     true},
    {"< attorney phone >",              true,   true},
    {"< attorney fax >",                true,   true},
    {"< attorney email >",              false},
};
constexpr BookItem kServicerItems[] = {
    {"< servicer name >",               true},
    {"< servicer address 1 >",          true},
    {"< servicer address 2 >",          false},
    {"< servicer city state zip >",     true},
};
// clang-format on

constexpr std::array kBooks = {AddressBook::Attorneys, AddressBook::Servicers};

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

void RequireKeepable(std::string_view item) {
    // With the blank that follows it, an item that ends in " _" holds a separator, too.
    if ((std::string(item) + ' ').find(kItemSeparator) != std::string::npos)
        throw AddressRecordError(fmt::format(
            "\"{}\" cannot be kept in the address book: an underscore between blanks parts the items there.",
            item));
    if (const auto foreign = FirstUnencodable(item))
        throw AddressRecordError(fmt::format("An address book cannot hold {}.", foreign->name));
    if (std::any_of(item.begin(), item.end(), IsControl))
        throw AddressRecordError(fmt::format(
            "\"{}\" cannot be kept in the address book: an item is a single line of text.", item));
}

}  // namespace

std::string_view NameOf(AddressBook book) {
    return book == AddressBook::Attorneys ? "Attorneys" : "Servicers";
}

AddressBook BookNamed(std::string_view name) {
    for (const AddressBook book : kBooks)
        if (NameOf(book) == name) return book;
    throw std::invalid_argument(fmt::format("there is no address book \"{}\"", name));
}

std::span<const BookItem> ItemsOf(AddressBook book) {
    if (book == AddressBook::Attorneys) return kAttorneyItems;
    return kServicerItems;
}

std::string RecordOf(AddressBook book, std::vector<std::string> items) {
    if (items.size() != ItemsOf(book).size())
        throw std::invalid_argument(
            fmt::format("a record of {} has {} items", NameOf(book), ItemsOf(book).size()));
    if (book == AddressBook::Attorneys && items[0].empty()) items[0] = items[1];
    for (const std::string& item : items) RequireKeepable(item);
    if (std::all_of(items.begin(), items.end(), [](const std::string& item) { return item.empty(); }))
        throw AddressRecordError("There is nothing to add.");
    std::string record = fmt::format("{}", fmt::join(items, kItemSeparator));
    if (record.size() > kLongestRecord)
        throw AddressRecordError("The entry is too long for the address book.");
    return record;
}

std::vector<std::string> ItemsOfRecord(AddressBook book, std::string_view record) {
    std::vector<std::string> items;
    for (const BookItem& item : ItemsOf(book)) {
        const bool last = items.size() + 1 == ItemsOf(book).size();
        const std::size_t end = last ? std::string_view::npos : record.find(kItemSeparator);
        const std::string_view piece = record.substr(0, end);
        items.emplace_back(piece == item.placeholder ? std::string_view() : piece);
        record.remove_prefix(end == std::string_view::npos ? record.size() : end + kItemSeparator.size());
    }
    return items;
}

std::string BookTelephone(std::string_view text) {
    const bool digits = std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!digits || text.size() < 10) return std::string(text);
    const std::size_t line = text.size() - 4;
    const std::size_t exchange = line - 3;
    return fmt::format("({}) {}-{}", text.substr(0, exchange), text.substr(exchange, 3), text.substr(line));
}

}  // namespace quillmark
