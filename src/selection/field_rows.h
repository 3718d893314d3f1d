#pragma once

#include "selection/selection_state.h"

/// The rows of the grid: which there are, in which order, and what they show.
namespace quillmark {

/// Empties the grid and lists every field that the screen's mode shows, and the user-defined ones
/// (`userMarkers` in a new job, all that have a value in edit mode).
void RebuildRows(SelectionState& screen);
/// Adds a user-defined row with this marker.
void AddUserRow(std::string_view marker, SelectionState& screen);
/// Inserts the group headings and points the jump labels at them.
void PlaceHeadings(SelectionState& screen);

/// The label of a field's row: the marker, in a new job padded and with "*" while a required field is
/// unfilled.
std::string RowLabel(int n, const SelectionState& screen);
/// Shows the field's present state in its row.
void DrawRow(GridRow& row, const SelectionState& screen);
/// The row of a field, null if it has none.
GridRow* FindRow(int n, SelectionState& screen);

/// The number of the group (1 to 6) that a key falls into as the labels count it: keys are compared as texts.
int GroupOfKey(std::string_view key);

}  // namespace quillmark
