#pragma once

#include <string>
#include <string_view>

#include "session/state/screen_state.h"

namespace quillmark {

/// Why a control of the main screen is grey, in a sentence for the person, and what makes it usable again.
/// `control` is its name, such as "cmdCreate", "optConf4", "List1", "txtJobName" or "lblJump2". Empty for a
/// control that is not grey.
std::string WhyDisabled(std::string_view control, const ScreenState& screen);

}  // namespace quillmark
