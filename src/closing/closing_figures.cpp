#include "closing/closing_figures.h"

#include <cmath>
#include <stdexcept>

#include "core/text_conversions.h"

namespace quillmark {

namespace {

/// A mark that comes earlier in the list wins, wherever it stands in the text.
std::size_t FindMark(std::string_view text, std::string_view marks) {
    for (const char mark : marks)
        if (const std::size_t at = text.find(mark); at != std::string_view::npos) return at;
    return std::string_view::npos;
}

}  // namespace

double RoundCents(double figure) {
    if (!std::isfinite(figure))
        throw std::overflow_error("a figure of the closing statement is too large to be computed");
    return LeadingNumber(DecimalText(figure, 2));
}

TaggedAmount ReadTaggedAmount(std::string_view text, std::string_view marks) {
    TaggedAmount value;
    const std::string_view trimmed = RightTrimmed(text);
    if (!trimmed.empty()) value.tag = trimmed.back();
    const std::size_t mark = FindMark(text, marks);
    if (mark == std::string_view::npos) return value;
    value.delimiter = text[mark];
    value.amount = AmountOf(RightTrimmed(text.substr(0, mark)));
    return value;
}

double AmountBefore(std::string_view text, std::string_view marks) {
    return AmountOf(RightTrimmed(text.substr(0, FindMark(text, marks))));
}

}  // namespace quillmark
