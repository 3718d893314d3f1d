#pragma once

#include <string>
#include <vector>

#include "selection/selection_state.h"

namespace quillmark::test {

/// Every text that the screen shows or would save, except the guidance bar's.
std::vector<std::string> TextsOf(const SelectionState& screen);

/// The whole state as one text, for telling whether anything has changed. The guidance bar is left out: it
/// may say why something was refused.
std::string ScreenText(const SelectionState& screen);

}  // namespace quillmark::test
