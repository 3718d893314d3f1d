#include "desktop/panels/jump_bar.h"

#include <QHBoxLayout>

#include "desktop/toolkit/controls.h"

namespace quillmark::desktop {

namespace {

constexpr const char* kCaptions[] = {
    "", "ATTORNEY", "SELLER/FIDUCIARY", "BUYER", "PROPERTY/TRANSACTION", "PAYOFF/ESCROW", "ADJUSTMENTS"};

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
    layout->setSpacing(4);
    for (int g = 1; g <= kLabels; ++g) {
        auto* label = new QPushButton(QLatin1String(kCaptions[g]), this);
        label->setObjectName(QStringLiteral("lblJump%1").arg(g));
        label->setAutoDefault(false);
        label->setShortcut(QKeySequence(Qt::ALT | (Qt::Key_0 + g)));
        label->setToolTip(tr("go to this group (Alt+%1)").arg(g));
        Describe(label, tr("Go to %1").arg(label->text()), label->toolTip());
        connect(label, &QPushButton::clicked, this,
                [this, g] { desk_.Do([g](MainScreen& screen) { screen.ClickJumpLabel(g); }); });
        lblJump_[static_cast<std::size_t>(g)] = label;
        label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        layout->addWidget(label);
    }
}

void JumpBar::Show() {
    for (std::size_t g = 1; g < lblJump_.size(); ++g) {
        const JumpLabel& state = desk_.State().lblJump(g);
        QPushButton* label = lblJump_[g];
        label->setEnabled(state.enabled);
        const QString caption = QLatin1String(kCaptions[g]) +
                                (state.complete && state.enabled ? QStringLiteral(" ✓") : QString());
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
