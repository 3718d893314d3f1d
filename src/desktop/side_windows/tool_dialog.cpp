#include "desktop/side_windows/tool_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

void ShowTip(QWidget* widget, const WindowControl& control) {
    widget->setToolTip(Shown(control.tooltip).trimmed());
    widget->setAccessibleDescription(widget->toolTip());
}

void ShowItems(QComboBox* box, const WindowControl& control) {
    QStringList items;
    for (const std::string& item : control.items) items.push_back(Shown(item));
    QStringList shown;
    for (int i = 0; i < box->count(); ++i) shown.push_back(box->itemText(i));
    if (items != shown) {
        box->clear();
        box->addItems(items);
    }
    box->setCurrentIndex(control.index ? static_cast<int>(*control.index) : -1);
}

}  // namespace

ToolDialog::ToolDialog(quillmark::SideWindow& model, QWidget* parent)
    : SideWindow(parent, model.Title()), model_(model) {}

template <class Widget>
Widget* ToolDialog::Bind(Widget* widget, const char* control,
                         std::function<void(const WindowControl&)> show) {
    widget->setObjectName(QString::fromLatin1(control));
    bound_[control] = {.widget = widget, .show = std::move(show)};
    return widget;
}

QLineEdit* ToolDialog::NewBox(const char* control, const char* spoken, Commit when) {
    auto* box = new QLineEdit(this);
    Describe(box, QString::fromLatin1(spoken));
    const auto commit = [this, control, box] {
        if (showing_ || Utf8(box->text()) == model_.Control(control).text) return;
        Do([&] { model_.SetText(control, Utf8(box->text())); });
    };
    if (when == Commit::EachKey)
        On(box, &QLineEdit::textEdited, this, commit);
    else
        On(box, &QLineEdit::editingFinished, this, commit);
    return Bind(box, control, [box](const WindowControl& shown) {
        if (box->text() != Shown(shown.text)) box->setText(Shown(shown.text));
    });
}

QComboBox* ToolDialog::NewCombo(const char* control, const char* spoken) {
    auto* box = new QComboBox(this);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Describe(box, QString::fromLatin1(spoken));
    On(box, &QComboBox::activated, this,
       [this, control](int entry) { Do([&] { model_.Pick(control, static_cast<std::size_t>(entry)); }); });
    return Bind(box, control, [box](const WindowControl& shown) { ShowItems(box, shown); });
}

LinesView* ToolDialog::NewList(const char* control, const char* spoken) {
    std::vector<std::string>& lines = lines_[control];
    auto* list = new LinesView(lines, QString::fromLatin1(spoken), this);
    On(list, &LinesView::LineSelected, this, [this, control](int line) {
        if (!showing_) Do([&] { model_.Pick(control, static_cast<std::size_t>(line)); });
    });
    return Bind(list, control, [list, &lines](const WindowControl& shown) {
        if (lines != shown.items) list->Update([&] { lines = shown.items; });
        if (!shown.index)
            list->clearSelection();
        else if (list->Line() != static_cast<int>(*shown.index))
            list->SelectLine(static_cast<int>(*shown.index));
    });
}

QCheckBox* ToolDialog::NewCheck(const char* control) {
    const std::string caption = model_.Control(control).text;
    auto* box = new QCheckBox(keys_.Mark(caption), this);
    Describe(box, Shown(caption));
    On(box, &QCheckBox::clicked, this, [this, control](bool on) { Do([&] { model_.Tick(control, on); }); });
    return Bind(box, control, [box](const WindowControl& shown) { box->setChecked(shown.checked); });
}

QRadioButton* ToolDialog::NewOption(const char* control) {
    const std::string caption = model_.Control(control).text;
    auto* option = new QRadioButton(keys_.Mark(caption), this);
    Describe(option, Shown(caption));
    On(option, &QRadioButton::clicked, this, [this, control] { Do([&] { model_.Tick(control, true); }); });
    return Bind(option, control, [option](const WindowControl& shown) { option->setChecked(shown.checked); });
}

QPushButton* ToolDialog::NewButton(const char* control) {
    const std::string caption = model_.Control(control).text;
    auto* button = new QPushButton(keys_.Mark(caption), this);
    button->setAutoDefault(false);
    Describe(button, Shown(caption));
    On(button, &QPushButton::clicked, this, [this, control] { Do([&] { model_.Click(control); }); });
    return Bind(button, control, [](const WindowControl&) {});
}

QLabel* ToolDialog::NewLabel(const char* control) {
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return Bind(label, control, [label](const WindowControl& shown) { label->setText(Shown(shown.text)); });
}

QLabel* ToolDialog::NewCaption(const char* text, const char* control) {
    auto* caption = new QLabel(keys_.Mark(text), this);
    Bound& bound = bound_.at(control);
    caption->setBuddy(bound.widget);
    bound.caption = caption;
    return caption;
}

void ToolDialog::Refresh() {
    showing_ = true;
    for (const WindowControl& control : model_.Controls()) {
        const auto found = bound_.find(control.name);
        if (found == bound_.end()) continue;
        const Bound& bound = found->second;
        bound.show(control);
        ShowTip(bound.widget, control);
        bound.widget->setEnabled(control.enabled);
        bound.widget->setVisible(control.visible);
        if (!bound.caption) continue;
        bound.caption->setEnabled(control.enabled);
        bound.caption->setVisible(control.visible);
    }
    Follow();
    showing_ = false;
}

void ToolDialog::OrderTabs() {
    QWidget* previous = nullptr;
    for (const WindowControl& control : model_.Controls()) {
        const auto found = bound_.find(control.name);
        if (found == bound_.end() || found->second.widget->focusPolicy() == Qt::NoFocus) continue;
        QWidget* next = found->second.widget;
        if (previous)
            setTabOrder(previous, next);
        else
            next->setFocus();
        previous = next;
    }
}

void ToolDialog::reject() {
    Guarded(this, [this] { model_.Close(); });
    if (!model_.IsOpen()) QDialog::reject();
}

}  // namespace quillmark::desktop
