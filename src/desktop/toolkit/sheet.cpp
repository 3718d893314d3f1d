#include "desktop/toolkit/sheet.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

/// Texts are measured and drawn in these units, whatever the device, so that lines end at the same place.
constexpr double kUnitsPerInch = 1440;
constexpr double kPointsPerInch = 72;

QFont FontOf(const PageItem& item) {
    QFont font(Shown(item.font));
    font.setPixelSize(std::max(1, qRound(item.size / kPointsPerInch * kUnitsPerInch)));
    font.setBold(item.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

QSizeF SheetInches(const PrintedPage& page) {
    const QSizeF upright = page.paper == SheetSize::Envelope10 ? QSizeF(4.125, 9.5)
                           : page.paper == SheetSize::Legal    ? QSizeF(8.5, 14)
                                                               : QSizeF(8.5, 11);
    return page.landscape ? upright.transposed() : upright;
}

void DrawSheet(const PrintedPage& page, QPainter& painter, double dotsPerInch) {
    painter.save();
    painter.scale(dotsPerInch / kUnitsPerInch, dotsPerInch / kUnitsPerInch);
    painter.setPen(Qt::black);
    for (const PageItem& item : page.items) {
        const QFont font = FontOf(item);
        painter.setFont(font);
        const double baseline = item.down * kUnitsPerInch + QFontMetricsF(font).ascent();
        painter.drawText(QPointF(item.across * kUnitsPerInch, baseline), Shown(item.text));
    }
    painter.restore();
}

bool RunsOffTheSheet(const PrintedPage& page) {
    const QSizeF paper = SheetInches(page) * kUnitsPerInch;
    return std::ranges::any_of(page.items, [&](const PageItem& item) {
        const QFontMetricsF metrics(FontOf(item));
        const double right = item.across * kUnitsPerInch + metrics.horizontalAdvance(Shown(item.text));
        const double bottom = item.down * kUnitsPerInch + metrics.height();
        return item.across < 0 || item.down < 0 || right > paper.width() || bottom > paper.height();
    });
}

}  // namespace quillmark::desktop
