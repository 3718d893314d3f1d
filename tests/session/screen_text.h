#pragma once

#include <string>
#include <vector>

#include "selection/selection_state.h"

namespace quillmark::test {

/// Everything that the screen shows or would save, as texts. The guidance bar is left out: it may say why
/// something was refused.
std::vector<std::string> TextsOf(const SelectionState& screen);

}  // namespace quillmark::test
