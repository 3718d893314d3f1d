#include "desktop/toolkit/side_window.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QScreen>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

SideWindow::SideWindow(QWidget* parent, std::string_view title) : QDialog(parent) {
    setAttribute(Qt::WA_WindowPropagation);
    setWindowTitle(Shown(title));
    Describe(this, Shown(title));
    setModal(true);
}

void SideWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QDialog::keyPressEvent(event);
    if (auto* button = qobject_cast<QAbstractButton*>(focusWidget())) button->click();
}

void SideWindow::ResizeTo(int columns, int lines) {
    const QSize wanted(fontMetrics().averageCharWidth() * columns, fontMetrics().lineSpacing() * lines);
    resize(wanted.expandedTo(minimumSizeHint()).boundedTo(screen()->availableSize() * 9 / 10));
}

}  // namespace quillmark::desktop
