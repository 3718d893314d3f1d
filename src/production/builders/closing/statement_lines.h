#pragma once

#include <string>

#include "closing/closing_statement.h"
#include "production/kit/typing.h"

/// The figures of a statement that is typed as flowing text, without a table: labels in a proportional type,
/// figures in a fixed one behind tab stops, so that they stand under one another.
namespace quillmark {

/// "1,234.50": dollars with commas and cents.
std::string FigureText(double dollars);
/// "$1,234.50"; a figure below a dollar has no digit before the point: "$.00".
std::string BareFigureText(double dollars);
/// "$1,235", or "$" alone for less than half a dollar.
std::string WholeDollarText(double dollars);

/// The days of a proration for its detail line: `PeriodFrom` for those from the proration date on,
/// `PeriodUpTo` for those before it. Dates that the job does not have are left out.
std::string PeriodFrom(const ProrationFrame& frame, const ProrationDays& days);
std::string PeriodUpTo(const ProrationFrame& frame, const ProrationDays& days);

/// A tax, charge or rent adjustment, as its line and the detail below tell it.
struct StatementProration {
    const AdjustmentLine& line;
    std::string label;
    std::string period;  ///< as PeriodFrom or PeriodUpTo gives it
    double perDay = 0;
};

/// Types the lines: a label, a tab, 14 characters of Courier for a figure. Every method goes back to "Times
/// New Roman" at the size of the page, neither bold, italic nor underlined.
///
/// A label that is too wide for its column is followed by a line break, so that the figure stands in its
/// column on the line below.
class StatementLines {
 public:
    explicit StatementLines(Typist& type) : type_(type) {}

    static constexpr double kSize = 10;
    static constexpr double kDetailSize = 8;
    /// Where the labels begin and where the figures of the lines and of the totals stand, in inches.
    static constexpr double kIndent = 0.375;
    static constexpr double kFigureTab = 4;
    static constexpr double kTotalTab = 5.5;

    /// What a line is called, and the tab to its figure.
    void Label(std::string_view label);

    // Figures, at the insertion point.
    void Wide(double dollars);                             ///< a figure like most
    void Dollar(double dollars) { Marked('$', dollars); }  ///< as the first one of a section
    void Marked(char mark, double dollars);                ///< with "$" or a blank at the left edge

    // A line ends with a return, one that follows another starts with it.
    void Line(std::string_view label, double dollars);
    void FollowingLine(std::string_view label, double dollars);
    void FollowingLineIfAny(std::string_view label, double dollars);
    /// With its detail, if the line is shown at all.
    void Line(const StatementProration& proration);
    /// The tab behind the detail takes the total of the section to where it stands behind a figure.
    void FollowingLine(const StatementProration& proration);

    /// In italics over a line.
    void Title(std::string_view title);
    /// In small type.
    void Detail(const std::string& text);
    /// The user's own label; where there is none, a field to click and type it into.
    void LabelOrField(const std::string& label, const std::string& field);

    /// The sum of the lines above: the rule, then "TOTAL" and the figure on a line of its own, up to `end`.
    void Total(double dollars, const std::string& end);
    /// A sum to be taken off, in the column of totals beside the last line, and the rule under it.
    void Subtracted(double dollars);
    /// A result: the label in bold, "$", the figure in bold over a double line.
    void Result(const std::string& label, double dollars);

 private:
    void InCourier(const std::string& text);

    Typist& type_;
};

}  // namespace quillmark
