#include "desktop/side_windows/envelope_view.h"

#include <QPainter>
#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/sheet.h"

namespace quillmark::desktop {

namespace {

constexpr int kEdge = 14;  ///< pixels around the paper, for the shadow and the marks of the ruler

void DrawRuler(QPainter& painter, const QRectF& paper, double dotsPerInch) {
    constexpr int kMark = 6;
    for (double inch = 0; inch * dotsPerInch <= paper.width() + 1; inch += 0.5) {
        const double x = paper.left() + inch * dotsPerInch;
        const double length = inch == static_cast<int>(inch) ? kMark : kMark / 2;
        painter.drawLine(QPointF(x, paper.top() - 2), QPointF(x, paper.top() - 2 - length));
    }
    for (double inch = 0; inch * dotsPerInch <= paper.height() + 1; inch += 0.5) {
        const double y = paper.top() + inch * dotsPerInch;
        const double length = inch == static_cast<int>(inch) ? kMark : kMark / 2;
        painter.drawLine(QPointF(paper.left() - 2, y), QPointF(paper.left() - 2 - length, y));
    }
}

}  // namespace

EnvelopeView::EnvelopeView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Describe(this, tr("Preview of the envelope"));
}

void EnvelopeView::Show(PrintedPage page) {
    page_ = std::move(page);
    QStringList lines;
    for (const PageItem& item : page_.items) lines.push_back(QString::fromStdString(item.text));
    setAccessibleDescription(lines.join(QLatin1String(", ")));
    update();
}

QSize EnvelopeView::sizeHint() const {
    return {620, 300};
}

QSize EnvelopeView::minimumSizeHint() const {
    return {360, 190};
}

double EnvelopeView::Scale() const {
    const QSizeF paper = SheetInches(page_);
    return std::min((width() - 2 * kEdge) / paper.width(), (height() - 2 * kEdge) / paper.height());
}

void EnvelopeView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = Scale();
    QRectF paper(QPointF(), SheetInches(page_) * scale);
    paper.moveCenter(QRectF(rect()).center());
    paper.moveTop(kEdge);
    painter.fillRect(paper.translated(2, 2), palette().color(QPalette::Shadow));
    painter.fillRect(paper, Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(paper);
    DrawRuler(painter, paper, scale);
    painter.setClipRect(paper);
    painter.translate(paper.topLeft());
    DrawSheet(page_, painter, scale);
}

}  // namespace quillmark::desktop
