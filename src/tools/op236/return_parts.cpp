#include "tools/op236/return_parts.h"

#include <algorithm>

#include "core/text_conversions.h"

namespace quillmark::op236 {

CityLine SplitCityLine(std::string_view line) {
    constexpr std::size_t kState = 2, kZip = 5;
    const std::string_view text = Trimmed(line);
    const std::size_t comma = text.find(',');
    if (comma == text.npos) return {};
    const std::string_view rest = LeftTrimmed(text.substr(std::min(comma + 2, text.size())));
    CityLine parts{std::string(text.substr(0, comma)), std::string(rest.substr(0, kState)), {}};
    if (rest.size() >= kState + kZip) parts.zip = rest.substr(rest.size() - kZip);
    return parts;
}

std::string LastNameFirst(const FilledValues& value, int name) {
    const std::string& given = value[2000 + name];
    return given.empty() ? value[name] : value[3000 + name] + ", " + given;
}

std::string LastNameFirst(std::string_view name) {
    const std::size_t comma = std::min(name.find(','), name.size());
    const PersonName parts = SplitPersonName(name.substr(0, comma), SuffixList::Party);
    if (parts.given.empty()) return std::string(name);
    return parts.last + ", " + parts.given + std::string(name.substr(comma));
}

bool IsEntityNumber(std::string_view taxId) {
    return taxId.find('-') == 2;
}

bool IsFiduciaryInstrument(int instrument) {
    return instrument == kAdministratorsDeed || instrument == kConservatorsDeed ||
           instrument == kExecutorsDeed || instrument == kTestamentaryTrustee || instrument == kTrusteesDeed;
}

bool IsEntitySeller(const FilledValues& value, const ReturnEntries& entries) {
    return entries.instrument == kTrusteesDeed || value.Has(Entity);
}

std::string_view GiftTaxLetter(const ReturnEntries& entries) {
    if (entries.federalGiftTaxReturn) return entries.stateGiftTaxReturn ? "B" : "F";
    return entries.stateGiftTaxReturn ? "S" : "N";
}

}  // namespace quillmark::op236
