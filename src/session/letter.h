#pragma once

#include "platform/machine.h"
#include "selection/firm_context.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// Begins a letter to the buyer's attorney in the system's mail program, headed by the property, signed by
/// the firm; fills the firm's own details in where the job has none yet. Throws MachineError.
void MailBuyersAttorney(ScreenState& screen, const FirmContext& firm, Shell& shell);

}  // namespace quillmark
