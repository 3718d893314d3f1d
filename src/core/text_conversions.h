#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <chrono>

/// Pure conversions of texts: what documents print for amounts, dates, names and numbers. A character
/// changed here is a character changed in a legal document.
namespace quillmark {

/// "123456.78" gives "ONE HUNDRED TWENTY THREE THOUSAND FOUR HUNDRED FIFTY SIX & 78/100". Digits are read by
/// position in the plain amount form, so amounts of nine digits and negative ones shift.
std::string AmountToWords(std::string_view amount);

/// "st", "nd", "rd" or "th" for a day of the month. Throws NotANumber if the last character is no digit.
std::string OrdinalSuffix(std::string_view day);

std::string RepeatReturn(std::uint16_t count);                            ///< "\r" each
std::string RepeatTab(std::uint16_t count, std::uint16_t blanks = 0);     ///< "\t" each, then the blanks
std::string RepeatUnderscore(std::uint16_t count);

/// Percent codes of the windows-1252 bytes for "&" and for all outside blank to "~".
std::string EncodeForMail(std::string_view text);

struct PersonName {
    std::string last;
    std::string given;
};
enum class SuffixList { Attorney, Party };  ///< "Esq.Jr.Sr.III" without regard to case; "Jr.Sr.III"
PersonName SplitPersonName(std::string_view fullName, SuffixList suffixes);

struct PartialDate {
    std::string month;
    std::string day;
    std::string year;
};
/// Takes a date with blanks to fill by hand apart. `previousMonth` stays where the text has no separator.
PartialDate SplitPartialDate(std::string_view text, std::string_view previousMonth = {});

/// The number that begins the text, after blanks; 0 if there is none.
double LeadingNumber(std::string_view text);

/// The number of a text that is one as a whole: dollar sign, grouping commas and surrounding blanks allowed.
std::optional<double> ReadNumber(std::string_view text);

/// "00000000.00" and "$##,###,##0.00": the text itself when it is no number, empty for the empty text.
/// A longer decimal is rounded to two places on its decimal digits, halves away from zero.
std::string PlainAmount(std::string_view text);
std::string ShownAmount(std::string_view text);
/// The value of a shown or typed amount, by way of its plain form.
double AmountOf(std::string_view text);

/// Ten and nine characters that are digits; any other text unchanged.
std::string TelephoneForm(std::string_view text);     ///< "(###) ###-####"
std::string PersonTaxIdForm(std::string_view text);   ///< "000-00-0000"
std::string EntityTaxIdForm(std::string_view text);   ///< "00-0000000"

/// Reads m/d/yyyy, m/d/yy, "mmmm d, yyyy" and their usual variants (dashes, abbreviated months, no comma,
/// month and year alone).
std::optional<std::chrono::year_month_day> ReadDate(std::string_view text);
std::string LongDate(std::chrono::year_month_day date);  ///< "April 6, 2005"
std::string MonthName(unsigned month);                   ///< 1 to 12

}  // namespace quillmark
