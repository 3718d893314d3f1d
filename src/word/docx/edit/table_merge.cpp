#include "word/docx/edit/table_merge.h"

#include <algorithm>
#include <iterator>

#include "word/seam/automation.h"

namespace quillmark::word::docx::edit {
namespace {

/// A run of cells in one row.
struct CellRun {
    std::size_t first = 0;
    std::size_t count = 0;
};

/// The cells of a row that fill exactly the grid columns from `from` to before `to`.
CellRun CellsWithin(const TableRow& row, int from, int to) {
    CellRun run;
    int column = 0;
    for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
        const int end = column + row.cells[cell].span;
        if (column >= from && end <= to) {
            if (run.count++ == 0) run.first = cell;
        } else if (column < to && end > from) {
            throw AutomationError(error::kBadValue, "The cells do not form a rectangle");
        }
        column = end;
    }
    return run;
}

bool IsBlank(const Blocks& blocks) {
    const auto* paragraph = std::get_if<Paragraph>(&blocks.front());
    return blocks.size() == 1 && paragraph && paragraph->text.empty();
}

/// Moves a cell's text to the end of another's, whose own is replaced while it is empty.
void MoveText(Editor& editor, TableCell& from, TableCell& to) {
    if (IsBlank(from.blocks)) return editor.Abandon(from.blocks, Editor::EndOf(to.blocks));
    if (IsBlank(to.blocks)) {
        editor.Abandon(to.blocks, Editor::StartOf(from.blocks));
        to.blocks.clear();
    }
    Paragraph blank;
    blank.format = std::get<Paragraph>(from.blocks.back()).format;
    editor.marks().Rehomed(&from.blocks, to.blocks);
    to.blocks.splice(to.blocks.end(), from.blocks);
    from.blocks.emplace_back(std::move(blank));
}

/// Makes one cell of a run, wide as all of them.
void JoinRun(Editor& editor, TableRow& row, CellRun run) {
    TableCell& target = row.cells[run.first];
    const auto begin = row.cells.begin() + run.first;
    for (auto cell = begin + 1; cell != begin + run.count; ++cell) {
        MoveText(editor, *cell, target);
        target.span += cell->span;
    }
    // The cells behind move up, and the places in them with them.
    std::vector<const Blocks*> old;
    for (auto cell = begin + run.count; cell != row.cells.end(); ++cell) old.push_back(&cell->blocks);
    row.cells.erase(begin + 1, begin + run.count);
    for (std::size_t i = 0; i < old.size(); ++i)
        editor.marks().Rehomed(old[i], row.cells[run.first + 1 + i].blocks);
}

}  // namespace

int GridColumn(const TableRow& row, std::size_t cell) {
    int column = 0;
    for (std::size_t i = 0; i < cell; ++i) column += row.cells[i].span;
    return column;
}

bool HasVerticalMerges(const Table& table) {
    return std::any_of(table.rows.begin(), table.rows.end(), [](const TableRow& row) {
        return std::any_of(row.cells.begin(), row.cells.end(),
                           [](const TableCell& cell) { return cell.vertical != Merge::None; });
    });
}

bool HasMixedWidths(const Table& table) {
    return std::any_of(table.rows.begin(), table.rows.end(), [](const TableRow& row) {
        return std::any_of(row.cells.begin(), row.cells.end(),
                           [](const TableCell& cell) { return cell.span != 1; });
    });
}

void MergeCells(Editor& editor, Table& table, std::size_t row, std::size_t column, std::size_t toRow,
                std::size_t toColumn) {
    const int from = std::min(GridColumn(table.rows[row], column), GridColumn(table.rows[toRow], toColumn));
    const int to =
        std::max(GridColumn(table.rows[row], column + 1), GridColumn(table.rows[toRow], toColumn + 1));
    const auto [first, last] = std::minmax(row, toRow);
    std::vector<CellRun> runs;
    for (std::size_t i = first; i <= last; ++i) runs.push_back(CellsWithin(table.rows[i], from, to));
    for (std::size_t i = first; i <= last; ++i) {
        const CellRun& run = runs[i - first];
        JoinRun(editor, table.rows[i], run);
        TableCell& cell = table.rows[i].cells[run.first];
        if (first == last) continue;
        if (i == first) {
            cell.vertical = Merge::Start;
        } else {
            cell.vertical = Merge::Continued;
            MoveText(editor, cell, table.rows[first].cells[runs.front().first]);
        }
    }
}

}  // namespace quillmark::word::docx::edit
