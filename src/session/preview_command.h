#pragma once

#include <string_view>

#include "production/run/preview.h"
#include "session/blanks.h"
#include "session/main_screen.h"

namespace quillmark {

/// What CREATE would make now of the job on the screen: one document of the job list, or all of it when
/// `document` is empty. The screen is only read. Throws NotAllowed where there is no such document to make.
PreviewOrder OrderOfPreview(const MainScreen& screen, std::string_view document = {});

/// What is open in the job on the screen.
OpenList OpenNow(const MainScreen& screen);

}  // namespace quillmark
