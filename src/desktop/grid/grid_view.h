#pragma once

#include <QTableView>

#include "desktop/grid/grid_model.h"
#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// `grdField`: the field grid. Editors lie over it (GridEditors).
class GridView final : public QTableView {
    Q_OBJECT

 public:
    GridView(Desk& desk, const Appearance& appearance, QWidget* parent);

    void Show();
    /// Where a cell stands, in this widget's coordinates; columns from `first` to `last`. Null if the row is
    /// scrolled out of view.
    QRect CellRect(int row, int first, int last) const;

 Q_SIGNALS:
    /// The right mouse button, or the menu key, on a row whose editor is open now, or on one that is locked;
    /// the point is global.
    void MenuWanted(const QPoint& point);
    void LockedMenuWanted(int row, const QPoint& point);
    /// Rows have moved or columns changed their width: what lies over them has to follow.
    void Moved();

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    bool TakeTab(const QKeyEvent& key);
    void MoveCursorTo(int row);
    void MoveCursorByPage(int direction);
    void TypeInRow(QKeyEvent& key);
    void ScrolledTo(int topRow);
    void FitRows();
    void FitColumns();
    void SpanHeadings();
    int RowToStartFrom() const;

    Desk& desk_;
    GridModel model_;
    int marked_ = -1;  ///< the row shown as marked
    int cursor_ = -1;  ///< the row shown as that of the keyboard
    bool showing_ = false;
};

}  // namespace quillmark::desktop
