#include "entry/tagged_values.h"

#include "core/fields.h"

namespace quillmark {

namespace {

constexpr std::string_view kHyphen = " - ";
constexpr std::string_view kEqualSign = " = ";

/// Bytes of the last character; 0 for the empty text.
std::size_t LastCharacterSize(std::string_view value) {
    std::size_t size = value.empty() ? 0 : 1;
    while (size < value.size() && (value[value.size() - size] & 0xC0) == 0x80) ++size;
    return size;
}

bool HasSeparator(std::string_view value, TagFamily family) {
    if (value.ends_with(kEqualSign)) return true;
    return value.ends_with(kHyphen) && family != TagFamily::Credit;
}

}  // namespace

TaggedValue ReadTag(std::string_view value, TagFamily family) {
    if (family == TagFamily::None || family == TagFamily::LoanNumber) return SplitTag(value, family);
    const std::size_t letter = LastCharacterSize(value);
    const std::string_view before = value.substr(0, value.size() - letter);
    if (letter == 0 || !HasSeparator(before, family)) return {value, {}};
    const std::size_t text = before.size() - kHyphen.size();
    return {value.substr(0, text), value.substr(text)};
}

LitCells CellsLitBy(std::string_view tag, TagFamily family) {
    const bool flat = tag.starts_with(kEqualSign);
    switch (family) {
        case TagFamily::None:
            return {false, false};
        case TagFamily::Sewer:
            return {!flat, tag.ends_with('U')};
        case TagFamily::Payoff:
            return {tag.ends_with('R'), flat};
        case TagFamily::Commission:
            return {tag.ends_with('B'), !tag.ends_with('B')};
        case TagFamily::LoanNumber:
            return {tag.ends_with("M)"), !tag.ends_with("M)")};
        case TagFamily::Paid:
        case TagFamily::Credit:
            break;
    }
    return {tag.ends_with('P'), !tag.ends_with('P')};
}

std::string WithTag(std::string_view text, LitCells lit, TagFamily family) {
    const bool dark = lit == LitCells{false, false};
    std::string value(text);
    if (!dark || text.starts_with('$')) value += TagLighting(lit, family);
    return value;
}

int PairedField(int n) {
    constexpr std::array<std::array<int, 2>, 3> kPairs = {
        {{field::Realtor1Commission, field::Realtor2Commission},
         {field::Payoff1LoanNumber, field::Payoff2LoanNumber},
         {field::Payoff1Amount, field::Payoff2Amount}}};
    for (const auto& [first, second] : kPairs) {
        if (n == first) return second;
        if (n == second) return first;
    }
    return 0;
}

bool TakesBinder(std::string_view commission) {
    return commission.ends_with(" - B");
}

bool IsEquityLine(std::string_view loanNumber) {
    return loanNumber.ends_with(" (E)");
}

}  // namespace quillmark
