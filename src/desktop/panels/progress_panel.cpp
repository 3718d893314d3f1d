#include "desktop/panels/progress_panel.h"

#include <QGuiApplication>
#include <QVBoxLayout>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr int kSteps = 1000;  ///< of the bar, whose own values are whole numbers

}  // namespace

ProgressPanel::ProgressPanel(Desk& desk, QWidget* ground) : QFrame(ground), desk_(desk) {
    setObjectName(QStringLiteral("ProgressBar1"));
    setFrameStyle(QFrame::Box);
    setAutoFillBackground(true);
    auto* title = new QLabel(tr("Making the documents. Please wait ..."), this);
    bar_ = new QProgressBar(this);
    bar_->setRange(0, kSteps);
    bar_->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    Describe(bar_, tr("Progress"), tr("how many documents are done"));
    message_ = new QLabel(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(title);
    layout->addWidget(bar_);
    layout->addWidget(message_);
    hide();
}

void ProgressPanel::Show() {
    const ScreenState& state = desk_.State();
    ShowPointer(state.waiting);
    const bool shown = state.waiting || state.progress.visible;
    if (shown) {
        const double maximum = std::max(state.progress.maximum, 1.0);
        bar_->setValue(static_cast<int>(kSteps * state.progress.value / maximum));
        message_->setText(Shown(state.message).trimmed());
        adjustSize();
        move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
        raise();
    }
    setVisible(shown);
}

void ProgressPanel::ShowPointer(bool waiting) {
    if (waiting == pointerWaits_) return;
    pointerWaits_ = waiting;
    if (waiting)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

}  // namespace quillmark::desktop
