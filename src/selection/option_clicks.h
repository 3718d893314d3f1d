#pragma once

#include "selection/job_list_parking.h"
#include "selection/office.h"
#include "selection/option_buttons.h"
#include "selection/selection_state.h"

/// What a click on an option button does beside setting it: it moves documents on and off the job list,
/// rebuilds values that depend on the option, and closes the choice of documents.
namespace quillmark {

/// What came of a request; all but Done leave everything as it was.
enum class OptionAction {
    Done,
    NoSuchOption,
    Disabled,
    Hidden,
};

/// Click on an option button. While option changes are suppressed it is set and nothing follows. Throws
/// ParkingFull, with nothing changed, and what `RefreshFields` throws.
OptionAction ClickOption(int n, SelectionState& screen, const Office& office);

/// Double-click on an option button: clears its group if that has no button for "none"; buttons of other
/// groups do nothing. Throws as `ClickOption`.
OptionAction DoubleClickOption(int n, SelectionState& screen, const Office& office);

/// A job that can be saved and has nothing to save yet: SAVE appears.
void JobCountsAsChanged(SelectionState& screen);

}  // namespace quillmark
