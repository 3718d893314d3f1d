#include "desktop/grid/grid_delegate.h"

#include <QPainter>

namespace quillmark::desktop {

namespace {

constexpr double kNoteFont = 0.85;  ///< of the grid's font

/// Quieter than text, and still readable.
QColor Quiet(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::PlaceholderText);
}

void DrawText(QPainter& painter, const QRect& rect, const QString& text, Qt::Alignment alignment) {
    const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width());
    painter.drawText(rect, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

}  // namespace

GridDelegate::GridDelegate(const GridModel& model, const Desk& desk, const Appearance& appearance,
                           QObject* parent)
    : QStyledItemDelegate(parent), model_(model), desk_(desk), appearance_(appearance) {}

QColor GridDelegate::TextColour(const QStyleOptionViewItem& option, const GridRow& row, bool marked) const {
    if (marked) return appearance_.Colours().activeText;
    return row.locked ? Quiet(option.palette) : option.palette.color(QPalette::Text);
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const GridRow& row = model_.Row(index.row());
    painter->save();
    painter->setFont(option.font);
    if (row.kind == RowKind::Heading) {
        DrawHeading(*painter, option, row);
        painter->restore();
        return;
    }
    const bool marked = desk_.Editor().markedRow == index.row();
    const QPalette& palette = option.palette;
    painter->fillRect(option.rect, marked ? appearance_.Colours().activeRow : palette.color(QPalette::Base));
    painter->setPen(appearance_.Colours().rule);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->setPen(TextColour(option, row, marked));
    const QString text = index.data(Qt::DisplayRole).toString();
    const int column = index.column();
    if (column == GridModel::kLabel)
        DrawLabel(*painter, option, row, marked);
    else if (column == GridModel::kValue)
        DrawText(*painter, option.rect.adjusted(kPadding, 0, -kPadding, 0), text, Qt::AlignLeft);
    else if (!text.isEmpty())
        DrawNote(*painter, option, text, row.lit[static_cast<std::size_t>(column - GridModel::kFirstNote)],
                 marked);
    painter->restore();
}

void GridDelegate::DrawHeading(QPainter& painter, const QStyleOptionViewItem& option,
                               const GridRow& row) const {
    const QPalette& palette = option.palette;
    painter.fillRect(option.rect, appearance_.Colours().heading);
    QFont font = option.font;
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Quiet(palette));
    DrawText(painter, option.rect.adjusted(kPadding, 0, -kPadding, 0), PartsOfLabel(row).text, Qt::AlignLeft);
}

void GridDelegate::DrawLabel(QPainter& painter, const QStyleOptionViewItem& option, const GridRow& row,
                             bool marked) const {
    const LabelParts label = PartsOfLabel(row);
    const int star = painter.fontMetrics().horizontalAdvance(QLatin1Char('*')) + kPadding;
    DrawText(painter, option.rect.adjusted(kPadding, 0, -star - kPadding, 0), label.text, Qt::AlignLeft);
    if (!label.required) return;
    QFont font = option.font;
    font.setBold(true);
    painter.setFont(font);
    if (!marked) painter.setPen(appearance_.Colours().alarm);
    DrawText(painter, option.rect.adjusted(0, 0, -kPadding, 0), QStringLiteral("*"), Qt::AlignRight);
}

void GridDelegate::DrawNote(QPainter& painter, const QStyleOptionViewItem& option, const QString& note,
                            bool lit, bool marked) const {
    const QRect cell = option.rect.adjusted(3, 2, -3, -3);
    const StateColours& colours = appearance_.Colours();
    QFont font = option.font;
    font.setPointSizeF(font.pointSizeF() * kNoteFont);
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor quiet = marked ? colours.activeQuiet : Quiet(option.palette);
    painter.setPen(quiet);
    painter.setBrush(lit ? QBrush(colours.litNote) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(QRectF(cell).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    if (lit) painter.setPen(colours.litText);
    DrawText(painter, cell.adjusted(2, 0, -2, 0), note, Qt::AlignHCenter);
}

}  // namespace quillmark::desktop
