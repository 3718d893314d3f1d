#pragma once

#include <string_view>
#include <vector>

#include "tools/window/control_set.h"

namespace quillmark::op236 {

/// The controls of the window, in the order in which a person comes to them, before a job is taken in; those
/// of the printer's settings are hidden.
std::vector<WindowControl> NewControls();

/// Shows or hides the frame that "Printer Setup" opens.
void ShowSettings(ControlSet& controls, bool shown);

inline constexpr std::string_view kNoAdjustment = "0.0000";

/// What the window says of the form it fills.
inline constexpr std::string_view kRevision = "Compatible with Connecticut DRS Form OP-236 Revision 07/20";

}  // namespace quillmark::op236
