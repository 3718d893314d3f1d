#include <algorithm>
#include <charconv>
#include <cmath>

#include <fmt/format.h>

#include "core/text_conversions.h"

namespace quillmark {

namespace {

constexpr std::size_t kPlainDigits = 8;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool AllDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), IsDigit);
}

/// A number as its decimal digits, so that rounding meets no binary fraction.
struct Decimal {
    bool negative = false;
    std::string whole;  ///< at least one digit, without leading zeros
    std::string fraction;
};

bool TakeSign(std::string_view& text, bool& negative) {
    if (!text.starts_with('-') && !text.starts_with('+')) return false;
    negative = text.front() == '-';
    text = LeftTrimmed(text.substr(1));
    return true;
}

/// The digits before the point, without their commas; nothing if a comma does not stand between digits.
std::optional<std::string> WithoutCommas(std::string_view text) {
    std::string digits;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (IsDigit(text[i]))
            digits += text[i];
        else if (text[i] != ',' || i == 0 || i + 1 == text.size() || text[i - 1] == ',')
            return std::nullopt;
    }
    return digits;
}

std::optional<Decimal> ReadDecimal(std::string_view text) {
    Decimal number;
    text = Trimmed(text);
    const bool sign = TakeSign(text, number.negative);
    if (text.starts_with('$')) {
        text = LeftTrimmed(text.substr(1));
        if (!sign) TakeSign(text, number.negative);
    }
    const std::size_t point = text.find('.');
    const auto whole = WithoutCommas(text.substr(0, point));
    if (point != std::string_view::npos) number.fraction = text.substr(point + 1);
    if (!whole || !AllDigits(number.fraction) || whole->size() + number.fraction.size() == 0)
        return std::nullopt;
    const std::size_t first = whole->find_first_not_of('0');
    number.whole = first == std::string::npos ? "0" : whole->substr(first);
    return number;
}

/// Leaves exactly so many decimals, a dropped 5 counting upwards. A zero that remains has no sign.
void Round(Decimal& number, std::size_t decimals) {
    const bool up = number.fraction.size() > decimals && number.fraction[decimals] >= '5';
    number.fraction.resize(decimals, '0');
    std::string digits = number.whole + number.fraction;
    if (up) {
        std::size_t i = digits.size();
        while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
        if (i > 0)
            ++digits[i - 1];
        else
            digits.insert(digits.begin(), '1');
    }
    const std::size_t point = digits.size() - decimals;
    number.whole = digits.substr(0, point);
    number.fraction = digits.substr(point);
    if (digits.find_first_not_of('0') == std::string::npos) number.negative = false;
}

std::string Grouped(std::string_view digits) {
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) grouped += ',';
        grouped += digits[i];
    }
    return grouped;
}

double ValueOf(std::string_view digits) {
    double value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    return value;
}

Decimal DecimalOf(double figure) {
    constexpr std::size_t kDigits = 15;
    const std::string scientific = fmt::format("{:.{}e}", std::fabs(figure), kDigits - 1);
    std::string digits = scientific.substr(0, 1) + scientific.substr(2, kDigits - 1);
    int exponent = std::stoi(scientific.substr(scientific.find('e') + 1));
    Decimal number;
    number.negative = figure < 0;
    if (exponent < 0) {
        digits.insert(0, static_cast<std::size_t>(-exponent), '0');
        exponent = 0;
    }
    const auto wholeDigits = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < wholeDigits) digits.resize(wholeDigits, '0');
    number.whole = digits.substr(0, wholeDigits);
    number.fraction = digits.substr(wholeDigits);
    return number;
}

}  // namespace

double LeadingNumber(std::string_view text) {
    text = LeftTrimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789."));
    const double value = ValueOf(digits);
    return negative ? -value : value;
}

std::optional<double> ReadNumber(std::string_view text) {
    const auto number = ReadDecimal(text);
    if (!number) return std::nullopt;
    const double value = ValueOf(number->whole + '.' + number->fraction);
    return number->negative ? -value : value;
}

std::string PlainAmount(std::string_view text) {
    auto number = ReadDecimal(text);
    if (!number) return std::string(text);
    Round(*number, 2);
    return fmt::format("{}{:0>{}}.{}", number->negative ? "-" : "", number->whole, kPlainDigits,
                       number->fraction);
}

std::string ShownAmount(std::string_view text) {
    auto number = ReadDecimal(text);
    if (!number) return std::string(text);
    Round(*number, 2);
    return fmt::format("{}{}.{}", number->negative ? "-$" : "$", Grouped(number->whole), number->fraction);
}

double AmountOf(std::string_view text) {
    return LeadingNumber(PlainAmount(text));
}

std::string DecimalText(double figure, int decimals) {
    Decimal number = DecimalOf(figure);
    Round(number, static_cast<std::size_t>(decimals));
    return fmt::format("{}{}{}{}", number.negative ? "-" : "", number.whole, decimals > 0 ? "." : "",
                       number.fraction);
}

std::string TelephoneForm(std::string_view text) {
    if (text.size() != 10 || !AllDigits(text)) return std::string(text);
    return fmt::format("({}) {}-{}", text.substr(0, 3), text.substr(3, 3), text.substr(6));
}

std::string PersonTaxIdForm(std::string_view text) {
    if (text.size() != 9 || !AllDigits(text)) return std::string(text);
    return fmt::format("{}-{}-{}", text.substr(0, 3), text.substr(3, 2), text.substr(5));
}

std::string EntityTaxIdForm(std::string_view text) {
    if (text.size() != 9 || !AllDigits(text)) return std::string(text);
    return fmt::format("{}-{}", text.substr(0, 2), text.substr(2));
}

}  // namespace quillmark
