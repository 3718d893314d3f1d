#pragma once

#include <string>
#include <vector>

#include "session/state/screen_state.h"

namespace quillmark::test {

/// Everything that the screen shows or would save, as texts. The guidance bar is left out: it may say why
/// something was refused.
std::vector<std::string> TextsOf(const ScreenState& screen);

}  // namespace quillmark::test
