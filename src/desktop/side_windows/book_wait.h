#pragma once

#include <QWidget>

#include "entry/address_book_lock.h"

namespace quillmark::desktop {

/// Waits for address books that another user holds: at first with a waiting pointer alone, then with a window
/// that tells who holds them and gives up on Cancel. `parent` may be null and must outlive the function.
WaitForBooks WaitingForBooks(QWidget* parent);

}  // namespace quillmark::desktop
