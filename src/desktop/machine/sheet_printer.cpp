#include "desktop/machine/sheet_printer.h"

#include <QApplication>
#include <QFileDialog>
#include <QPageLayout>
#include <QPainter>
#include <QPrinterInfo>

#include "desktop/machine/printer_bins.h"
#include "desktop/toolkit/sheet.h"
#include "desktop/toolkit/text.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace quillmark::desktop {

namespace {

QPageSize SizeOf(SheetSize paper) {
    switch (paper) {
        case SheetSize::Envelope10:
            return QPageSize(QPageSize::Envelope10);
        case SheetSize::Legal:
            return QPageSize(QPageSize::Legal);
        case SheetSize::Letter:
            break;
    }
    return QPageSize(QPageSize::Letter);
}

QString NameOf(const PrintedPage& page) {
    return page.paper == SheetSize::Envelope10 ? QObject::tr("Envelope") : QObject::tr("OP-236");
}

/// Called again while a program's window hangs over another: what is on top owns the boxes that come.
QWidget* Over(QWidget* otherwise) {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : otherwise;
}

}  // namespace

std::vector<std::string> QtPrinters::Names() {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames()) names.push_back(Utf8(name));
    return names;
}

std::string QtPrinters::DefaultName() {
    const std::string name = Utf8(QPrinterInfo::defaultPrinterName());
    if (!name.empty()) return name;
    const std::vector<std::string> names = Names();
    return names.empty() ? std::string() : names.front();
}

std::vector<PrinterBin> QtPrinters::BinsOf(const std::string& printer) {
    return BinsOfPrinter(printer);
}

void PutOnPaper(const PrintedPage& page, QPrinter& printer) {
    printer.setDocName(NameOf(page));
    printer.setFullPage(true);
    printer.setPageLayout(QPageLayout(SizeOf(page.paper),
                                      page.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                      QMarginsF(0, 0, 0, 0)));
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer)) throw MachineError("The printer could not be started: " + page.printer);
    DrawSheet(page, painter, printer.resolution());
    if (!painter.end() || printer.printerState() == QPrinter::Error)
        throw MachineError("The printer did not take the page: " + page.printer);
}

void QtSheetPrinter::Print(const PrintedPage& page) {
    const QString name = Shown(page.printer);
    if (name.isEmpty() || !QPrinterInfo::availablePrinterNames().contains(name)) return KeepAsPdf(page);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(name);
    if (page.bin != 0) TakePaperFrom(page.bin, printer);
    PutOnPaper(page, printer);
}

void QtSheetPrinter::KeepAsPdf(const PrintedPage& page) {
    const std::filesystem::path proposed =
        FreeName(shell_.FolderOf(SpecialFolder::Documents) / PathOf(Utf8(NameOf(page)) + ".pdf"));
    QString file = QFileDialog::getSaveFileName(Over(parent_), QObject::tr("No printer: save as PDF"),
                                                Shown(TextOf(proposed)), QObject::tr("PDF (*.pdf)"));
    if (file.isEmpty()) return;
    if (!file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) file += QLatin1String(".pdf");
    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(file);
    PutOnPaper(page, pdf);
    shell_.Open(Utf8(file));
}

}  // namespace quillmark::desktop
