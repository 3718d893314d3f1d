#include <utility>

#include "core/fields.h"
#include "session/main_screen.h"

namespace quillmark {

namespace {}  // namespace

GridSurroundings MainScreen::AroundGrid() {
    return {.focusName = [this] { FocusName(); },
            .beginFieldEntry = [this] { BeginFieldEntry(); },
            .fieldChanged = [this](int n) { FieldChanged(n); },
            .books = [this] { return Books(); },
            .progress = [this] { LetRepaint(); }};
}

void MainScreen::FieldChanged(int n) {
    ShowExit();
    if (n == field::DocumentDate || !screen_.txtJobName.IsSaveable()) return;
    if (screen_.cmdCreate.caption != "Re-Make") screen_.cmdCreate.caption = "CREATE\n+save";
    const bool edits = screen_.ScreenMode == screen_mode::kEdit;
    screen_.cmdOpen = {"SAVE", edits ? " save changes " : " save data only (no docs) ", true, true};
    screen_.cmdPrintFList.visible = false;
    if (!screen_.txtJobName.locked) return;
    screen_.cmdNameAs.caption = "Name As";
    screen_.cmdNameAs.enabled = screen_.cmdNameAs.visible = true;
}

void MainScreen::ClickGrid(int row, int column) {
    editor_.Click(row, column);
}

void MainScreen::DoubleClickGrid(int row, int column) {
    editor_.DoubleClick(row, column);
}

void MainScreen::KeyInGrid(EditorKey key) {
    editor_.KeyInGrid(key);
}

void MainScreen::KeyInEditor(std::string_view character) {
    editor_.KeyInEditor(character);
}

void MainScreen::KeyInEditor(EditorKey key) {
    editor_.KeyInEditor(key);
}

void MainScreen::SetEditorText(EditorText text) {
    editor_.SetEditorText(std::move(text));
}

void MainScreen::SetBlockText(std::string_view text) {
    editor_.SetBlockText({std::string(text), text.size(), 0});
}

void MainScreen::SetBlockText(EditorText text) {
    editor_.SetBlockText(std::move(text));
}

void MainScreen::ClickDay(std::chrono::year_month_day day, bool twice) {
    editor_.ClickDay(day, twice);
}

void MainScreen::KeyInCalendar(EditorKey key, std::chrono::year_month_day day) {
    editor_.KeyInCalendar(key, day);
}

void MainScreen::PickChoice(std::size_t line) {
    editor_.PickChoice(line);
}

void MainScreen::KeyInChoices(EditorKey key, std::string_view text) {
    editor_.KeyInChoices(key, text);
}

void MainScreen::PickRecord(std::size_t line) {
    editor_.PickRecord(line);
}

void MainScreen::LoseFocus(ScreenFocus to) {
    editor_.LoseFocus(to);
}

void MainScreen::ScrollTo(int topRow) {
    editor_.ScrollTo(topRow);
}

void MainScreen::SetRowsOnScreen(int rows) {
    editor_.SetRowsOnScreen(rows);
}

void MainScreen::ClickJumpLabel(int group) {
    editor_.ClickJumpLabel(group);
}

void MainScreen::Paste(const Clipboard& clipboard) {
    editor_.Paste(clipboard);
}

void MainScreen::ClearValue() {
    editor_.ClearValue();
}

void MainScreen::SelectAll() {
    editor_.SelectAll();
}

void MainScreen::ViewPicture() {
    editor_.ViewPicture();
}

}  // namespace quillmark
