#include "desktop/grid/pop_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr int kMostLines = 10;

}  // namespace

PopList::PopList(const QString& objectName, const QString& name, QWidget* parent) : QListWidget(parent) {
    setObjectName(objectName);
    setUniformItemSizes(true);
    setFocusPolicy(Qt::ClickFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // it would lie over the last line
    setTextElideMode(Qt::ElideRight);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    Describe(this, name, tr("Enter picks the line, Escape closes the list"));
    hide();
}

void PopList::ShowLines(const std::vector<std::string>& lines, std::size_t current) {
    typeAhead_.Forget();
    if (lines == lines_) return;
    lines_ = lines;
    clear();
    for (const std::string& line : lines) {
        addItem(Shown(line).trimmed());
        item(count() - 1)->setToolTip(item(count() - 1)->text());
    }
    if (count() > 0) setCurrentRow(static_cast<int>(std::min(current, lines.size() - 1)));
}

QSize PopList::WantedSize() const {
    const int line = std::max(sizeHintForRow(0), fontMetrics().height());
    const int frame = 2 * frameWidth() + 2;
    const int bar = count() > kMostLines ? verticalScrollBar()->sizeHint().width() : 0;
    return {sizeHintForColumn(0) + frame + bar, line * std::clamp(count(), 1, kMostLines) + frame};
}

void PopList::keyboardSearch(const QString& letter) {
    const int line = typeAhead_.Search(*model(), currentRow(), letter);
    if (line >= 0) setCurrentRow(line);
}

bool PopList::TakeKey(int key) {
    const QString line = currentItem() ? currentItem()->text() : QString();
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Q_EMIT KeyPressed(EditorKey::Enter, line);
            return true;
        case Qt::Key_Tab:
            Q_EMIT KeyPressed(EditorKey::Tab, line);
            return true;
        case Qt::Key_Escape:
            Q_EMIT KeyPressed(EditorKey::Escape, line);
            return true;
        default:
            return false;
    }
}

bool PopList::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress && TakeKey(static_cast<QKeyEvent*>(event)->key())) return true;
    return QListWidget::event(event);
}

void PopList::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    const QListWidgetItem* item = itemAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && item) Q_EMIT Picked(row(item));
}

}  // namespace quillmark::desktop
