#pragma once

#include <QRadioButton>
#include <QWidget>
#include <array>

#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// An option button that asks for what it shows: a click sets nothing by itself.
class OptionRadio final : public QRadioButton {
    Q_OBJECT

 public:
    using QRadioButton::QRadioButton;

 Q_SIGNALS:
    /// A double click, or Delete or Backspace: the group is to have none.
    void Cleared();

 protected:
    void nextCheckState() override {}
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// The fifteen options of the job in their seven groups.
class OptionPanel final : public QWidget {
    Q_OBJECT

 public:
    OptionPanel(Desk& desk, QWidget* parent);

    void Show();

 private:
    QWidget* MakeGroup(std::size_t group);
    OptionRadio* MakeOption(int n, QWidget* parent);

    Desk& desk_;
    std::array<OptionRadio*, kOptions + 1> options_ = {};  ///< by number
};

}  // namespace quillmark::desktop
