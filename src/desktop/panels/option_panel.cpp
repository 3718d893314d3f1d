#include "desktop/panels/option_panel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <vector>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

struct OptionGroup {
    const char* title;
    std::vector<std::pair<int, const char*>> options;  ///< number and caption
    int row, column, width;                            ///< place in the panel
};

// clang-format off
const std::vector<OptionGroup> kGroups = {
    {"Sellers",         {{1, "1 Seller"}, {2, "2 Sellers"}},                               0, 0, 1},
    {"Seller is",       {{3, "Person"}, {4, "Entity"}},                                    0, 1, 1},
    {"Buyers",          {{5, "1 Buyer"}, {6, "2 Buyers"}},                                 1, 0, 1},
    {"Payoffs",         {{7, "1 Payoff"}, {8, "2 Payoffs"}},                               1, 1, 1},
    {"Property type",   {{9, "Condo"}, {10, "Commercial"}, {13, "Land / Multi-Fam"}},      2, 0, 2},
    {"Letterhead",      {{11, "Letterhead"}, {12, "Default"}},                             3, 0, 1},
    {"Seller capacity", {{14, "P.O.A."}, {15, "Estate / Trust"}},                          3, 1, 1},
};
// clang-format on

}  // namespace

void OptionRadio::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT Cleared();
}

void OptionRadio::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        Q_EMIT Cleared();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QRadioButton::keyPressEvent(event);
    }
}

OptionPanel::OptionPanel(Desk& desk, QWidget* parent) : QWidget(parent), desk_(desk) {
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(4);
    for (std::size_t i = 0; i < kGroups.size(); ++i) {
        const OptionGroup& group = kGroups[i];
        layout->addWidget(MakeGroup(i), group.row, group.column, 1, group.width);
    }
}

QWidget* OptionPanel::MakeGroup(std::size_t index) {
    const OptionGroup& group = kGroups[index];
    auto* frame = new QFrame(this);
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    frame->setAccessibleName(tr(group.title));
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(5, 3, 4, 3);
    layout->setSpacing(4);
    for (const auto& [n, caption] : group.options) {
        OptionRadio* option = MakeOption(n, frame);
        option->setText(tr(caption));
        Describe(option, tr(group.title) + QStringLiteral(": ") + tr(caption));
        layout->addWidget(option, 1);
    }
    return frame;
}

OptionRadio* OptionPanel::MakeOption(int n, QWidget* parent) {
    auto* option = new OptionRadio(parent);
    option->setObjectName(QStringLiteral("optConf%1").arg(n));
    option->setAutoExclusive(false);
    QSizePolicy keepsPlace = option->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    option->setSizePolicy(keepsPlace);
    options_[static_cast<std::size_t>(n)] = option;
    connect(option, &QRadioButton::clicked, this,
            [this, n] { desk_.Do([n](MainScreen& screen) { screen.ClickOption(n); }); });
    connect(option, &OptionRadio::Cleared, this,
            [this, n] { desk_.Do([n](MainScreen& screen) { screen.DoubleClickOption(n); }); });
    return option;
}

void OptionPanel::Show() {
    const ScreenState& state = desk_.State();
    for (int n = 1; n <= kOptions; ++n) {
        const OptionButton& option = state.options[static_cast<std::size_t>(n)];
        OptionRadio* widget = options_[static_cast<std::size_t>(n)];
        widget->setEnabled(option.enabled);
        widget->setVisible(option.visible);
        widget->setChecked(state.job.optConf(n));
        const QString tip = Shown(option.tooltip).trimmed();
        if (widget->toolTip() == tip) continue;
        widget->setToolTip(tip);
        widget->setAccessibleDescription(tip);
    }
}

}  // namespace quillmark::desktop
