#pragma once

#include <vector>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"
#include "tools/addresses/address_editor.h"

class QFormLayout;
class QLineEdit;
class QPushButton;

namespace quillmark {
class MainScreen;
}

namespace quillmark::desktop {

class LinesView;

/// The window over the records of one address book. Enter in a box goes to the next one and, behind the last,
/// to ADD; Delete on a record is REMOVE.
class AddressWindow final : public SideWindow {
 public:
    /// `editor` must outlive the window.
    AddressWindow(AddressEditor& editor, QWidget* parent);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void AddBox(QFormLayout& form, std::size_t number, Mnemonics& keys);
    QPushButton* NewButton(const Button& button, Mnemonics& keys);
    void Type(std::size_t box, const QString& text);
    void Run(bool (AddressEditor::*command)());
    void Refresh();

    AddressEditor& editor_;
    std::vector<QLineEdit*> boxes_;
    LinesView* records_;
    QPushButton* cmdAdd_;
    QPushButton* cmdRemove_;
};

/// Shows the book until its window is closed. Throws FileError where it cannot be read.
void ShowAddressEditor(AddressBook book, MainScreen& screen, QWidget* parent);

}  // namespace quillmark::desktop
