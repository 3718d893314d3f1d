#pragma once

#include <string>
#include <vector>

#include "platform/machine.h"
#include "tools/window/control_set.h"

namespace quillmark {

/// The printers of the system and the bins of the one chosen, as the settings of two tools show them: a
/// combination box `cboPrinters` and a list `lstBins`.
class PrinterChoice {
 public:
    /// `printers` may be null: then there is none.
    explicit PrinterChoice(Printers* printers) : printers_(printers) {}

    /// Fills both controls, with this printer and its bin chosen if they are there.
    void Fill(ControlSet& controls, const std::string& printer, int bin);
    /// After another printer was chosen.
    void FillBins(ControlSet& controls);
    /// The number of the bin chosen; 0 for none.
    int Bin(const ControlSet& controls) const;

    /// The printer that a page goes to: this one, or the current one where there is none of that name; empty
    /// without printers.
    std::string PrinterFor(const std::string& name) const;

 private:
    Printers* printers_;
    std::vector<PrinterBin> bins_;
};

}  // namespace quillmark
