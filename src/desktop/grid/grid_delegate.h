#pragma once

#include <QStyledItemDelegate>

#include "desktop/grid/grid_model.h"
#include "desktop/toolkit/appearance.h"

namespace quillmark::desktop {

/// Draws the cells of the field grid: headings, values, and note cells as small switches.
class GridDelegate final : public QStyledItemDelegate {
 public:
    static constexpr int kPadding = 6;  ///< between a cell's edge and its text

    GridDelegate(const GridModel& model, const Desk& desk, const Appearance& appearance, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

 private:
    void DrawHeading(QPainter& painter, const QStyleOptionViewItem& option, const GridRow& row) const;
    void DrawLabel(QPainter& painter, const QStyleOptionViewItem& option, const GridRow& row,
                   bool marked) const;
    void DrawNote(QPainter& painter, const QStyleOptionViewItem& option, const QString& note, bool lit,
                  bool marked) const;
    QColor TextColour(const QStyleOptionViewItem& option, const GridRow& row, bool marked) const;

    const GridModel& model_;
    const Desk& desk_;
    const Appearance& appearance_;
};

}  // namespace quillmark::desktop
