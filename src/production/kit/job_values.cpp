#include "production/kit/job_values.h"

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

}  // namespace quillmark
