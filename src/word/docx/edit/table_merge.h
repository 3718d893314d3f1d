#pragma once

#include "word/docx/edit/editor.h"

namespace quillmark::word::docx::edit {

/// Joins the rectangle that has these two cells at opposite corners into one cell, which gets the text of all
/// in reading order, empty cells' aside. Throws kBadValue when the edges of other cells cut the rectangle.
void MergeCells(Editor& editor, Table& table, std::size_t row, std::size_t column, std::size_t toRow,
                std::size_t toColumn);

/// Whether a cell is joined to one above it, and whether cells are joined side by side.
bool HasVerticalMerges(const Table& table);
bool HasMixedWidths(const Table& table);
/// The grid column at which a cell of a row begins.
int GridColumn(const TableRow& row, std::size_t cell);

}  // namespace quillmark::word::docx::edit
