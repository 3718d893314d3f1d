#pragma once

#include <QPointer>
#include <QPrinter>
#include <QWidget>

#include "platform/machine.h"

namespace quillmark::desktop {

/// The printers of the system as Qt knows them.
class QtPrinters final : public Printers {
 public:
    std::vector<std::string> Names() override;
    std::string DefaultName() override;
    std::vector<PrinterBin> BinsOf(const std::string& printer) override;
};

/// Prints sheets of placed texts; where the system has no printer, keeps them as a PDF file that the person
/// chooses, and opens it.
class QtSheetPrinter final : public SheetPrinter {
 public:
    /// `shell` must outlive the object.
    explicit QtSheetPrinter(Shell& shell) : shell_(shell) {}
    void SetParent(QWidget* parent) { parent_ = parent; }
    void Print(const PrintedPage& page) override;

 private:
    void KeepAsPdf(const PrintedPage& page);

    Shell& shell_;
    QPointer<QWidget> parent_;
};

/// Puts the sheet on the printer's paper, or into its file, in the sheet's own size and orientation. Throws
/// MachineError if the printer does not take it.
void PutOnPaper(const PrintedPage& page, QPrinter& printer);

}  // namespace quillmark::desktop
