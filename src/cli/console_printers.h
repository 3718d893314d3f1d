#pragma once

#include <string>
#include <vector>

#include "platform/machine.h"

namespace quillmark::cli {

/// A printer as the command line is told of it.
struct NamedPrinter {
    std::string name;
    std::vector<PrinterBin> bins;
};

/// "Laser:1=Upper,4=Manual"; a bin without a name has none behind the mark. Throws std::invalid_argument.
NamedPrinter PrinterOf(const std::string& text);

/// The printers that the command line was told of, the first one the current one. Nothing goes to paper:
/// replies show what would.
class ConsolePrinters final : public Printers, public SheetPrinter {
 public:
    explicit ConsolePrinters(std::vector<NamedPrinter> printers) : printers_(std::move(printers)) {}
    std::vector<std::string> Names() override;
    std::string DefaultName() override;
    std::vector<PrinterBin> BinsOf(const std::string& printer) override;
    void Print(const PrintedPage&) override {}

 private:
    std::vector<NamedPrinter> printers_;
};

}  // namespace quillmark::cli
