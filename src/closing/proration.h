#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

/// The days by which a closing statement divides taxes, charges and rent. The proration date is a day that
/// the buyer owns: an unpaid period counts the days before it, a paid one the days from it on.
namespace quillmark {

/// What all prorations of a statement share. Without a proration date everything is empty or 0.
struct ProrationFrame {
    std::optional<std::chrono::year_month_day> ProrationDate;
    std::optional<std::chrono::year_month_day> MonthEnd;
    std::string ProrationText;  ///< "8/05/2021"
    double DaysInMonth = 0;
    double DaysInTaxYear = 0;  ///< 365 or 366 by the fiscal year of the town, not by the calendar year
};

/// `leapYears` off makes every tax year one of 365 days.
ProrationFrame ProrationFrameOf(std::optional<std::chrono::year_month_day> date, std::string_view town,
                                bool leapYears);

/// A count of days and where it begins or ends. Without a proration date there is no date, and no days.
struct ProrationDays {
    std::optional<std::chrono::year_month_day> PeriodDate;
    double days = 0;
};

/// The days of the town's tax period up to the proration date when `tag` is 'U' (unpaid), and otherwise those
/// from it to the period's end. In a town that bills in arrears both count from an earlier date.
ProrationDays TaxPeriodDays(const ProrationFrame& frame, std::string_view town, char tag);

/// The days of the month before the proration date, and the first of the month.
ProrationDays DaysSinceFirstOfMonth(const ProrationFrame& frame);
/// The days from the proration date through the end of the month, and that end.
ProrationDays DaysToMonthEnd(const ProrationFrame& frame);

}  // namespace quillmark
