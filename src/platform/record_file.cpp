#include "platform/record_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <utility>

#include "platform/code_page.h"

namespace quillmark {
namespace {

constexpr std::size_t kItemLimit = 64;  // no file of this program has more than seven items in a record
constexpr std::string_view kTrue = "#TRUE#";
constexpr std::string_view kFalse = "#FALSE#";

std::string EncodeText(std::string_view text) {
    constexpr std::string_view kUnwritable("\"\0", 2);
    if (const auto at = text.find_first_of(kUnwritable); at != std::string_view::npos) {
        const bool quote = text[at] == '"';
        throw UnencodableError(
            {at, std::string(1, text[at]), quote ? "the double quote" : "the zero character"});
    }
    return '"' + ToWindows1252(text) + '"';
}

struct Encoder {
    std::string operator()(std::string_view text) const { return EncodeText(text); }
    std::string operator()(int number) const { return fmt::to_string(number); }
    std::string operator()(double number) const { return fmt::to_string(number); }
    std::string operator()(bool value) const { return std::string(value ? kTrue : kFalse); }
};

}  // namespace

RecordError::RecordError(std::string f, std::size_t n, std::string r)
    : std::runtime_error(fmt::format("{}, record {}: {}", f, n, r)),
      file(std::move(f)),
      record(n),
      reason(std::move(r)) {}

void RecordReader::Fail(std::string reason) const {
    throw RecordError(file_, record_, std::move(reason));
}

bool RecordReader::AtLineEnd() const {
    return rest_.empty() || rest_.front() == '\r' || rest_.front() == '\n';
}

void RecordReader::SkipBlanks() {
    const auto end = rest_.find_first_not_of(" \t");
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end);
}

bool RecordReader::Next() {
    items_.clear();
    const auto begin = rest_.find_first_not_of(" \t\r\n");
    if (begin == std::string_view::npos) return false;
    rest_.remove_prefix(begin);
    ++record_;
    while (true) {
        if (items_.size() == kItemLimit) Fail(fmt::format("more than {} items", kItemLimit));
        SkipBlanks();
        items_.push_back(ReadItem());
        SkipBlanks();
        if (AtLineEnd()) return true;
        if (rest_.front() != ',') Fail(fmt::format("something follows item {}", items_.size()));
        rest_.remove_prefix(1);
    }
}

RecordReader::Item RecordReader::ReadItem() {
    if (!rest_.empty() && rest_.front() == '"') return ReadQuoted();
    return ReadBare();
}

std::string RecordReader::ReadQuoted() {
    const auto end = rest_.find('"', 1);
    if (end == std::string_view::npos)
        Fail(fmt::format("the quote of item {} never ends", items_.size() + 1));
    const std::string_view bytes = rest_.substr(1, end - 1);
    if (bytes.find('\0') != std::string_view::npos) Fail("holds a zero character, so it is no text");
    rest_.remove_prefix(end + 1);
    return FromWindows1252(bytes);
}

RecordReader::Item RecordReader::ReadBare() {
    const auto length = std::min(rest_.find_first_of(", \t\r\n"), rest_.size());
    const std::string_view word = rest_.substr(0, length);
    rest_.remove_prefix(length);
    if (word == kTrue) return true;
    if (word == kFalse) return false;
    double number = 0;
    const auto [end, error] =
        std::from_chars(word.data(), word.data() + word.size(), number, std::chars_format::general);
    const bool whole = error == std::errc() && end == word.data() + word.size();
    const bool begins = word.find_first_of("0123456789") <= 2;  // not a number's name, such as "inf"
    if (!whole || !begins) {
        Fail(
            fmt::format("item {} is neither a quoted text, a number, #TRUE# nor #FALSE#", items_.size() + 1));
    }
    return number;
}

template <typename T>
const T& RecordReader::Get(std::size_t item, std::string_view expected) const {
    const T* value = item < items_.size() ? std::get_if<T>(&items_[item]) : nullptr;
    if (!value) Fail(fmt::format("item {} is not {}", item + 1, expected));
    return *value;
}

const std::string& RecordReader::Text(std::size_t item) const {
    return Get<std::string>(item, "a quoted text");
}
double RecordReader::Number(std::size_t item) const {
    return Get<double>(item, "a number");
}
bool RecordReader::Boolean(std::size_t item) const {
    return Get<bool>(item, "#TRUE# or #FALSE#");
}

void RecordWriter::Write(std::initializer_list<Item> record) {
    std::string line;
    for (const Item& item : record) {
        if (!line.empty()) line += ',';
        line += std::visit(Encoder(), item);
    }
    bytes_ += line + "\r\n";
}

}  // namespace quillmark
