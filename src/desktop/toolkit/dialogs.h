#pragma once

#include <QPointer>
#include <QWidget>

#include "desktop/toolkit/side_window.h"
#include "platform/dialogs.h"

class QLineEdit;

namespace quillmark::desktop {

/// Message and input boxes, shown over the window that is in use. A box that comes while another one stands
/// open is shown over it.
class QtDialogs final : public Dialogs {
 public:
    explicit QtDialogs(QWidget* parent = nullptr) : parent_(parent) {}
    /// The window that boxes belong to while no side window stands open.
    void SetParent(QWidget* parent) { parent_ = parent; }

    /// Enter presses the default button; Escape and closing press Cancel where there is one, or the only
    /// button. A question with neither stays until it is answered.
    DialogButton Show(const MessageDialog& box) override;
    /// The box opens with its text selected; Enter accepts it, Escape and closing cancel.
    std::optional<std::string> Ask(const InputDialog& box) override;

 private:
    QWidget* Owner() const;

    QPointer<QWidget> parent_;
};

/// The box that asks for one line of text.
class InputWindow final : public SideWindow {
 public:
    InputWindow(QWidget* parent, const InputDialog& box);

    std::string Text() const;

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    QLineEdit* edit_;
};

}  // namespace quillmark::desktop
