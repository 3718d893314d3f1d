#include "desktop/panels/jump_bar.h"

#include <QEvent>
#include <QHBoxLayout>

namespace quillmark::desktop {

namespace {

constexpr const char* kCaptions[] = {
    "", "ATTORNEY", "SELLER/FIDUCIARY", "BUYER", "PROPERTY/TRANSACTION", "PAYOFF/ESCROW", "ADJUSTMENTS"};

constexpr double kFont = 0.86;  ///< of the window's, so that all six fit beside the documents
const QString kComplete = QStringLiteral(" ✓");

QPalette MarkPalette(const StateColours& colours) {
    QPalette mark;
    mark.setColor(QPalette::Button, colours.jumpMark);
    mark.setColor(QPalette::ButtonText, colours.jumpText);
    return mark;
}

}  // namespace

JumpBar::JumpBar(Desk& desk, const Appearance& appearance, QWidget* parent)
    : QWidget(parent), desk_(desk), appearance_(appearance) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(3);
    for (int g = 1; g <= kLabels; ++g) {
        auto* label = new CompactButton(QLatin1String(kCaptions[g]), this);
        label->setObjectName(QStringLiteral("lblJump%1").arg(g));
        label->setAutoDefault(false);
        label->setShortcut(QKeySequence(Qt::ALT | (Qt::Key_0 + g)));
        label->setToolTip(tr("go to this group (Alt+%1)").arg(g));
        Describe(label, tr("Go to %1").arg(label->text()), label->toolTip());
        connect(label, &QPushButton::clicked, this,
                [this, g] { desk_.Do([g](MainScreen& screen) { screen.ClickJumpLabel(g); }); });
        lblJump_[static_cast<std::size_t>(g)] = label;
        label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
        layout->addWidget(label);
    }
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    FitFont();
}

void JumpBar::FitFont() {
    QFont smaller = font();
    smaller.setPointSizeF(smaller.pointSizeF() * kFont);
    for (std::size_t g = 1; g < lblJump_.size(); ++g) lblJump_[g]->setFont(smaller);
    FitCaptions();
}

QString JumpBar::CaptionOf(std::size_t g, bool complete, bool narrow) const {
    QString caption = QLatin1String(kCaptions[g]);
    if (narrow) caption.replace(QLatin1Char('/'), QLatin1String("/\n"));
    return complete ? caption + kComplete : caption;
}

int JumpBar::WidthNeeded(bool narrow) const {
    int width = (kLabels - 1) * layout()->spacing();
    for (std::size_t g = 1; g < lblJump_.size(); ++g)
        width += lblJump_[g]->WidthOf(CaptionOf(g, true, narrow));
    return width;
}

QSize JumpBar::minimumSizeHint() const {
    return {WidthNeeded(true), QWidget::minimumSizeHint().height()};
}

void JumpBar::FitCaptions() {
    narrow_ = width() < WidthNeeded(false);
    for (std::size_t g = 1; g < lblJump_.size(); ++g) lblJump_[g]->KeepRoomFor(CaptionOf(g, true, narrow_));
    Show();
    layout()->invalidate();
    layout()->activate();
}

void JumpBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    FitCaptions();
}

void JumpBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && lblJump_.back()) FitFont();
}

void JumpBar::Show() {
    for (std::size_t g = 1; g < lblJump_.size(); ++g) {
        const JumpLabel& state = desk_.State().lblJump(g);
        CompactButton* label = lblJump_[g];
        label->setEnabled(state.enabled);
        const QString caption = CaptionOf(g, state.complete && state.enabled, narrow_);
        if (label->text() != caption) {
            const QKeySequence key = label->shortcut();
            label->setText(caption);
            label->setShortcut(key);
        }
        const bool marked = state.current && state.enabled;
        label->setPalette(marked ? MarkPalette(appearance_.Colours()) : QPalette());
    }
}

}  // namespace quillmark::desktop
