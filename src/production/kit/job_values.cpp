#include "production/kit/job_values.h"

#include <algorithm>
#include <array>

namespace quillmark {

namespace {

Field LineTwo(Field addr1) {
    return static_cast<Field>(addr1 + 1);
}

}  // namespace

const Party* FindParty(Field name) {
    static constexpr std::array kParties = {kSeller1,  kSeller2,   kBuyer1,     kBuyer2,
                                            kDecedent, kPrincipal, kAttyInFact, kAttyInFact2};
    const auto found = std::find_if(kParties.begin(), kParties.end(),
                                    [&](const Party& party) { return party.name == name; });
    return found == kParties.end() ? nullptr : &*found;
}

std::string JobValues::TwoLines(Field addr1) const {
    const Field addr2 = LineTwo(addr1);
    return IsFilled(addr2) ? (*this)[addr1] + "\r" + (*this)[addr2] : (*this)[addr1];
}

std::string JobValues::Address(const Party& party) const {
    return OneLine(party.addr1) + ", " + (*this)[party.cityStateZip];
}

std::string JobValues::Property() const {
    return OneLine(field::PropertyAddress1) + ", " + (*this)[field::PropertyCityStateZip];
}

std::string JobValues::DayMonthYear(Field date) const {
    return OrdinalDay(date) + " day of " + Month(date) + ", " + Year(date);
}

}  // namespace quillmark
