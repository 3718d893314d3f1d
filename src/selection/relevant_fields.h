#pragma once

#include <span>
#include <string_view>

#include "selection/office.h"
#include "selection/selection_state.h"

/// Which fields a job needs: worked out from the job list and the options, and listed in the grid.
namespace quillmark {

/// A relevant field that is not optional is marked while it is unfilled. Field 175 is optional but for a
/// condominium.
bool IsOptionalField(int n, const Job& job);

/// Marks the fields relevant. An attorney's field (2 to 9) with one firm default or none is filled silently
/// instead, and takes no row.
void AddFields(std::span<const int> fields, SelectionState& screen, const Office& office);

/// Rebuilds the relevant fields, the option buttons that make sense, the grid and the counts. With
/// `headingsOnly` only the headings are placed anew. Throws FileError and RecordError for a custom document
/// whose list of markers cannot be read.
void RefreshFields(SelectionState& screen, const Office& office, bool headingsOnly = false);

/// Counts what is relevant and what is still to be filled, in all and by group.
void CountFields(SelectionState& screen);

/// The document name of a custom document's entry "[ NAME ]"; empty for other entries.
std::string_view CustomDocumentName(std::string_view entry);

}  // namespace quillmark
