#pragma once

#include <QString>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/side_window.h"
#include "tools/window/side_window.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace quillmark::desktop {

class LinesView;

/// A side tool's window on the screen: widgets that show the controls of its model and hand on what a person
/// does to them. Whoever derives from it says where they stand.
class ToolDialog : public SideWindow {
 public:
    /// `model` must outlive the window.
    ToolDialog(quillmark::SideWindow& model, QWidget* parent);

    /// Closes the model as its own way out does, and the window with it.
    void reject() override;

 protected:
    enum class Commit {
        EachKey,
        WhenLeft,  ///< where a half-typed text would be taken for another
    };
    // A widget for the control of that name, bound to it; `spoken` is what screen readers call it.
    QLineEdit* NewBox(const char* control, const char* spoken, Commit when = Commit::EachKey);
    QComboBox* NewCombo(const char* control, const char* spoken);
    LinesView* NewList(const char* control, const char* spoken);
    QCheckBox* NewCheck(const char* control);
    QRadioButton* NewOption(const char* control);
    QPushButton* NewButton(const char* control);
    QLabel* NewLabel(const char* control);
    /// A caption that leads to the widget of a control, and shows and hides with it.
    QLabel* NewCaption(const char* text, const char* control);

    /// One act of the person, and what follows of it; the window goes when the model has closed.
    template <class Act>
    void Do(Act act) {
        Guarded(this, act);
        if (!model_.IsOpen()) return QDialog::reject();
        Refresh();
    }
    /// Shows every control as it is now.
    void Refresh();
    /// The Tab key goes from control to control as the model lists them, from the first one that can be used.
    void OrderTabs();
    /// After a refresh: what a window shows besides its controls.
    virtual void Follow() {}

    Mnemonics keys_;

 private:
    struct Bound {
        QWidget* widget = nullptr;
        QLabel* caption = nullptr;
        std::function<void(const WindowControl&)> show = {};
    };

    template <class Widget>
    Widget* Bind(Widget* widget, const char* control, std::function<void(const WindowControl&)> show);

    quillmark::SideWindow& model_;
    std::map<std::string, Bound, std::less<>> bound_;
    std::map<std::string, std::vector<std::string>> lines_;  ///< of the lists
    bool showing_ = false;
};

}  // namespace quillmark::desktop
