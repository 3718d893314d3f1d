#include "core/text_conversions.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include "platform/code_page.h"

namespace quillmark {

namespace {

constexpr std::array<std::string_view, 10> kOnes = {"",      "ONE ", "TWO ",   "THREE ", "FOUR ",
                                                    "FIVE ", "SIX ", "SEVEN ", "EIGHT ", "NINE "};
constexpr std::array<std::string_view, 10> kTeens = {"TEN ",      "ELEVEN ",  "TWELVE ",  "THIRTEEN ",
                                                     "FOURTEEN ", "FIFTEEN ", "SIXTEEN ", "SEVENTEEN ",
                                                     "EIGHTEEN ", "NINETEEN "};
constexpr std::array<std::string_view, 10> kTens = {"",       "",       "TWENTY ",  "THIRTY ", "FORTY ",
                                                    "FIFTY ", "SIXTY ", "SEVENTY ", "EIGHTY ", "NINETY "};

/// The number in `count` characters from a position on, 0 where there are none.
long NumberAt(std::string_view text, std::size_t position, std::size_t count) {
    if (position >= text.size()) return 0;
    return std::lround(LeadingNumber(text.substr(position, count)));
}

std::string WordsBelowHundred(long number) {
    const auto tens = static_cast<std::size_t>(number / 10);
    const auto ones = static_cast<std::size_t>(number % 10);
    if (tens == 1) return std::string(kTeens[ones]);
    return std::string(kTens[tens]).append(kOnes[ones]);
}

/// The last `count` characters of a UTF-8 text.
std::string_view LastCharacters(std::string_view text, int count) {
    std::size_t begin = text.size();
    while (begin > 0 && count > 0) {
        --begin;
        if ((static_cast<unsigned char>(text[begin]) & 0xC0) != 0x80) --count;
    }
    return text.substr(begin);
}

PersonName SplitAtLastBlank(std::string_view name) {
    const std::size_t blank = name.rfind(' ');
    if (blank == std::string_view::npos) return {std::string(name), {}};
    return {std::string(name.substr(blank + 1)), std::string(RightTrimmed(name.substr(0, blank)))};
}

bool IsSuffix(std::string_view word, SuffixList suffixes) {
    if (suffixes == SuffixList::Party)
        return std::string_view("Jr.Sr.III").find(word) != std::string_view::npos;
    return std::string_view("esq.jr.sr.iii").find(Lowered(word)) != std::string_view::npos;
}

/// The windows-1252 bytes of a text, "?" for a character that has none.
std::string MailBytes(std::string_view text) {
    std::string bytes;
    while (const auto missing = FirstUnencodable(text)) {
        bytes += ToWindows1252(text.substr(0, missing->offset)) + '?';
        text.remove_prefix(missing->offset + std::max<std::size_t>(missing->character.size(), 1));
    }
    return bytes + ToWindows1252(text);
}

}  // namespace

NotANumber::NotANumber(std::string_view text)
    : std::runtime_error(fmt::format("\"{}\" does not end in a digit", text)) {}

std::string AmountToWords(std::string_view amount) {
    const std::string plain = PlainAmount(amount);
    std::string words;
    const long millions = NumberAt(plain, 0, 2);
    if (millions > 0) words += WordsBelowHundred(millions) + "MILLION ";
    const long hundredThousands = NumberAt(plain, 2, 1);
    if (hundredThousands > 0) words += WordsBelowHundred(hundredThousands) + "HUNDRED ";
    const long thousands = NumberAt(plain, 3, 2);
    if (thousands > 0) words += WordsBelowHundred(thousands);
    if (thousands > 0 || hundredThousands > 0) words += "THOUSAND ";
    const long hundreds = NumberAt(plain, 5, 1);
    if (hundreds > 0) words += WordsBelowHundred(hundreds) + "HUNDRED ";
    const long rest = NumberAt(plain, 6, 2);
    if (rest > 0) words += WordsBelowHundred(rest);
    return words.append("& ").append(LastCharacters(plain, 2)).append("/100");
}

std::string OrdinalSuffix(std::string_view day) {
    if (day.empty() || day.back() < '0' || day.back() > '9') throw NotANumber(day);
    const bool beginsWithOne = day.size() > 1 && day.front() == '1';
    if (beginsWithOne) return "th";
    switch (day.back()) {
        case '1':
            return "st";
        case '2':
            return "nd";
        case '3':
            return "rd";
        default:
            return "th";
    }
}

std::string RepeatReturn(std::uint16_t count) {
    return std::string(count, '\r');
}

std::string RepeatTab(std::uint16_t count, std::uint16_t blanks) {
    return std::string(count, '\t') + std::string(blanks, ' ');
}

std::string RepeatUnderscore(std::uint16_t count) {
    return std::string(count, '_');
}

std::string_view LeftTrimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos ? std::string_view{} : text.substr(begin);
}

std::string_view RightTrimmed(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view Trimmed(std::string_view text) {
    return RightTrimmed(LeftTrimmed(text));
}

std::string Lowered(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

std::string EncodeForMail(std::string_view text) {
    std::string encoded;
    for (const char c : MailBytes(text)) {
        if (c >= ' ' && c <= '~' && c != '&')
            encoded += c;
        else
            encoded += fmt::format("%{:02X}", static_cast<unsigned char>(c));
    }
    return encoded;
}

PersonName SplitPersonName(std::string_view fullName, SuffixList suffixes) {
    std::string_view name = Trimmed(fullName);
    PersonName parts = SplitAtLastBlank(name);
    if (!IsSuffix(parts.last, suffixes)) return parts;
    name = RightTrimmed(name.substr(0, name.size() - parts.last.size()));
    if (suffixes == SuffixList::Attorney && name.ends_with(',')) name.remove_suffix(1);
    return SplitAtLastBlank(name);
}

}  // namespace quillmark
