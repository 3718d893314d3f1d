#include "entry/address_book_list.h"

#include <fmt/format.h>

#include <algorithm>

#include "entry/address_book.h"
#include "platform/code_page.h"

namespace quillmark {

namespace {

constexpr std::string_view kLineEnds = "\r\n";

struct Line {
    std::string_view text;
    std::string_view end;

    std::string_view Bytes() const { return {text.data(), text.size() + end.size()}; }
};

/// Takes the first line off the bytes, which are not empty.
Line TakeLine(std::string_view& bytes) {
    const std::size_t length = std::min(bytes.find_first_of(kLineEnds), bytes.size());
    std::size_t end = std::min<std::size_t>(bytes.size() - length, 1);
    if (bytes.substr(length).starts_with("\r\n")) end = 2;
    const Line line = {bytes.substr(0, length), bytes.substr(length, end)};
    bytes.remove_prefix(length + end);
    return line;
}

bool IsNoText(char c) {
    return static_cast<unsigned char>(c) < ' ' && c != '\t';
}

/// Why the line is no record; empty if it is one.
std::string_view FaultOf(std::string_view text) {
    if (text.size() > kLongestRecord) return "is longer than any record";
    if (std::any_of(text.begin(), text.end(), IsNoText)) return "is no text";
    return {};
}

bool HoldsLine(std::string_view bytes, std::string_view text) {
    while (!bytes.empty())
        if (TakeLine(bytes).text == text) return true;
    return false;
}

}  // namespace

AddressList AddressListOf(std::string_view file, std::string_view bytes) {
    AddressList list;
    for (std::size_t number = 1; !bytes.empty(); ++number) {
        const std::string_view text = TakeLine(bytes).text;
        const std::string_view fault = FaultOf(text);
        if (!fault.empty()) {
            list.faults.push_back(fmt::format("{}, line {}: {}", file, number, fault));
        } else if (!text.empty()) {
            list.records.push_back(FromWindows1252(text));
        }
    }
    return list;
}

std::string WithRecord(std::string_view bytes, std::string_view record) {
    const std::string line = ToWindows1252(record);
    std::string list(bytes);
    if (HoldsLine(bytes, line)) return list;
    const bool openEnd = !list.empty() && kLineEnds.find(list.back()) == std::string_view::npos;
    if (openEnd) list += kLineEnds;
    return list.append(line).append(kLineEnds);
}

std::string WithoutRecord(std::string_view bytes, std::string_view record) {
    const std::string gone = ToWindows1252(record);
    std::string list;
    while (!bytes.empty()) {
        const Line line = TakeLine(bytes);
        if (line.text != gone) list += line.Bytes();
    }
    return list;
}

}  // namespace quillmark
