#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "core/job.h"
#include "core/text_conversions.h"
#include "platform/clock.h"

/// A side calculator for adjustments that the closing statement's own schedules do not cover: how much of an
/// assessment for a period is unpaid up to a date, and how much is paid beyond it.
namespace quillmark {

/// The calculator's window as plain values under its controls' names. Dates are valid calendar dates.
struct ProrationCalculatorState {
    EditorText txtGross;                    ///< "Gross Assessment (dollar amount & period)"
    std::chrono::year_month_day DTPicker1;  ///< first day of the period
    std::chrono::year_month_day DTPicker2;  ///< last day of the period, not before the first
    std::chrono::year_month_day DTPicker3;  ///< proration date, within the period; it counts as paid
    std::string lblPerDiem;                 ///< two lines: days of the period, amount per day
    std::string Text1;                      ///< "Unpaid": the days before the proration date
    std::string Text2;                      ///< "Paid": the days from the proration date on
    int UnpaidDays = 0;
    int PaidDays = 0;
    std::string cmdBuyerTooltip;  ///< empty while there is nothing to hand over
    std::string cmdSellerTooltip;
    int PeriodDays = 0;
    /// Dollars per day. Single precision by design: the amounts are worked out from it, and can differ from
    /// the closing statement's in the last cent.
    float PerDiem = 0;
};

enum class CreditTo { Buyer, Seller };

class ProrationCalculator {
 public:
    /// Opens as after `Reset`. `job` and `clock` must outlive it.
    ProrationCalculator(const Job& job, const Clock& clock);

    const ProrationCalculatorState& State() const { return state_; }

    /// The fiscal year (July 1 to June 30) that holds today; the job's proration date (field 81) if it lies
    /// in it, else today; no gross.
    void Reset();

    /// The text of `txtGross` after a key or a paste. A text without a point is grouped by commas, the caret
    /// at its end; other texts stay as typed. What is no amount counts by its leading number.
    void SetGross(EditorText text);

    /// A first day behind the last one takes the last one along, and the other way round; the proration date
    /// stays within the period. An impossible date changes nothing.
    void SetFrom(std::chrono::year_month_day date);
    void SetTo(std::chrono::year_month_day date);
    void SetProrationDate(std::chrono::year_month_day date);

    /// The amount in its shown form: the unpaid one for a credit to the buyer, the paid one for the seller.
    std::string AmountFor(CreditTo side) const;

 private:
    void DatesChanged();
    void GrossChanged();

    const Job& job_;
    const Clock& clock_;
    ProrationCalculatorState state_;
};

/// What the calculator enters in field n: the amount, in an adjustment with the tag that credits the side. A
/// sewer adjustment becomes a net one. To be committed by way of the note column, so that nothing is asked.
std::string HandOverValue(const ProrationCalculator& calculator, CreditTo side, int n);

}  // namespace quillmark
