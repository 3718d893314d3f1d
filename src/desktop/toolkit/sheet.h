#pragma once

#include <QSizeF>

#include "platform/machine.h"

class QPainter;

namespace quillmark::desktop {

/// Width and height of the paper as it lies before the reader, in inches.
QSizeF SheetInches(const PrintedPage& page);

/// Draws the texts of a sheet, the painter's origin being the upper left corner of the paper. The same for
/// paper and for the screen, so that what is seen is what is printed.
void DrawSheet(const PrintedPage& page, QPainter& painter, double dotsPerInch);

/// Whether some text runs off the paper.
bool RunsOffTheSheet(const PrintedPage& page);

}  // namespace quillmark::desktop
