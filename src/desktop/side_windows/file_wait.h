#pragma once

#include <QWidget>

#include "platform/file_holder.h"

namespace quillmark::desktop {

/// Waits for a file that another user holds: at first with a waiting pointer alone, then with a window that
/// tells which file it is and who holds it, as far as is known, and gives up on Cancel. `parent` may be null
/// and must outlive the function.
WaitForFile WaitingForFiles(QWidget* parent);

}  // namespace quillmark::desktop
