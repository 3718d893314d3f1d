#pragma once

#include "session/state/not_allowed.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// Throws NotAllowed while the screen takes no command at all.
inline void RequireReady(const ScreenState& screen) {
    Require(!screen.ended, "the session has ended");
    Require(!screen.creating, "documents are being made");
}

}  // namespace quillmark
