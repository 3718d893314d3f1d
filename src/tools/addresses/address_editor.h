#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/address_book_files.h"
#include "platform/dialogs.h"
#include "tools/controls.h"

/// The screen "  Edit Database  -  " of one address book, without its window.
namespace quillmark {

/// What ADD says to a record that is there.
inline constexpr const char* kEntryExists = "Entry Already Exists";

/// An input box. Its placeholder is ghost text: it shows while the box is empty and without the focus.
struct AddressBox {
    std::string_view placeholder;
    std::string text;
};

/// Every control as a plain value under its own name.
struct AddressEditorState {
    std::string title;
    std::string picInfo;  ///< the guidance bar's text
    std::vector<AddressBox> boxes;
    std::vector<std::string> records;     ///< whole lines of the list, in file order
    std::optional<std::size_t> selected;  ///< the record clicked
    Button cmdAdd, cmdRemove;
};

class AddressEditor {
 public:
    /// Opens the screen on one list. Shows a box about lines of the list that are no records. Throws
    /// FileError. `dialogs` must outlive the object.
    AddressEditor(AddressBook book, AddressBooks books, Dialogs& dialogs);

    const AddressEditorState& State() const { return state_; }

    /// Brings a box to this text; telephone numbers take their form. False if there is no such box.
    bool SetBox(std::size_t box, std::string_view text);
    /// Clicks a record: its items go to the boxes. False if there is no such line.
    bool Select(std::size_t line);

    /// `cmdAdd`, `cmdRemove`. False when nothing was written: the button is disabled, the record was there
    /// already (ADD) or no longer (REMOVE), or it failed; a box told which, but for a record that was gone.
    /// The records are then as the file has them, other users' changes included.
    bool Add();
    bool Remove();

 private:
    void Show(AddressList list);
    void ShowFaults(const std::vector<std::string>& faults);
    void FillBoxes(const std::vector<std::string>& items);
    void UpdateButtons();
    bool Refuse(std::string text, DialogIcon icon = DialogIcon::Warning);

    AddressBook book_;
    AddressBooks books_;
    Dialogs& dialogs_;
    AddressEditorState state_;
};

}  // namespace quillmark
