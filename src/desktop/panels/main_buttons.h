#pragma once

#include <QPushButton>
#include <array>
#include <string_view>
#include <vector>

#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/desk.h"

/// The command buttons of the main screen, by their control names.
namespace quillmark::desktop {

/// Makes a row of buttons show their state, and tells of their clicks.
class MainButtons final : public QObject {
    Q_OBJECT

 public:
    MainButtons(Desk& desk, const Appearance& appearance, QObject* parent);

    /// A new button for the control of that name, such as "cmdOpen".
    QPushButton* Make(std::string_view name, QWidget* parent);
    void Show();

 Q_SIGNALS:
    void Pressed(std::string_view name);

 private:
    struct Made {
        std::string_view name;
        const Button ScreenState::*state;
        QPushButton* widget;
    };

    void ShowOne(const Made& made) const;

    Desk& desk_;
    const Appearance& appearance_;
    std::vector<Made> made_;
};

/// The caption with the mark of its mnemonic.
QString MarkedCaption(std::string_view caption);

}  // namespace quillmark::desktop
