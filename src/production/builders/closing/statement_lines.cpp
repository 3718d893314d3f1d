#include "production/builders/closing/statement_lines.h"

#include <fmt/format.h>

#include "core/text_conversions.h"
#include "word/seam/letter_widths.h"

namespace quillmark {

namespace {

using std::chrono::year_month_day;

constexpr const char* kLabelFont = "Times New Roman";
constexpr const char* kFigureFont = "Courier";

/// The digits with a comma before every three of them.
std::string WithCommas(std::string digits) {
    const std::size_t first = digits.starts_with('-') ? 1 : 0;
    std::size_t at = std::min(digits.find('.'), digits.size());
    while (at > first + 3) digits.insert(at -= 3, ",");
    return digits;
}

std::string ShortDate(const std::optional<year_month_day>& date) {
    if (!date) return {};
    return fmt::format("{}/{}/{}", static_cast<unsigned>(date->month()), static_cast<unsigned>(date->day()),
                       static_cast<int>(date->year()));
}

std::string Padded(const std::string& figure, std::size_t columns) {
    return fmt::format("{:>{}}", figure, columns);
}

/// The line over a total, under the digits of a figure.
std::string TotalRule() {
    return RepeatTab(2, 2) + RepeatUnderscore(12) + "\r";
}

/// Whether a label takes the tab behind it past the place of the figures.
bool IsTooWide(std::string_view label) {
    constexpr double kColumn = word::InchesToPoints(StatementLines::kFigureTab - StatementLines::kIndent);
    return word::WidthOf(label, kLabelFont, StatementLines::kSize) >= kColumn;
}

std::string DetailText(const StatementProration& proration) {
    return fmt::format("{:10}{};  {} DAYS @ ${}/DAY", "", proration.period,
                       DecimalText(proration.line.period.days, 0), DecimalText(proration.perDay, 3));
}

}  // namespace

std::string FigureText(double dollars) {
    return WithCommas(DecimalText(dollars, 2));
}

std::string BareFigureText(double dollars) {
    const std::string figure = FigureText(dollars);
    return "$" + (figure.starts_with("0.") ? figure.substr(1) : figure);
}

std::string WholeDollarText(double dollars) {
    const std::string figure = WithCommas(DecimalText(dollars, 0));
    return "$" + (figure == "0" ? std::string() : figure);
}

std::string PeriodFrom(const ProrationFrame& frame, const ProrationDays& days) {
    return frame.ProrationText + " - " + ShortDate(days.PeriodDate);
}

std::string PeriodUpTo(const ProrationFrame& frame, const ProrationDays& days) {
    std::optional<year_month_day> last;
    if (frame.ProrationDate) last = std::chrono::sys_days(*frame.ProrationDate) - std::chrono::days(1);
    return ShortDate(days.PeriodDate) + " - " + ShortDate(last);
}

void StatementLines::InCourier(const std::string& text) {
    type_.FontName(kFigureFont);
    type_.Text(text);
    type_.FontName(kLabelFont);
}

void StatementLines::Wide(double dollars) {
    InCourier(Padded(FigureText(dollars), 14));
}

void StatementLines::Marked(char mark, double dollars) {
    InCourier(mark + Padded(FigureText(dollars), 13));
}

void StatementLines::Label(std::string_view label) {
    type_.Text(label, IsTooWide(label) ? "\v\t" : "\t");
}

void StatementLines::Line(std::string_view label, double dollars) {
    Label(label);
    Wide(dollars);
    type_.Text("\r");
}

void StatementLines::FollowingLine(std::string_view label, double dollars) {
    type_.Text("\r", label, IsTooWide(label) ? "\v\t" : "\t");
    Wide(dollars);
}

void StatementLines::FollowingLineIfAny(std::string_view label, double dollars) {
    if (dollars > 0) FollowingLine(label, dollars);
}

void StatementLines::Line(const StatementProration& proration) {
    if (!proration.line.shown) return;
    Line(proration.label, proration.line.figure);
    if (!proration.line.prorated) return;
    Detail(DetailText(proration));
    type_.Text("\r");
}

void StatementLines::FollowingLine(const StatementProration& proration) {
    if (!proration.line.shown) return;
    FollowingLine(proration.label, proration.line.figure);
    if (!proration.line.prorated) return;
    type_.Text("\r");
    Detail(DetailText(proration) + "\t");
}

void StatementLines::Title(std::string_view title) {
    type_.As(word::Role::StatementHeading, [&] {
        type_.Italic(true);
        type_.TypeUnderlined(title);
        type_.Italic(false);
    });
}

void StatementLines::Detail(const std::string& text) {
    type_.FontSize(kDetailSize);
    type_.Text(text);
    type_.FontSize(kSize);
}

void StatementLines::LabelOrField(const std::string& label, const std::string& field) {
    if (label.empty())
        type_.TextField(field);
    else
        type_.Text(label, IsTooWide(label) ? "\v" : "");
}

void StatementLines::Total(double dollars, const std::string& end) {
    type_.As(word::Role::StatementTotal,
             [&] { InCourier(TotalRule() + "\tTOTAL\t$ " + Padded(FigureText(dollars), 12) + end); });
}

void StatementLines::Subtracted(double dollars) {
    const std::string figure = FigureText(dollars);
    const std::string subtracted = figure.starts_with('-') ? "-- " + figure.substr(1) : "- " + figure;
    type_.As(word::Role::StatementTotal,
             [&] { InCourier("\t" + Padded(subtracted, 14) + "\r" + TotalRule()); });
}

void StatementLines::Result(const std::string& label, double dollars) {
    type_.As(word::Role::StatementTotal, [&] {
        type_.TypeBold(label, RepeatTab(2));
        type_.FontName(kFigureFont);
        type_.Text("$ ");
        type_.Bold(true);
        type_.Underline(word::UnderlineDouble);
        type_.Text(Padded(FigureText(dollars), 12), "\r");
        type_.Bold(false);
        type_.Underline(word::UnderlineNone);
        type_.FontName(kLabelFont);
    });
}

}  // namespace quillmark
