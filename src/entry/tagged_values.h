#pragma once

#include <array>
#include <string>
#include <string_view>

#include "selection/option_tags.h"

/// Amounts and loan numbers with a short answer behind them, such as "$1,000.00 - P". The tag stands at the
/// very end of the value; the two note cells of the row show it.
namespace quillmark {

/// Whether the first and the second note cell of a row are yellow: what the row knows of its tag.
using LitCells = std::array<bool, 2>;

/// Takes a value apart at its tag. Beside the family's own tags, " - " or " = " and any one character behind
/// an amount is one, as entries of other letters are kept in this form. Not so where the hyphen begins a
/// description, and a loan number may well end in another letter in parentheses.
TaggedValue ReadTag(std::string_view value, TagFamily family);

/// The cells that a tag as `ReadTag` gives it lights. A letter that the family does not know counts as its
/// second one.
LitCells CellsLitBy(std::string_view tag, TagFamily family);

/// The text with the tag for these cells. A sewer charge or a payoff has a tag for two dark cells as well,
/// which only an amount ("$...") takes.
std::string WithTag(std::string_view text, LitCells lit, TagFamily family);

/// The same field of the other realtor or the other payoff: 86 and 88, 99 and 117, 100 and 118; 0 for none.
int PairedField(int n);

/// A binder deposit is applied towards this commission.
bool TakesBinder(std::string_view commission);
/// The loan is a home equity line of credit.
bool IsEquityLine(std::string_view loanNumber);

}  // namespace quillmark
