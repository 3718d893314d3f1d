#include "desktop/toolkit/side_window.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

int WidthOfTitle(const QWidget& window) {
    constexpr int kFrame = 150;  // pixels for icon and buttons
    QFont font = window.font();
    font.setBold(true);
    const int wanted = QFontMetrics(font).horizontalAdvance(window.windowTitle()) + kFrame;
    return std::min(wanted, window.screen()->availableSize().width() * 9 / 10);
}

SideWindow::SideWindow(QWidget* parent, std::string_view title) : QDialog(parent) {
    setAttribute(Qt::WA_WindowPropagation);
    setWindowTitle(Shown(title));
    Describe(this, Shown(title));
    setModal(true);
    setMinimumWidth(WidthOfTitle(*this));
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
