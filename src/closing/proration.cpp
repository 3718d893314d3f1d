#include "closing/proration.h"

#include <fmt/format.h>

#include "core/places.h"

namespace quillmark {

namespace {

using std::chrono::day;
using std::chrono::last;
using std::chrono::month;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month;
using std::chrono::year_month_day;
using std::chrono::years;

/// A town's periods, all counted from July 1.
struct Periods {
    unsigned length;  ///< months
    unsigned unpaid;  ///< months from the date that an unpaid tax counts from to the period's first day
    unsigned paid;    ///< the same for a paid tax
};

Periods PeriodsOf(TaxSchedule schedule) {
    switch (schedule) {
        case TaxSchedule::Annual:
            return {12, 0, 0};
        case TaxSchedule::QuarterlyInArrears:
            return {3, 9, 6};
        case TaxSchedule::SemiAnnualInArrears:
            return {6, 9, 3};
        case TaxSchedule::Quarterly:
            return {3, 0, 0};
        case TaxSchedule::SemiAnnual:
            break;
    }
    return {6, 0, 0};
}

double DaysFrom(year_month_day first, year_month_day end) {
    return static_cast<double>((sys_days(end) - sys_days(first)).count());
}

year_month FirstMonthOfPeriod(year_month_day date, const Periods& periods) {
    const unsigned sinceJuly = (static_cast<unsigned>(date.month()) + 5) % 12;
    return date.year() / date.month() - months(sinceJuly % periods.length);
}

double TaxYearLength(year_month_day date, FiscalYear fiscalYear) {
    const month start = fiscalYear == FiscalYear::October ? std::chrono::October : std::chrono::July;
    const auto first = (date.month() < start ? date.year() - years(1) : date.year()) / start / day(1);
    return DaysFrom(first, first + years(1));
}

}  // namespace

ProrationFrame ProrationFrameOf(std::optional<year_month_day> date, std::string_view town, bool leapYears) {
    ProrationFrame frame;
    if (!date) return frame;
    frame.ProrationDate = date;
    frame.MonthEnd = year_month_day(date->year() / date->month() / last);
    frame.ProrationText = fmt::format("{}/{:02}/{:04}", static_cast<unsigned>(date->month()),
                                      static_cast<unsigned>(date->day()), static_cast<int>(date->year()));
    frame.DaysInMonth = static_cast<unsigned>(frame.MonthEnd->day());
    frame.DaysInTaxYear = leapYears ? TaxYearLength(*date, FiscalYearOf(town)) : 365;
    return frame;
}

ProrationDays TaxPeriodDays(const ProrationFrame& frame, std::string_view town, char tag) {
    if (!frame.ProrationDate) return {};
    const year_month_day date = *frame.ProrationDate;
    const TaxSchedule schedule = TaxScheduleOf(town);
    const Periods periods = PeriodsOf(schedule);
    const year_month first = FirstMonthOfPeriod(date, periods);
    const bool unpaid = tag == 'U';
    const unsigned arrears = unpaid ? periods.unpaid : periods.paid;
    if (unpaid || arrears > 0) {
        const year_month_day start = (first - months(arrears)) / day(1);
        return {start, DaysFrom(start, date)};
    }
    const year_month_day end = (first + months(periods.length - 1)) / last;
    return {end, DaysFrom(date, end) + 1};
}

ProrationDays DaysSinceFirstOfMonth(const ProrationFrame& frame) {
    if (!frame.ProrationDate) return {};
    const year_month_day first = frame.ProrationDate->year() / frame.ProrationDate->month() / day(1);
    return {first, DaysFrom(first, *frame.ProrationDate)};
}

ProrationDays DaysToMonthEnd(const ProrationFrame& frame) {
    if (!frame.ProrationDate) return {};
    return {frame.MonthEnd, DaysFrom(*frame.ProrationDate, *frame.MonthEnd) + 1};
}

}  // namespace quillmark
