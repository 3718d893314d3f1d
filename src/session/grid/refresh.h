#pragma once

#include "selection/firm_context.h"
#include "session/grid/grid_editor.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// `RefreshFields`: the fields of the job list are worked out anew, and the grid, the option buttons, the
/// jump labels and the guidance follow. Throws as `RefreshFields` of selection/relevant_fields.h.
void Refresh(ScreenState& screen, const FirmContext& firm, GridEditor& editor);

/// What is left to do when rows may be others: tags of values that came from outside show as if they had been
/// typed here, no editor is open, EXIT follows the job.
void ShowRowsAnew(ScreenState& screen, GridEditor& editor);

}  // namespace quillmark
