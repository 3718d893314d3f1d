#include "desktop/panels/view_controls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>

#include "desktop/toolkit/controls.h"

namespace quillmark::desktop {

ViewControls::ViewControls(Appearance& appearance, QWidget* parent)
    : QWidget(parent), appearance_(appearance) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addWidget(MakeStep(QStringLiteral("−"), tr("Smaller (Ctrl+−)"), -1));
    lblResize_ = MakeStep({}, tr("Size: click for larger, right-click for smaller, Ctrl+0 for 100 %"), 1);
    lblResize_->setObjectName(QStringLiteral("lblResize"));
    lblResize_->installEventFilter(this);
    layout->addWidget(lblResize_);
    layout->addWidget(MakeStep(QStringLiteral("+"), tr("Larger (Ctrl++)"), 1));
    layout->addSpacing(8);
    Slider1_ = new QSlider(Qt::Horizontal, this);
    Slider1_->setObjectName(QStringLiteral("Slider1"));
    Slider1_->setRange(0, Appearance::kDarkest);
    Slider1_->setPageStep(2);
    Slider1_->setFixedWidth(60);
    Slider1_->setToolTip(tr("dims the windows"));
    Describe(Slider1_, tr("Dimming"), tr("dims the windows"));
    layout->addWidget(Slider1_);
    connect(Slider1_, &QSlider::valueChanged, this, [this](int value) {
        if (appearance_.SetDimming(value)) Q_EMIT Dimmed();
    });
    ShowScale();
}

QToolButton* ViewControls::MakeStep(const QString& text, const QString& name, int direction) {
    auto* button = new QToolButton(this);
    button->setText(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(name);
    Describe(button, name);
    connect(button, &QToolButton::clicked, this, [this, direction] { Resize(direction); });
    return button;
}

bool ViewControls::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lblResize_ && event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        Resize(-1);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

/// A step that would push the window over the edge of the screen is taken back.
void ViewControls::Resize(int direction) {
    const int before = appearance_.Scale();
    const int scale = direction == 0 ? 100 : before + direction * Appearance::kStep;
    appearance_.SetScale(scale);
    const QSize needed = window()->minimumSizeHint();
    const QSize available = screen()->availableSize();
    const bool fits = needed.width() <= available.width() && needed.height() <= available.height();
    if (!fits && scale > before) appearance_.SetScale(before);
    ShowScale();
}

void ViewControls::Dim(int value) {
    Slider1_->setValue(value);
}

void ViewControls::ShowScale() {
    lblResize_->setText(tr("%1 %").arg(appearance_.Scale()));
}

}  // namespace quillmark::desktop
