#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

/// Pure conversions of texts: what documents print for amounts, dates, names and numbers. A character
/// changed here is a character changed in a legal document.
namespace quillmark {

/// A text whose last character ought to be a digit and is none: how a date field refuses what is no date.
class NotANumber : public std::runtime_error {
 public:
    explicit NotANumber(std::string_view text);
};

// Amounts in words, ordinals

/// "123456.78" gives "ONE HUNDRED TWENTY THREE THOUSAND FOUR HUNDRED FIFTY SIX & 78/100". Digits are read by
/// position in the plain amount form, so amounts of nine digits and negative ones shift.
std::string AmountToWords(std::string_view amount);

/// "st", "nd", "rd" or "th" for a day of the month. Throws NotANumber if the last character is no digit.
std::string OrdinalSuffix(std::string_view day);

// Repeats

std::string RepeatReturn(std::uint16_t count);                         ///< "\r" each
std::string RepeatTab(std::uint16_t count, std::uint16_t blanks = 0);  ///< "\t" each, then the blanks
std::string RepeatUnderscore(std::uint16_t count);

// Blanks and letters

/// Without the blanks (no other white space) at the left, the right, both ends.
std::string_view LeftTrimmed(std::string_view text);
std::string_view RightTrimmed(std::string_view text);
std::string_view Trimmed(std::string_view text);

/// The text with A to Z lowered: the form in which names are looked up.
std::string Lowered(std::string_view text);

// Names, mail

/// Percent codes of the windows-1252 bytes for "&" and for all outside blank to "~".
std::string EncodeForMail(std::string_view text);

struct PersonName {
    std::string last;
    std::string given;
};
enum class SuffixList { Attorney, Party };  ///< "Esq.Jr.Sr.III" without regard to case; "Jr.Sr.III"
/// The word behind the last blank and what stands before it. One word that lies within the suffix list is
/// taken off first, for attorneys with the comma before it.
PersonName SplitPersonName(std::string_view fullName, SuffixList suffixes);

// Numbers

/// The number that begins the text, after blanks; 0 if there is none.
double LeadingNumber(std::string_view text);

/// The number of a text that is one as a whole: surrounding blanks, a minus or plus sign, a dollar sign
/// before or after it, and commas between digits are allowed. Parentheses and exponents are not.
std::optional<double> ReadNumber(std::string_view text);

/// "00000000.00" and "$##,###,##0.00": the text itself when it is no number, empty for the empty text.
/// A longer decimal is rounded to two places on its decimal digits, halves away from zero. The minus sign of
/// a negative amount stands first: "-00000100.00", "-$100.00".
std::string PlainAmount(std::string_view text);
std::string ShownAmount(std::string_view text);
/// The value of a shown or typed amount, by way of its plain form.
double AmountOf(std::string_view text);

/// A computed figure with so many decimals and at least one digit before the point ("0.00"), rounded on its
/// first 15 decimal digits, halves away from zero: 1.005 gives "1.01". For finite figures.
std::string DecimalText(double figure, int decimals);

/// Ten and nine characters that are digits; any other text unchanged.
std::string TelephoneForm(std::string_view text);    ///< "(###) ###-####"
std::string PersonTaxIdForm(std::string_view text);  ///< "000-00-0000"
std::string EntityTaxIdForm(std::string_view text);  ///< "00-0000000"

// Dates

/// Reads m/d/yyyy, m/d/yy, "mmmm d, yyyy" and their usual variants (dashes, abbreviated months, no comma,
/// ordinal days, the day first, yyyy-mm-dd, month and year alone for the first of the month). Letter case
/// does not matter. Years of two digits run from 1930 to 2029. Nothing for an impossible date.
std::optional<std::chrono::year_month_day> ReadDate(std::string_view text);
std::string LongDate(std::chrono::year_month_day date);  ///< "April 6, 2005"
std::string MonthName(unsigned month);                   ///< 1 to 12; empty for other numbers

enum class DateForm {
    Long,           ///< "April 6, 2005"
    LongTwoDigits,  ///< "April 06, 2005"
    Month,          ///< "April"
    Day,            ///< "6"
    Year,           ///< "2005"
};
std::string FormatDate(std::chrono::year_month_day date, DateForm form);
/// The date that the text reads as, in this form; the text itself when it is no date.
std::string RenderDate(std::string_view text, DateForm form);

struct PartialDate {
    std::string month;
    std::string day;
    std::string year;
};
/// Takes a date with blanks to fill by hand apart: "3/__/25" gives "March", "__", "2025". The previous month
/// and day stay where the text has no separator to end a new one. Throws NotANumber for a day that begins
/// with digits and is neither a number nor an ordinal, such as "5x".
PartialDate SplitPartialDate(std::string_view text, std::string_view previousMonth = {},
                             std::string_view previousDay = {});

// Typing

/// The one-line editor's text at the moment of a keystroke. Positions and lengths count bytes.
struct EditorText {
    std::string text;
    std::size_t caret = 0;      ///< where the selection begins
    std::size_t selection = 0;  ///< selected bytes behind the caret, which the character replaces

    bool operator==(const EditorText&) const = default;
};
struct ProperCaseKey {
    EditorText editor;      ///< as it stands before the character goes in
    std::string character;  ///< to be put in at the caret
};
/// Proper case as you type: raises the first letter of the text and of every word, and takes " And " and " Or
/// " down once the word after them begins. Nothing else is ever lowered. A field whose marker holds " email"
/// keeps a small first letter; with `properCase` off, and for control characters, nothing changes.
ProperCaseKey ProperCase(const EditorText& editor, std::string_view character, std::string_view marker,
                         bool properCase);

}  // namespace quillmark
