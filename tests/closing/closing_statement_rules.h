#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The closing statement computed a second time, in whole cents and with exact fractions.
namespace quillmark::test {

using Cents = std::int64_t;

constexpr Cents kNone = -1;  // an amount that was not entered

struct Tagged {
    Cents amount = kNone;
    std::string tag;
};

struct Deal {
    std::string town;
    std::optional<std::chrono::year_month_day> date;
    bool leapYears = true, twoPayoffs = false, condo = false, commercial = false, land = false;
    bool secondRealtor = false, taxExempt = false, municipalExempt = false, stateExempt = false;
    Cents price = kNone, binder = kNone, contract = kNone, fee = kNone, recording = kNone, courier = kNone;
    Cents water = kNone, oil = kNone, security = kNone, closingCost = kNone, repair = kNone, smoke = kNone;
    Tagged tax, sewer, common, rent, payoff1, payoff2, commission1, commission2;
    std::vector<Tagged> adjustments, disbursements;
};

struct Calendar {
    int taxYear = 0, month = 0, dayOfMonth = 0;
    int unpaid = 0, paid = 0;  // days in the tax period
    std::chrono::sys_days unpaidDate, paidDate;
};

using Figures = std::map<std::string_view, double>;

struct Expected {
    Figures figures;
    bool asks = false;
    Calendar calendar;
};

Expected ByTheRules(const Deal& deal);

/// Sample towns of one tax schedule.
std::vector<std::vector<std::string>> SampleTowns();

}  // namespace quillmark::test
