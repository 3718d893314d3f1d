#include "tools/addresses/address_editor.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "platform/atomic_file.h"

namespace quillmark {

namespace {

constexpr const char* kAlert = "  ALERT";
constexpr std::string_view kGuidance =
    " Fill-in info and click 'ADD' to save in database, or "
    "select a listing and click 'REMOVE' to delete it  (ESC to cancel)";

}  // namespace

AddressEditor::AddressEditor(AddressBook book, AddressBooks books, Dialogs& dialogs)
    : book_(book), books_(std::move(books)), dialogs_(dialogs) {
    state_.title = fmt::format("  Edit Database  -  {}", NameOf(book));
    state_.picInfo = kGuidance;
    state_.cmdAdd.caption = "ADD";
    state_.cmdRemove.caption = "REMOVE";
    for (const BookItem& item : ItemsOf(book)) state_.boxes.push_back({item.placeholder, {}});
    AddressList list = books_.Read(book);
    const std::vector<std::string> faults = list.faults;
    Show(std::move(list));
    ShowFaults(faults);
}

void AddressEditor::ShowFaults(const std::vector<std::string>& faults) {
    if (faults.empty()) return;
    dialogs_.Tell(kAlert,
                  fmt::format("Some lines of the address book cannot be used. They stay in the file as they "
                              "are.\n\n{}",
                              fmt::join(faults, "\n")),
                  DialogIcon::Warning);
}

/// The record clicked stays the one clicked, wherever it stands now.
void AddressEditor::Show(AddressList list) {
    const std::string clicked = state_.selected ? state_.records[*state_.selected] : std::string();
    state_.records = std::move(list.records);
    const auto record = std::find(state_.records.begin(), state_.records.end(), clicked);
    state_.selected.reset();
    if (record != state_.records.end())
        state_.selected = static_cast<std::size_t>(record - state_.records.begin());
    UpdateButtons();
}

void AddressEditor::UpdateButtons() {
    state_.cmdAdd.enabled = std::any_of(state_.boxes.begin(), state_.boxes.end(),
                                        [](const AddressBox& box) { return !box.text.empty(); });
    state_.cmdRemove.enabled = state_.selected.has_value();
}

bool AddressEditor::SetBox(std::size_t box, std::string_view text) {
    if (box >= state_.boxes.size()) return false;
    const BookItem& item = ItemsOf(book_)[box];
    if (text == item.placeholder) text = {};
    state_.boxes[box].text = item.telephone ? BookTelephone(text) : std::string(text);
    UpdateButtons();
    return true;
}

void AddressEditor::FillBoxes(const std::vector<std::string>& items) {
    for (std::size_t box = 0; box < state_.boxes.size(); ++box) state_.boxes[box].text = items[box];
    UpdateButtons();
}

bool AddressEditor::Select(std::size_t line) {
    if (line >= state_.records.size()) return false;
    state_.selected = line;
    FillBoxes(ItemsOfRecord(book_, state_.records[line]));
    return true;
}

bool AddressEditor::Refuse(std::string text, DialogIcon icon) {
    dialogs_.Tell(kAlert, std::move(text), icon);
    return false;
}

bool AddressEditor::Add() {
    if (!state_.cmdAdd.enabled) return false;
    std::vector<std::string> items;
    for (const AddressBox& box : state_.boxes) items.push_back(box.text);
    try {
        AddressBooks::Change change = books_.Add(book_, RecordOf(book_, std::move(items)));
        Show(std::move(change.list));
        return change.made || Refuse(kEntryExists, DialogIcon::Information);
    } catch (const AddressRecordError& error) {
        return Refuse(error.what());
    } catch (const FileError& error) {
        return Refuse(error.what());
    }
}

bool AddressEditor::Remove() {
    if (!state_.cmdRemove.enabled) return false;
    try {
        AddressBooks::Change change = books_.Remove(book_, state_.records[*state_.selected]);
        state_.selected.reset();
        Show(std::move(change.list));
        FillBoxes(std::vector<std::string>(state_.boxes.size()));
        return change.made;
    } catch (const FileError& error) {
        return Refuse(error.what());
    }
}

}  // namespace quillmark
