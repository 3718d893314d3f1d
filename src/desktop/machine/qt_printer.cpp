#include "desktop/machine/qt_printer.h"

#include <QAction>
#include <QFileDialog>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QScreen>
#include <QToolBar>
#include <algorithm>

#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/text.h"
#include "platform/paper.h"

namespace quillmark::desktop {

namespace {

QFont FontOf(const PrintJob& job) {
    QFont font(Shown(job.font));
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setPointSizeF(job.points);
    return font;
}

std::size_t HowOften(double part, double whole) {
    return static_cast<std::size_t>(std::max(1.0, whole / part));
}

void KeepAsPdf(const PrintJob& job, QWidget* over) {
    const QString file =
        QFileDialog::getSaveFileName(over, QObject::tr("Save as PDF"),
                                     Shown(job.name) + QStringLiteral(".pdf"), QObject::tr("PDF (*.pdf)"));
    if (file.isEmpty()) return;
    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(file);
    pdf.setPageSize(QPageSize(QPageSize::Letter));
    DrawPages(job, pdf);
}

}  // namespace

void DrawPages(const PrintJob& job, QPrinter& printer) {
    printer.setDocName(Shown(job.name));
    QPainter painter;
    if (!painter.begin(&printer)) throw MachineError("The printer could not be started: " + job.name);
    painter.setFont(FontOf(job));
    const QFontMetricsF metrics(painter.font(), &printer);
    const QRectF paper = printer.pageLayout().paintRectPixels(printer.resolution());
    const double line = metrics.lineSpacing();
    const auto pages =
        PagesOf(job.lines, HowOften(metrics.horizontalAdvance(QLatin1Char('0')), paper.width()),
                HowOften(line, paper.height()));
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (page > 0) printer.newPage();
        double y = metrics.ascent();
        for (const std::string& text : pages[page]) {
            painter.drawText(QPointF(0, y), Shown(text));
            y += line;
        }
    }
}

void QtPrinter::Print(const PrintJob& job) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    QPrintPreviewDialog preview(&printer, parent_);
    preview.setAttribute(Qt::WA_WindowPropagation);
    preview.setWindowTitle(Shown(job.name).trimmed());
    preview.resize(preview.screen()->availableSize() * 4 / 5);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&](QPrinter* paper) { Guarded(&preview, [&] { DrawPages(job, *paper); }); });
    if (auto* bar = preview.findChild<QToolBar*>()) {
        QAction* keep = bar->addAction(QObject::tr("Save as &PDF"));
        QObject::connect(keep, &QAction::triggered, &preview,
                         [&] { Guarded(&preview, [&] { KeepAsPdf(job, &preview); }); });
    }
    preview.exec();
}

}  // namespace quillmark::desktop
