#include "production/statement_page.h"

#include <sstream>

namespace quillmark::test {

namespace {

std::vector<std::string> CellsOf(const std::string& line) {
    std::vector<std::string> cells(1);
    for (const char c : line) {
        if (c == '\t')
            cells.emplace_back();
        else
            cells.back() += c;
    }
    return cells;
}

/// "$ 1,234.50" and "- 1,234.50" are 123450 cents; "-5.00" and "-- 5.00" are negative figures.
bool ReadCents(const std::string& cell, long long& cents) {
    const std::size_t digits = cell.find_first_of("0123456789");
    if (digits == std::string::npos || cell.find_first_not_of(" $-,.0123456789") != std::string::npos)
        return false;
    cents = 0;
    for (const char c : cell.substr(digits))
        if (c >= '0' && c <= '9') cents = cents * 10 + (c - '0');
    if ((digits > 0 && cell[digits - 1] == '-') || cell.find("--") != std::string::npos) cents = -cents;
    return true;
}

}  // namespace

std::vector<StatementLine> StatementLinesOf(const std::string& text) {
    std::vector<StatementLine> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        const std::vector<std::string> cells = CellsOf(line);
        StatementLine& read = lines.emplace_back();
        read.label = cells[0];
        const std::string part = cells[0].substr(0, cells[0].find(" to "));
        if (part.starts_with("          $")) read.hasPart = ReadCents(part, read.part);
        if (cells.size() > 1) read.hasFigure = ReadCents(cells[1], read.figure);
        if (cells.size() > 2) read.hasTotal = ReadCents(cells[2], read.total);
    }
    return lines;
}

std::string AsOnPaper(const std::string& text) {
    std::string page;
    std::istringstream in(text);
    std::size_t firstStop = 16;  // of the parties, in the head
    for (std::string line; std::getline(in, line);) {
        std::string row;
        for (const char c : line) {
            if (c != '\t')
                row += c;
            else if (row.size() < 66)
                row.resize(row.size() < firstStop ? firstStop : firstStop == 16 ? row.size() : 66, ' ');
        }
        if (row.starts_with('_')) firstStop = 48;
        page += row.substr(0, row.find_last_not_of(' ') + 1) + "\n";
    }
    return page;
}

}  // namespace quillmark::test
