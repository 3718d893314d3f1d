#pragma once

#include <QPrinter>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"

namespace quillmark::desktop {

/// The bins that the driver of a printer offers; none where it does not tell.
std::vector<PrinterBin> BinsOfPrinter(const std::string& printer);

/// Has the printer take its paper from one of its bins, by the number that `BinsOfPrinter` gives it.
void TakePaperFrom(int bin, QPrinter& printer);

/// The bins in the answer of `lpoptions -l`, CUPS's list of a printer's options: "InputSlot/Source: *Auto
/// Manual". Numbers count from 1.
std::vector<PrinterBin> BinsInOptions(std::string_view options);

}  // namespace quillmark::desktop
