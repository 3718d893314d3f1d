#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>

#include "desktop/panels/document_panel.h"

/// The job list: its order and its paper.
namespace quillmark::desktop {

void JobList::keyPressEvent(QKeyEvent* event) {
    const bool moves = event->modifiers() == Qt::AltModifier;
    if (moves && event->key() == Qt::Key_Up) return MoveBy(-1);
    if (moves && event->key() == Qt::Key_Down) return MoveBy(1);
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) {
        if (currentRow() >= 0) Q_EMIT LegalToggled(currentRow());
        return;
    }
    DocumentList::keyPressEvent(event);
}

void JobList::MoveBy(int step) {
    const int to = currentRow() + step;
    if (currentRow() >= 0 && to >= 0 && to < count()) Q_EMIT Moved(currentRow(), to);
}

/// -1 for none.
int JobList::LineAt(const QPoint& point) const {
    const QListWidgetItem* item = itemAt(point);
    return item ? row(item) : -1;
}

/// The place between two lines that is nearest: 0 before the first.
int JobList::GapAt(const QPoint& point) const {
    for (int line = 0; line < count(); ++line)
        if (point.y() < visualItemRect(item(line)).center().y()) return line;
    return count();
}

void JobList::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressed_ = LineAt(event->position().toPoint());
    from_ = event->position().toPoint();
    if (pressed_ >= 0) setCurrentRow(pressed_, QItemSelectionModel::NoUpdate);
}

void JobList::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (pressed_ < 0 || !(event->buttons() & Qt::LeftButton)) return;
    if (gap_ < 0 && (point - from_).manhattanLength() < QApplication::startDragDistance()) return;
    ScrollAtTheEdge(point);
    gap_ = GapAt(point);
    viewport()->setCursor(Qt::ClosedHandCursor);
    viewport()->update();
}

void JobList::ScrollAtTheEdge(const QPoint& point) {
    if (point.y() < 0) verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    if (point.y() > viewport()->height())
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
}

/// A click that has dragged nothing is about the paper.
void JobList::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || pressed_ < 0) return;
    const int line = std::exchange(pressed_, -1);
    const int gap = std::exchange(gap_, -1);
    viewport()->unsetCursor();
    viewport()->update();
    if (gap < 0) {
        Q_EMIT LegalToggled(line);
        return;
    }
    const int to = gap > line ? gap - 1 : gap;
    if (to != line) Q_EMIT Moved(line, to);
}

void JobList::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int line = byKey ? currentRow() : LineAt(event->pos());
    if (line < 0) return;
    setCurrentRow(line, QItemSelectionModel::NoUpdate);
    QMenu menu(this);
    QAction* legal = menu.addAction(tr("&Legal paper (8.5 x 14)\tSpace"), this,
                                    [this, line] { Q_EMIT LegalToggled(line); });
    legal->setCheckable(true);
    legal->setChecked(item(line)->data(JobLine::kLegalRole).toBool());
    menu.addSeparator();
    menu.addAction(tr("Move &up\tAlt+Up"), this, [this] { MoveBy(-1); })->setEnabled(line > 0);
    menu.addAction(tr("Move &down\tAlt+Down"), this, [this] { MoveBy(1); })->setEnabled(line + 1 < count());
    menu.addSeparator();
    menu.addAction(tr("&Take off the list\tDel"), this, [this, line] { OpenLine(line); });
    menu.exec(byKey ? viewport()->mapToGlobal(visualItemRect(item(line)).bottomLeft()) : event->globalPos());
}

void JobList::paintEvent(QPaintEvent* event) {
    DocumentList::paintEvent(event);
    if (gap_ < 0) return;
    const int y =
        gap_ < count() ? visualItemRect(item(gap_)).top() : visualItemRect(item(count() - 1)).bottom();
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawLine(0, y, viewport()->width(), y);
}

}  // namespace quillmark::desktop
