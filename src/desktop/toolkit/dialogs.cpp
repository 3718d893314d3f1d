#include "desktop/toolkit/dialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr int kLinesInBox = 20;  ///< a longer text has its end behind the button for details

QMessageBox::StandardButton ButtonOf(DialogButton button) {
    switch (button) {
        case DialogButton::OK:
            return QMessageBox::Ok;
        case DialogButton::Cancel:
            return QMessageBox::Cancel;
        case DialogButton::Yes:
            return QMessageBox::Yes;
        case DialogButton::No:
            return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(DialogIcon icon) {
    switch (icon) {
        case DialogIcon::None:
            return QMessageBox::NoIcon;
        case DialogIcon::Question:
            return QMessageBox::Question;
        case DialogIcon::Information:
            return QMessageBox::Information;
        case DialogIcon::Warning:
            return QMessageBox::Warning;
        case DialogIcon::Stop:
            return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

void SetTextOf(QMessageBox& window, const QString& text) {
    window.setTextFormat(Qt::PlainText);
    const QStringList lines = text.split(QLatin1Char('\n'));
    window.setText(lines.mid(0, kLinesInBox).join(QLatin1Char('\n')));
    if (lines.size() > kLinesInBox) window.setDetailedText(text);
    Describe(&window, window.windowTitle(), text);
}

/// What leaving the box without an answer means: Cancel, or the box's only button. Nothing for a question
/// that has to be answered.
std::optional<DialogButton> EscapeButtonOf(const MessageDialog& box) {
    const auto cancel = std::find(box.buttons.begin(), box.buttons.end(), DialogButton::Cancel);
    if (cancel != box.buttons.end()) return *cancel;
    return box.buttons.size() == 1 ? std::optional(box.buttons.front()) : std::nullopt;
}

/// A box that Escape and the window's close button leave only where there is a button for that.
class Box final : public QMessageBox {
 public:
    Box(QWidget* parent, std::optional<DialogButton> escape) : QMessageBox(parent), stays_(!escape) {
        setWindowFlag(Qt::WindowCloseButtonHint, !stays_);
    }

 protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (stays_ && event->matches(QKeySequence::Cancel)) return;
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (stays_) return event->ignore();
        QMessageBox::closeEvent(event);
    }

 private:
    bool stays_;
};

/// The toolkit leaves less room for the title than the frames of most desktops take.
void FitTitleOf(QMessageBox& window) {
    auto* grid = qobject_cast<QGridLayout*>(window.layout());
    if (!grid) return;
    grid->addItem(new QSpacerItem(WidthOfTitle(window), 0), grid->rowCount(), 0, 1, grid->columnCount());
}

/// The pointer of a long action gives way while a box waits for the person.
class AnsweringPointer {
 public:
    AnsweringPointer() : waiting_(QGuiApplication::overrideCursor() != nullptr) {
        if (waiting_) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~AnsweringPointer() {
        if (waiting_) QGuiApplication::restoreOverrideCursor();
    }
    AnsweringPointer(const AnsweringPointer&) = delete;
    AnsweringPointer& operator=(const AnsweringPointer&) = delete;

 private:
    bool waiting_;
};

}  // namespace

QWidget* QtDialogs::Owner() const {
    QWidget* inUse = QApplication::activeModalWidget();
    return inUse ? inUse : parent_.data();
}

DialogButton QtDialogs::Show(const MessageDialog& box) {
    const AnsweringPointer pointer;
    const std::optional<DialogButton> escape = EscapeButtonOf(box);
    Box window(Owner(), escape);
    window.setAttribute(Qt::WA_WindowPropagation);
    window.setWindowTitle(Shown(box.title));
    window.setIcon(IconOf(box.icon));
    SetTextOf(window, Shown(box.text));
    for (const DialogButton button : box.buttons) {
        QPushButton* added = window.addButton(ButtonOf(button));
        Describe(added, Shown(CaptionOf(button)), Shown(box.text));
    }
    window.setDefaultButton(ButtonOf(box.defaultButton));
    if (escape) window.setEscapeButton(ButtonOf(*escape));
    FitTitleOf(window);
    const int pressed = window.exec();
    for (const DialogButton button : box.buttons)
        if (ButtonOf(button) == pressed) return button;
    return escape.value_or(DialogButton::No);  // the program itself is ending
}

std::optional<std::string> QtDialogs::Ask(const InputDialog& box) {
    const AnsweringPointer pointer;
    InputWindow window(Owner(), box);
    if (window.exec() != QDialog::Accepted) return std::nullopt;
    return window.Text();
}

InputWindow::InputWindow(QWidget* parent, const InputDialog& box) : SideWindow(parent, box.title) {
    auto* text = new QLabel(Shown(box.text), this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    edit_ = new QLineEdit(Shown(box.proposed), this);
    edit_->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    edit_->selectAll();
    Describe(edit_, Shown(box.text), Shown(box.title));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QAbstractButton* button : buttons->buttons())
        Describe(button, button->text().remove(QLatin1Char('&')), Shown(box.text));
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(text), static_cast<QWidget*>(edit_)})
        layout->addWidget(widget);
    layout->addStretch();
    layout->addWidget(buttons);
    edit_->setFocus();
}

std::string InputWindow::Text() const {
    return Utf8(edit_->text());
}

void InputWindow::keyPressEvent(QKeyEvent* event) {
    QDialog::keyPressEvent(event);  // Enter presses OK wherever the focus is
}

}  // namespace quillmark::desktop
