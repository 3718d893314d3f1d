#include "desktop/panels/name_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

NamePanel::NamePanel(Desk& desk, MainButtons& buttons, const Appearance& appearance, QWidget* parent)
    : QWidget(parent), desk_(desk), appearance_(appearance) {
    label_ = new QLabel(tr("Name of File / &Document Set"), this);
    txtJobName_ = new QLineEdit(this);
    txtJobName_->setObjectName(QStringLiteral("txtJobName"));
    Describe(txtJobName_, tr("Name of File / Document Set"),
             tr("names a new job; DEFAULTS and Enter opens the firm's settings, BACKUP the backup"));
    txtJobName_->installEventFilter(this);
    label_->setBuddy(txtJobName_);
    auto* head = new QHBoxLayout;
    head->addWidget(label_, 1);
    head->addWidget(buttons.Make("cmdSelect", this));
    head->addWidget(buttons.Make("cmdNameAs", this));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(head);
    layout->addWidget(txtJobName_);
    connect(txtJobName_, &QLineEdit::textEdited, this, [this](const QString& text) {
        desk_.Do([&](MainScreen& screen) { screen.EditName(Utf8(text)); });
        if (!text.isEmpty() && desk_.State().txtJobName.text.empty()) Q_EMIT LedElsewhere();
    });
}

bool NamePanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            desk_.Do([](MainScreen& screen) { screen.EnterName(); });
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void NamePanel::Show() {
    const NameBox& box = desk_.State().txtJobName;
    const QString text = box.noSave ? QStringLiteral("<< NO SAVE >>") : Shown(box.text);
    if (txtJobName_->text() != text) txtJobName_->setText(text);
    txtJobName_->setReadOnly(box.locked);
    txtJobName_->setEnabled(box.enabled);
    txtJobName_->setAlignment(box.noSave ? Qt::AlignCenter : Qt::AlignLeft);
    ShowColours(box);
}

void NamePanel::ShowColours(const NameBox& box) {
    QPalette own;
    if (box.noSave) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            own.setColor(group, QPalette::Text, appearance_.Colours().alarm);
    }
    if (txtJobName_->palette().color(QPalette::Text) != own.color(QPalette::Text) || box.noSave)
        txtJobName_->setPalette(own);
}

}  // namespace quillmark::desktop
