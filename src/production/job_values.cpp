#include "production/job_values.h"

#include <algorithm>

namespace quillmark {

namespace {

Field LineTwo(Field addr1) {
    return static_cast<Field>(addr1 + 1);
}

}  // namespace

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

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char& letter : lower) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    return lower;
}

std::string UpperCase(std::string_view text) {
    std::string upper(text);
    for (char& letter : upper) {
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    }
    return upper;
}

}  // namespace quillmark
