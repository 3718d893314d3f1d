#pragma once

#include <map>
#include <string>
#include <vector>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"
#include "tools/custom_forms/custom_forms_window.h"

class QBoxLayout;
class QLineEdit;
class QPushButton;
class QTimer;

namespace quillmark {
class MainScreen;
}

namespace quillmark::desktop {

class LinesView;

/// The custom forms manager as a person sees it. Beside what the manager has of its own it lets a file be
/// chosen in the system's way, and narrows the list of markers by a search text.
class CustomFormsDialog final : public SideWindow {
 public:
    /// `model` must outlive the window.
    CustomFormsDialog(CustomFormsWindow& model, QWidget* parent);

    void reject() override;

 private:
    /// A list of the manager under its control's name.
    struct Pane {
        std::vector<std::string> lines;
        std::vector<std::size_t> entries;  ///< of the control, one for each line
        LinesView* view = nullptr;
        QWidget* box = nullptr;
    };

    void AddPane(const char* control, const char* caption, QBoxLayout& layout, int stretch, Mnemonics& keys);
    void AddSource(QBoxLayout& layout, Mnemonics& keys);
    void AddButtons(QBoxLayout& layout, Mnemonics& keys);
    void Arrange(Mnemonics& keys);
    void CopyMarker();
    void ChooseFile();
    template <class Act>
    void Do(Act act);
    void Refresh();
    void ShowPane(const WindowControl& control, Pane& pane);

    CustomFormsWindow& model_;
    std::map<std::string, Pane> panes_;
    std::map<std::string, QPushButton*> buttons_;
    QLabel* hint_;
    QLabel* Text1_;
    QLineEdit* search_;
    QLineEdit* txtSourceFile_;
    QWidget* source_;
    QTimer* Timer1_;
    bool showing_ = false;
};

/// Shows the manager that the main screen has opened, until it is left; `source` stands in its box of the
/// document to be imported.
void ShowCustomForms(MainScreen& screen, QWidget* parent, const QString& source = {});

}  // namespace quillmark::desktop
