#pragma once

#include "selection/job_in_hand.h"

/// The rows of the grid: which there are, in which order, and what they show.
namespace quillmark {

/// Empties the grid and lists every field that the hand's mode shows, and the user-defined ones
/// (`userMarkers` in a new job, all that have a value in edit mode).
void RebuildRows(JobInHand& hand);
/// Adds a user-defined row with this marker.
void AddUserRow(std::string_view marker, JobInHand& hand);
/// Inserts the group headings and notes where they stand.
void PlaceHeadings(JobInHand& hand);

/// The label of a field's row: the marker, in a new job padded and with "*" while a required field is
/// unfilled.
std::string RowLabel(int n, const JobInHand& hand);
/// Shows the field's present state in its row.
void DrawRow(GridRow& row, const JobInHand& hand);
/// The row of a field, null if it has none.
GridRow* FindRow(int n, JobInHand& hand);
const GridRow* FindRow(int n, const JobInHand& hand);

/// The number of the group (1 to 6) that a key falls into as the labels count it: keys are compared as texts.
int GroupOfKey(std::string_view key);

}  // namespace quillmark
