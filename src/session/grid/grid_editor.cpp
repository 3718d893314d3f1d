#include "session/grid/grid_editor.h"

#include <algorithm>

#include "core/field_registry.h"
#include "entry/address_book.h"
#include "entry/field_listing.h"
#include "entry/note_cells.h"
#include "entry/proposals.h"
#include "platform/atomic_file.h"
#include "selection/field_rows.h"
#include "session/grid/editor_texts.h"

namespace quillmark {

namespace {

constexpr int kColumns = 5;
constexpr std::string_view kLocked = " Locked field, Double-Click to open for edit";

bool IsNoteCell(const GridRow& row, int column) {
    return (column == 2 || column == 3) && !row.notes[static_cast<std::size_t>(column - 2)].empty();
}

}  // namespace

GridEditor::GridEditor(ScreenState& screen, const FirmContext& firm, Dialogs& dialogs,
                       GridSurroundings around)
    : screen_(screen), firm_(firm), dialogs_(dialogs), around_(std::move(around)) {}

void GridEditor::Click(int row, int column) {
    RequireCell(row, column);
    LoseFocus(ScreenFocus::Grid);
    const GridRow& clicked = RowAt(row);
    if (IsNoteCell(clicked, column) && !clicked.locked) return ClickNote(row, column);
    OpenRow(row, 0);
}

void GridEditor::ClickNote(int row, int column) {
    RequireCell(row, column);
    GridRow& clicked = RowAt(row);
    Require(!clicked.locked, "the field is locked");
    Require(IsNoteCell(clicked, column), "the line has no note of that kind");
    Require(screen_.job.IsFilled(clicked.n), "the field has no value to note this of");
    LoseFocus(ScreenFocus::Grid);
    if (LacksTemplateName() || !BeginsFieldEntry()) return;
    const std::string before = screen_.job.D(clicked.n);
    ShowFieldNotes(clicked.n, clicked, column, screen_);
    if (screen_.job.D(clicked.n) != before) around_.fieldChanged(clicked.n);
}

void GridEditor::DoubleClick(int row, int column) {
    RequireCell(row, column);
    if (!RowAt(row).locked) return;
    LoseFocus(ScreenFocus::Grid);
    const std::string title = std::string(FieldMarker(RowAt(row).n)) + " ";
    if (!dialogs_.Confirm(title, "Unlock this field\n      for edit ?")) {
        screen_.picInfo = " action canceled";
        return;
    }
    SetLocked(RowAt(row), false, screen_);
    OpenRow(row, 0);
}

void GridEditor::KeyInGrid(EditorKey key) {
    Require(!state_.IsOpen(), "an editor is open");
    if (key == EditorKey::Escape) return;
    const int rows = static_cast<int>(screen_.grid.size());
    if (key == EditorKey::Home || key == EditorKey::End) {
        const int row = key == EditorKey::Home ? NextRow(-1, 1) : NextRow(rows, -1);
        if (row >= 0) OpenRow(row, key == EditorKey::Home ? -1 : 1);
        return;
    }
    const int direction = key == EditorKey::Up ? -1 : 1;
    const int current = screen_.currentRow;
    const bool opens = (key == EditorKey::Enter || key == EditorKey::Tab) && IsInGrid(current) &&
                       RowAt(current).kind != RowKind::Heading && !RowAt(current).locked;
    const int row = opens ? current : NextRow(current, direction);
    if (row >= 0) OpenRow(row, direction);
}

void GridEditor::TypeInGrid(std::string_view character) {
    Require(!state_.IsOpen(), "an editor is open");
    const int row = screen_.currentRow;
    if (!IsInGrid(row) || RowAt(row).kind == RowKind::Heading || RowAt(row).locked) return;
    OpenRow(row, 0);
    if (state_.kind == EditorKind::Line) KeyInEditor(character);
    if (state_.kind == EditorKind::Block) SetBlockText({std::string(character), character.size(), 0});
}

void GridEditor::MoveCursor(int row) {
    Require(!state_.IsOpen(), "an editor is open");
    Require(IsInGrid(row), "the grid has no such row");
    const int to = RowToOpen(row, 1);
    if (to < 0) return;
    LoseFocus(ScreenFocus::Grid);
    state_.markedRow = -1;
    screen_.currentRow = to;
    screen_.currentGroup = GroupOfKey(RowAt(to).key);
    BringIntoView(to);
    screen_.picInfo = RowAt(to).locked ? std::string(kLocked) : FieldDescription(RowAt(to).n, screen_.job);
}

void GridEditor::ScrollTo(int topRow) {
    Require(IsInGrid(topRow), "the grid has no such row");
    if (topRow == state_.topRow) return;
    LoseFocus(ScreenFocus::Grid);
    state_.topRow = topRow;
    state_.markedRow = -1;
    ShowGuidance();
}

void GridEditor::SetRowsOnScreen(int rows) {
    state_.rowsOnScreen = std::max(rows, 1);
}

void GridEditor::ClickJumpLabel(int group) {
    Require(group >= 1 && group <= 6, "jump labels are numbered from 1 to 6");
    const GridGroup& rows = screen_.groups[static_cast<std::size_t>(group)];
    Require(rows.HasRows(), "the group has no rows");
    LoseFocus(ScreenFocus::Grid);
    state_.topRow = screen_.currentRow = rows.headingRow;
    state_.markedRow = -1;
    screen_.currentGroup = group;
    ShowGuidance();
}

/// Takes the keyboard to a row; from a heading it goes on in the direction of a key move, and stays where a
/// click hit it.
void GridEditor::OpenRow(int row, int direction) {
    Close();
    refusedRow_ = -1;
    state_.focus = ScreenFocus::Grid;
    state_.markedRow = -1;
    const int open = RowToOpen(row, direction);
    if (open < 0) return;
    screen_.currentRow = open;
    if (direction != 0) BringIntoView(open);
    if (LacksTemplateName()) return;
    screen_.currentGroup = GroupOfKey(RowAt(open).key);
    if (RowAt(open).locked) {
        screen_.picInfo = kLocked;
        return;
    }
    if (!BeginsFieldEntry()) return;
    screen_.picInfo = FieldDescription(RowAt(open).n, screen_.job);
    OpenEditorOver(open);
    state_.markedRow = open;
}

int GridEditor::RowToOpen(int row, int direction) {
    for (; IsInGrid(row) && RowAt(row).kind == RowKind::Heading; row += direction) {
        if (direction == 0) return -1;
        if (row == 0) direction = 1;
    }
    return IsInGrid(row) ? row : -1;
}

/// The next row in a direction that is no heading; -1 if there is none.
int GridEditor::NextRow(int row, int direction) const {
    do {
        row += direction;
    } while (IsInGrid(row) && RowAt(row).kind == RowKind::Heading);
    return IsInGrid(row) ? row : -1;
}

/// A row reached by keys shows with its heading, and with the row that follows.
void GridEditor::BringIntoView(int row) {
    const int first = row > 0 && RowAt(row - 1).kind == RowKind::Heading ? row - 1 : row;
    const int last = std::max(row, NextRow(row, 1));
    state_.topRow = std::max(state_.topRow, last - state_.rowsOnScreen + 1);
    state_.topRow = std::min(state_.topRow, first);
}

bool GridEditor::LacksTemplateName() {
    if (screen_.mode != ScreenMode::Presets || !screen_.txtJobName.text.empty()) return false;
    Tell(" No file name given", "You must provide a file name before proceeding", DialogIcon::Warning);
    around_.focusName();
    return true;
}

/// False when the user would rather give the job a name first.
bool GridEditor::BeginsFieldEntry() {
    const NameBox& box = screen_.txtJobName;
    const bool isNewJob = screen_.mode == ScreenMode::Job && !box.locked;
    if (isNewJob && box.enabled && !box.IsSaveable()) {
        const auto answer = dialogs_.Show({"  Notice",
                                           "No filename was given, information will NOT be saved.",
                                           {DialogButton::OK, DialogButton::Cancel},
                                           DialogButton::OK,
                                           DialogIcon::Information});
        if (answer == DialogButton::Cancel) {
            around_.focusName();
            return false;
        }
    }
    around_.beginFieldEntry();
    return true;
}

void GridEditor::OpenEditorOver(int at) {
    const GridRow& row = RowAt(at);
    OpenedEditor opened = OpenEditor(row, screen_, firm_);
    state_.EditRow = at;
    state_.EditField = row.n;
    state_.BlockEdit = IsBlockField(row.n);
    state_.focus = ScreenFocus::Editor;
    state_.MonthView1 = opened.calendar;
    state_.Combo1 = {!opened.choices.empty(), std::move(opened.choices), opened.currentChoice,
                     IsPickedOnly(row.n)};
    if (state_.BlockEdit) {
        ShowBlock(opened.text);
    } else {
        state_.kind = EditorKind::Line;
        state_.txtEdit = {opened.text, 0, opened.text.size()};
    }
    if (opened.book) FillCombo2(*opened.book, row.n);
}

/// The field can be typed without the address book too, so one that cannot be read is no more than a notice.
void GridEditor::FillCombo2(AddressBook book, int n) {
    try {
        state_.Combo2 = FillDatabaseCombo(NameOf(book), n, around_.books());
    } catch (const FileError& failure) {
        const bool gaveUpWaiting = failure.kind == FileError::Kind::InUse;
        if (!gaveUpWaiting) Tell(std::string(FieldMarker(n)) + " ", failure.what(), DialogIcon::Warning);
    }
}

void GridEditor::Close() {
    GridEditorState closed;
    closed.markedRow = state_.markedRow;
    closed.focus = state_.focus;
    closed.topRow = state_.topRow;
    closed.rowsOnScreen = state_.rowsOnScreen;
    state_ = std::move(closed);
}

/// Closes the editor and gives the grid the keyboard.
void GridEditor::Leave() {
    Close();
    state_.focus = ScreenFocus::Grid;
}

void GridEditor::Forget() {
    Close();
    refusedRow_ = -1;
    state_.markedRow = -1;
    state_.topRow = 0;
}

void GridEditor::ShowGuidance() {
    constexpr std::string_view kIfLocked = " (Double-Click if locked)";
    screen_.picInfo = " Click an item for edit";
    if (screen_.mode != ScreenMode::Job) screen_.picInfo += kIfLocked;
    if (screen_.mode == ScreenMode::Presets)
        screen_.picInfo += ".  Use scroll bar or jump labels to navigate";
    if (screen_.mode == ScreenMode::Job)
        screen_.picInfo += ".  Use Enter, Tab, or Up/Down Arrow keys to navigate";
}

/// A box over the open editor, which keeps its text while the box has the keyboard.
void GridEditor::Tell(std::string title, std::string text, DialogIcon icon) {
    const StandingQuestion guard(state_.EditRow);
    dialogs_.Tell(std::move(title), std::move(text), icon);
}

void GridEditor::RequireCell(int row, int column) const {
    Require(IsInGrid(row) && column >= 0 && column < kColumns, "the grid has no such cell");
}

void GridEditor::RequireEditor(EditorKind kind) const {
    Require(state_.kind == kind && state_.EditRow >= 0,
            kind == EditorKind::Block ? "the block editor is not open" : "the one-line editor is not open");
}

}  // namespace quillmark
