#pragma once

#include <string>
#include <vector>

#include "cli/console_request.h"
#include "session/main_screen.h"

namespace quillmark::cli {

/// The whole state of the main screen, every control under its own name.
Json StateOf(const MainScreen& screen);

/// The fifteen options, in order: whether each is set.
Json OptionsOf(const ScreenState& screen);

/// The lines of the job list.
Json JobListOf(const ScreenState& screen);

}  // namespace quillmark::cli
