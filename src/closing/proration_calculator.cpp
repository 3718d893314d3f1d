#include "closing/proration_calculator.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include <fmt/format.h>

#include "core/fields.h"
#include "entry/tagged_values.h"

namespace quillmark {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr month kFiscalYearStart = std::chrono::July;

int DaysBetween(year_month_day first, year_month_day last) {
    return static_cast<int>((sys_days(last) - sys_days(first)).count());
}

/// The figure with the pattern "#,##0.00".
std::string Grouped(double figure) {
    std::string amount = ShownAmount(DecimalText(figure, 2));
    std::erase(amount, '$');
    return amount;
}

/// The pattern "#,###" for a text without a point: nothing at all for zero.
std::string GroupedWhole(const std::string& text) {
    if (!ReadNumber(text)) return text;
    std::string amount = ShownAmount(text);
    std::erase(amount, '$');
    const std::string whole = amount.substr(0, amount.find('.'));
    return whole == "0" ? std::string() : whole;
}

/// A single-precision rate; an amount beyond all measure gives the greatest one.
float RateOf(double amount, int days) {
    constexpr double kGreatest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(amount / days, -kGreatest, kGreatest));
}

std::string TooltipOf(std::string_view amount, std::string_view side) {
    return AmountOf(amount) == 0 ? std::string() : fmt::format(" Click to credit {} this amount ", side);
}

}  // namespace

ProrationCalculator::ProrationCalculator(const Job& job, const Clock& clock) : job_(job), clock_(clock) {
    Reset();
}

void ProrationCalculator::Reset() {
    const year_month_day today = clock_.Today();
    auto year = today.year();
    if (today.month() >= kFiscalYearStart) ++year;
    state_ = {};
    state_.DTPicker1 = (year - std::chrono::years(1)) / kFiscalYearStart / day(1);
    state_.DTPicker2 = year / std::chrono::June / day(30);
    const auto date = ReadDate(job_.txtField(field::ProrationDate).text);
    const bool within = date && *date >= state_.DTPicker1 && *date <= state_.DTPicker2;
    state_.DTPicker3 = within ? *date : today;
    DatesChanged();
}

void ProrationCalculator::SetGross(EditorText text) {
    if (text.text.find('.') == std::string::npos) {
        text.text = GroupedWhole(text.text);
        text.caret = text.text.size();
        text.selection = 0;
    }
    state_.txtGross = std::move(text);
    GrossChanged();
}

void ProrationCalculator::SetFrom(year_month_day date) {
    if (!date.ok()) return;
    state_.DTPicker1 = date;
    state_.DTPicker2 = std::max(state_.DTPicker2, date);
    DatesChanged();
}

void ProrationCalculator::SetTo(year_month_day date) {
    if (!date.ok()) return;
    state_.DTPicker2 = date;
    state_.DTPicker1 = std::min(state_.DTPicker1, date);
    DatesChanged();
}

void ProrationCalculator::SetProrationDate(year_month_day date) {
    if (!date.ok()) return;
    state_.DTPicker3 = date;
    DatesChanged();
}

void ProrationCalculator::DatesChanged() {
    state_.DTPicker3 = std::clamp(state_.DTPicker3, state_.DTPicker1, state_.DTPicker2);
    state_.PeriodDays = DaysBetween(state_.DTPicker1, state_.DTPicker2) + 1;
    state_.UnpaidDays = DaysBetween(state_.DTPicker1, state_.DTPicker3);
    state_.PaidDays = DaysBetween(state_.DTPicker3, state_.DTPicker2) + 1;
    GrossChanged();
}

void ProrationCalculator::GrossChanged() {
    state_.PerDiem = RateOf(AmountOf(state_.txtGross.text), state_.PeriodDays);
    const double perDiem = state_.PerDiem;
    state_.lblPerDiem = fmt::format("Days ={}\n@ {}", state_.PeriodDays, DecimalText(perDiem, 3));
    state_.Text1 = Grouped(perDiem * state_.UnpaidDays);
    state_.Text2 = Grouped(perDiem * state_.PaidDays);
    state_.cmdBuyerTooltip = TooltipOf(state_.Text1, "buyer");
    state_.cmdSellerTooltip = TooltipOf(state_.Text2, "seller");
}

std::string ProrationCalculator::AmountFor(CreditTo side) const {
    return ShownAmount(side == CreditTo::Buyer ? state_.Text1 : state_.Text2);
}

std::string HandOverValue(const ProrationCalculator& calculator, CreditTo side, int n) {
    const std::string amount = calculator.AmountFor(side);
    const bool toBuyer = side == CreditTo::Buyer;
    switch (const TagFamily family = TagFamilyOf(n)) {
        case TagFamily::Sewer:
            return WithTag(amount, {false, toBuyer}, family);
        case TagFamily::Paid:
        case TagFamily::Credit:
            return WithTag(amount, {!toBuyer, toBuyer}, family);
        default:
            return amount;
    }
}

}  // namespace quillmark
