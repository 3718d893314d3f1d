#pragma once

#include <QPointer>
#include <QPrinter>
#include <QWidget>

#include "platform/machine.h"

namespace quillmark::desktop {

/// Draws the lines on the printer's paper, page by page.
void DrawPages(const PrintJob& job, QPrinter& printer);

/// Shows the pages before they are printed; the person prints them, keeps them as a PDF file, or closes the
/// window.
class QtPrinter final : public Printer {
 public:
    void SetParent(QWidget* parent) { parent_ = parent; }
    void Print(const PrintJob& job) override;

 private:
    QPointer<QWidget> parent_;
};

}  // namespace quillmark::desktop
