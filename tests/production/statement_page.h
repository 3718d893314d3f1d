#pragma once

#include <string>
#include <vector>

namespace quillmark::test {

/// A line of a typed closing statement, taken apart at its tabs.
struct StatementLine {
    std::string label;
    long long figure = 0;  ///< cents, of the first column
    long long total =
        0;  ///< cents, of the column of totals; one to be taken off as it is named, without its "-"
    long long part = 0;  ///< cents, at the beginning of a detail line in small type
    bool hasFigure = false;
    bool hasTotal = false;
    bool hasPart = false;
};

std::vector<StatementLine> StatementLinesOf(const std::string& text);

/// The text as it lies on paper: labels, figures and totals in three columns.
std::string AsOnPaper(const std::string& text);

}  // namespace quillmark::test
