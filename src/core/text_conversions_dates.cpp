#include <array>
#include <vector>

#include <fmt/format.h>

#include "core/text_conversions.h"

namespace quillmark {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr std::array<std::string_view, 12> kMonths = {"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz";

/// A number or a month's name in a date, and the mark that sets it off from the part before it.
struct DatePart {
    bool isName = false;
    bool isOrdinal = false;
    unsigned value = 0;
    std::size_t digits = 0;
    char mark = ' ';
};

unsigned MonthNamed(std::string_view lowered) {
    if (lowered == "sept") return 9;
    for (unsigned i = 0; i < kMonths.size(); ++i) {
        const std::string name = Lowered(kMonths[i]);
        if (lowered == name || lowered == std::string_view(name).substr(0, 3)) return i + 1;
    }
    return 0;
}

std::string_view Take(std::string_view& text, std::string_view characters) {
    const std::string_view taken = text.substr(0, text.find_first_not_of(characters));
    text.remove_prefix(taken.size());
    return taken;
}

/// The mark between two parts: one of , / - . with blanks around it, or blanks alone.
char TakeMark(std::string_view& text) {
    text = LeftTrimmed(text);
    if (text.empty() || std::string_view(",/-.").find(text.front()) == std::string_view::npos) return ' ';
    const char mark = text.front();
    text = LeftTrimmed(text.substr(1));
    return mark;
}

std::optional<DatePart> TakePart(std::string_view& text) {
    DatePart part;
    const std::string_view digits = Take(text, kDigits);
    const std::string_view word = Take(text, kLetters);
    if (digits.empty()) {
        part.isName = true;
        part.value = MonthNamed(word);
        return part.value == 0 ? std::nullopt : std::optional(part);
    }
    if (digits.size() > 4) return std::nullopt;
    part.digits = digits.size();
    for (const char c : digits) part.value = part.value * 10 + static_cast<unsigned>(c - '0');
    if (word.empty()) return part;
    part.isOrdinal = word == "st" || word == "nd" || word == "rd" || word == "th";
    return part.isOrdinal && part.digits <= 2 ? std::optional(part) : std::nullopt;
}

std::vector<DatePart> DateParts(std::string_view lowered) {
    std::vector<DatePart> parts;
    char mark = ' ';
    while (parts.size() <= 3) {
        auto part = TakePart(lowered);
        if (!part) return {};
        part->mark = mark;
        parts.push_back(*part);
        if (lowered.empty()) return parts;
        mark = TakeMark(lowered);
    }
    return {};
}

std::optional<year_month_day> DateOf(const DatePart& y, const DatePart& m, unsigned d) {
    if (y.isName || y.isOrdinal || m.isOrdinal || y.digits == 3 || (y.digits == 4 && y.value < 1000))
        return std::nullopt;
    const unsigned century = y.digits == 4 ? 0 : y.value < 30 ? 2000 : 1900;
    const year_month_day date{year(static_cast<int>(y.value + century)), month(m.value), day(d)};
    return date.ok() ? std::optional(date) : std::nullopt;
}

bool Short(const DatePart& part) {
    return part.digits <= 2;
}

std::optional<year_month_day> MonthAndYear(const DatePart& m, const DatePart& y) {
    const bool numeric = !m.isName && (y.mark == '/' || y.mark == '-');
    if (y.digits != 4 || !Short(m) || !(m.isName || numeric)) return std::nullopt;
    return DateOf(y, m, 1);
}

std::optional<year_month_day> FullDate(const DatePart& a, const DatePart& b, const DatePart& c) {
    if (a.isName && !b.isName) return Short(b) ? DateOf(c, a, b.value) : std::nullopt;
    if (b.isName && !a.isName) return Short(a) ? DateOf(c, b, a.value) : std::nullopt;
    if (a.isName || c.isName || b.mark != c.mark || b.mark == ' ' || b.mark == ',' || !Short(b))
        return std::nullopt;
    if (b.isOrdinal || c.isOrdinal) return std::nullopt;
    if (a.digits == 4) return Short(c) ? DateOf(a, b, c.value) : std::nullopt;
    return Short(a) ? DateOf(c, a, b.value) : std::nullopt;
}

/// What stands before the first character below "0" in the code table, a separator; `rest` goes on behind it.
std::optional<std::string> TakeUpToSeparator(std::string_view& rest) {
    for (std::size_t i = 0; i < rest.size(); ++i) {
        if (static_cast<unsigned char>(rest[i]) >= '0') continue;
        std::string part(rest.substr(0, i));
        rest = LeftTrimmed(rest.substr(i + 1));
        return part;
    }
    return std::nullopt;
}

std::string_view AfterLastSeparator(std::string_view text) {
    std::size_t begin = text.empty() ? 0 : text.size() - 1;
    while (begin > 0 && static_cast<unsigned char>(text[begin]) >= '0') --begin;
    return LeftTrimmed(text.substr(begin));
}

std::string WithOrdinal(const std::string& typedDay) {
    if (LeadingNumber(typedDay) <= 0) return typedDay;
    const std::string digits = typedDay.substr(0, typedDay.find_first_not_of(kDigits));
    if (typedDay.size() > digits.size() && typedDay == digits + OrdinalSuffix(digits)) return typedDay;
    return typedDay + OrdinalSuffix(typedDay);
}

}  // namespace

std::optional<year_month_day> ReadDate(std::string_view text) {
    const std::vector<DatePart> parts = DateParts(Lowered(Trimmed(text)));
    if (parts.size() == 2) return MonthAndYear(parts[0], parts[1]);
    if (parts.size() == 3) return FullDate(parts[0], parts[1], parts[2]);
    return std::nullopt;
}

std::string MonthName(unsigned number) {
    return number >= 1 && number <= 12 ? std::string(kMonths[number - 1]) : std::string();
}

std::string LongDate(year_month_day date) {
    return FormatDate(date, DateForm::Long);
}

std::string FormatDate(year_month_day date, DateForm form) {
    const std::string name = MonthName(static_cast<unsigned>(date.month()));
    const auto dayNumber = static_cast<unsigned>(date.day());
    const auto yearNumber = static_cast<int>(date.year());
    switch (form) {
        case DateForm::Long:
            return fmt::format("{} {}, {:04}", name, dayNumber, yearNumber);
        case DateForm::LongTwoDigits:
            return fmt::format("{} {:02}, {:04}", name, dayNumber, yearNumber);
        case DateForm::Month:
            return name;
        case DateForm::Day:
            return fmt::format("{}", dayNumber);
        case DateForm::Year:
            return fmt::format("{:04}", yearNumber);
    }
    return {};
}

std::string RenderDate(std::string_view text, DateForm form) {
    const auto date = ReadDate(text);
    return date ? FormatDate(*date, form) : std::string(text);
}

PartialDate SplitPartialDate(std::string_view text, std::string_view previousMonth,
                             std::string_view previousDay) {
    std::string_view rest = Trimmed(text);
    PartialDate date{std::string(previousMonth), std::string(previousDay), {}};
    if (auto typed = TakeUpToSeparator(rest)) date.month = std::move(*typed);
    if (auto typed = TakeUpToSeparator(rest)) date.day = WithOrdinal(*typed);
    date.year = AfterLastSeparator(rest);
    const double number = LeadingNumber(date.month);
    if (number >= 1 && number <= 12) date.month = MonthName(static_cast<unsigned>(number));
    if (date.year.size() == 2) date.year.insert(0, "20");
    return date;
}

}  // namespace quillmark
