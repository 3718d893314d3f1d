#pragma once

#include "session/state/screen_state.h"

/// The stages that a session goes through, and what each makes of the screen.
namespace quillmark {

enum class Stage {
    Idle,          ///< start and RESET
    Opened,        ///< a job was loaded
    Editing,       ///< EDIT
    FirmDefaults,  ///< the name "DEFAULTS" and Enter
    Template,      ///< TEMPLATES
    Spawned,       ///< a job from a template: as a new one, but its name is to be completed
};

/// Brings the mode, the first button, the other ways in and the option buttons to the stage's row of the
/// table. What is not of the stage alone stays.
void Enter(Stage stage, ScreenState& screen);

}  // namespace quillmark
