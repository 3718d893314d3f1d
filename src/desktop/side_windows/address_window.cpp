#include "desktop/side_windows/address_window.h"

#include <QFormLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/side_window.h"
#include "desktop/toolkit/text.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

namespace {

/// "< attorney firm name >" names the box "Attorney firm name".
std::string NameOfBox(std::string_view placeholder) {
    std::string name = Utf8(Shown(placeholder).remove(QLatin1Char('<')).remove(QLatin1Char('>')).trimmed());
    if (!name.empty())
        name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
    return name;
}

}  // namespace

AddressWindow::AddressWindow(AddressEditor& editor, QWidget* parent)
    : SideWindow(parent, editor.State().title), editor_(editor) {
    setObjectName(QStringLiteral("AddressEditor"));
    Mnemonics keys;
    cmdAdd_ = NewButton(editor_.State().cmdAdd, keys);
    cmdRemove_ = NewButton(editor_.State().cmdRemove, keys);
    auto* form = new QFormLayout;
    for (std::size_t i = 0; i < editor_.State().boxes.size(); ++i) AddBox(*form, i, keys);
    records_ = new LinesView(editor_.State().records, QStringLiteral("Records"), this);
    auto* caption = new QLabel(keys.Mark("Listings"), this);
    caption->setBuddy(records_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdAdd_);
    buttons->addWidget(cmdRemove_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);
    layout->addWidget(caption);
    layout->addWidget(records_, 1);
    layout->addWidget(NewGuidance(this, editor_.State().picInfo));
    On(cmdAdd_, &QPushButton::clicked, this, [this] { Run(&AddressEditor::Add); });
    On(cmdRemove_, &QPushButton::clicked, this, [this] { Run(&AddressEditor::Remove); });
    On(records_, &LinesView::LineSelected, this, [this](int line) {
        editor_.Select(static_cast<std::size_t>(line));
        Refresh();
    });
    records_->installEventFilter(this);
    setTabOrder(boxes_.back(), cmdAdd_);
    setTabOrder(cmdAdd_, cmdRemove_);
    setTabOrder(cmdRemove_, records_);
    Refresh();
    boxes_.front()->setFocus();
    ResizeTo(90, 36);
}

void AddressWindow::AddBox(QFormLayout& form, std::size_t number, Mnemonics& keys) {
    const QString placeholder = Shown(editor_.State().boxes[number].placeholder);
    const std::string name = NameOfBox(editor_.State().boxes[number].placeholder);
    auto* box = new QLineEdit(this);
    box->setPlaceholderText(placeholder);
    Describe(box, Shown(name));
    auto* caption = new QLabel(keys.Mark(name), this);
    caption->setBuddy(box);
    form.addRow(caption, box);
    boxes_.push_back(box);
    On(box, &QLineEdit::textEdited, this, [this, number](const QString& text) { Type(number, text); });
    On(box, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
}

QPushButton* AddressWindow::NewButton(const Button& button, Mnemonics& keys) {
    auto* widget = new QPushButton(this);
    widget->setAutoDefault(false);
    Caption(widget, button, keys);
    return widget;
}

void AddressWindow::Type(std::size_t box, const QString& text) {
    editor_.SetBox(box, Utf8(text));
    Refresh();
}

void AddressWindow::Run(bool (AddressEditor::*command)()) {
    records_->Update([&] { (editor_.*command)(); });
    Refresh();
}

void AddressWindow::Refresh() {
    const AddressEditorState& state = editor_.State();
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const QString text = Shown(state.boxes[i].text);
        if (boxes_[i]->text() != text) boxes_[i]->setText(text);
    }
    ShowButton(cmdAdd_, state.cmdAdd);
    ShowButton(cmdRemove_, state.cmdRemove);
}

bool AddressWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool removes =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete;
    if (watched != records_ || !removes) return SideWindow::eventFilter(watched, event);
    Guarded(this, [this] { Run(&AddressEditor::Remove); });
    return true;
}

void ShowAddressEditor(AddressBook book, MainScreen& screen, QWidget* parent) {
    AddressWindow(screen.OpenAddresses(book), parent).exec();
    screen.CloseAddresses();
}

}  // namespace quillmark::desktop
