#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "selection/job_list_lines.h"
#include "selection/job_list_parking.h"
#include "selection/office.h"
#include "selection/selection_state.h"

/// The job list `List2`: what a double-click in the document list adds, with the documents that the law or
/// the trade wants beside it, and what a double-click in the job list takes off.
namespace quillmark {

/// What came of a request; all but Done leave everything as it was.
enum class ListAction {
    Done,
    ListDisabled,
    NoSuchLine,
};

/// What the name box shows for a job that is worked on without a name.
inline constexpr std::string_view kNoSaveText = "<< NO SAVE >>";

/// Double-click on a line of `List1`: a document goes on the job list with what must accompany it, or a
/// package takes the list's place; the fields and option buttons follow. Throws FileError and PackageError
/// for a package that cannot be read, with nothing changed, and FileError and RecordError for a custom
/// document whose list of markers cannot be read, with the document on the list.
ListAction PickLine(std::string_view line, SelectionState& screen, const Office& office);

/// Double-click on a line of `List2`: this line alone goes, documents that came with it stay.
ListAction DropLine(std::size_t line, SelectionState& screen, const Office& office);

/// Click on a line of `List2`: turns its legal size on or off.
ListAction ToggleLegalSize(std::size_t line, SelectionState& screen);

/// Makes exactly these lines legal size; a name that is listed twice counts once for each time given.
ListAction SelectLegalSize(const std::vector<std::string>& names, SelectionState& screen);

/// The guidance that shows when `List1` gets the focus.
void ShowList1Guidance(SelectionState& screen);

}  // namespace quillmark
