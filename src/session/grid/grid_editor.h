#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/text_conversions.h"
#include "entry/address_book_fields.h"
#include "entry/capacity_detail.h"
#include "entry/filter_keys.h"
#include "platform/dialogs.h"
#include "selection/firm_context.h"
#include "session/state/not_allowed.h"
#include "session/state/screen_state.h"

/// The editors that lie over the grid, as plain values: a window shows them where they stand and passes keys
/// and clicks on.
namespace quillmark {

enum class EditorKind {
    None,
    Line,   ///< `txtEdit`
    Block,  ///< `txtBlock`: several lines, or a picture
};

/// Keys that are no characters.
enum class EditorKey { Enter, Tab, Up, Down, Escape, Home, End };

/// What has the keyboard.
enum class ScreenFocus {
    NameBox,
    Documents,    ///< any control of the document choice
    Buttons,      ///< a button of the top bar
    Grid,         ///< `grdField`, or `cboScroll` for it
    Editor,       ///< `txtEdit` or `txtBlock`
    Calendar,     ///< `MonthView1`
    Choices,      ///< `Combo1`
    AddressBook,  ///< `Combo2`
    Elsewhere,
};

/// `Combo1` under the editor. The frames of the option buttons are hidden while it is open.
struct ChoiceList {
    bool open = false;
    std::vector<std::string> lines;
    std::size_t current = 0;
    bool fixed = false;  ///< nothing can be typed, only picked
};

/// What the clipboard holds when a paste is asked for.
struct Clipboard {
    std::string text;
    std::string picture;  ///< bytes of a Windows bitmap; empty for none
};

struct GridEditorState {
    EditorKind kind = EditorKind::None;
    int EditRow = -1;    ///< index into the grid of the row under the editor; -1 while a question stands
    int EditField = 0;   ///< its field number, 0 for a user-defined row
    int markedRow = -1;  ///< the highlighted row; -1 for none
    bool BlockEdit = false;
    bool ImageInField = false;  ///< the value is a picture; `txtBlock` holds its literal
    EditorText txtEdit;
    std::string txtBlock;        ///< lines apart by "\n"
    std::size_t blockCaret = 0;  ///< where the selection of `txtBlock` begins, in bytes
    std::size_t blockSelection = 0;
    std::string blockPicture;  ///< the picture that the block editor shows, a Windows bitmap; empty for none
    bool blockWraps = true;    ///< word wrap, off while a picture shows
    std::optional<std::chrono::year_month_day> MonthView1;  ///< the calendar and its day, while it shows
    ChoiceList Combo1;
    std::optional<DatabaseCombo> Combo2;       ///< while it shows; it hides the option frames too
    ScreenFocus focus = ScreenFocus::NameBox;  ///< where the keyboard is to be
    int topRow = 0;                            ///< the grid's first row on screen
    int rowsOnScreen = 20;                     ///< whole rows below the header; set by the window

    bool IsOpen() const { return kind != EditorKind::None; }
};

/// What the grid asks of the screen around it.
struct GridSurroundings {
    std::function<void()> focusName;        ///< the name box gets the keyboard
    std::function<void()> beginFieldEntry;  ///< the choice of documents closes
    std::function<void(int)> fieldChanged;  ///< this field has another value; 0 for a user-defined one
    std::function<AddressBooks()> books;    ///< of the database folder
    std::function<void()> progress;         ///< the guidance bar is to be repainted at once
};

/// No second edit can begin while a question stands: `EditRow` is -1 meanwhile.
class StandingQuestion {
 public:
    explicit StandingQuestion(int& EditRow) : EditRow_(EditRow), row_(EditRow) { EditRow_ = -1; }
    ~StandingQuestion() { EditRow_ = row_; }
    StandingQuestion(const StandingQuestion&) = delete;
    StandingQuestion& operator=(const StandingQuestion&) = delete;

 private:
    int& EditRow_;
    int row_;
};

/// Movement over the grid and the editors that open on the way. Editors open by a click or a key move, and
/// close by commit, Escape, or the loss of the keyboard; each value goes to its field by `UpdateListing` with
/// its questions.
///
/// Every command throws NotAllowed where the screen would not take it, with nothing changed. A text with a
/// character that data files cannot hold is refused by a box that names the character, and the editor stays
/// as it was.
class GridEditor {
 public:
    /// The arguments must outlive the object.
    GridEditor(ScreenState& screen, const FirmContext& firm, Dialogs& dialogs, GridSurroundings around);

    const GridEditorState& State() const { return state_; }

    // The grid.
    /// A click on a cell, columns 0 to 4. A note cell changes its tag and opens no editor; a locked row and a
    /// heading open none either.
    void Click(int row, int column);
    void DoubleClick(int row, int column);  ///< on a locked row: asks to unlock it, then opens it
    /// A key while the grid has the keyboard: Up and Down go on from the current row, Home and End to the
    /// first and the last one; Enter and Tab open it, or go on from one that is locked.
    void KeyInGrid(EditorKey key);
    /// A character while the grid has the keyboard: it opens the current row and replaces its value. On a row
    /// that opens no editor it does nothing.
    void TypeInGrid(std::string_view character);
    /// The row cursor goes to a row, from a heading on to the next one, and nothing opens.
    void MoveCursor(int row);
    void ScrollTo(int topRow);  ///< by the scroll bar or `cboScroll`: the open editor is committed and closed
    void SetRowsOnScreen(int rows);
    void ClickJumpLabel(int group);
    /// The note cell in column 2 or 3 of a row.
    void ClickNote(int row, int column);

    // `txtEdit` and `txtBlock`.
    void KeyInEditor(std::string_view character);
    void KeyInEditor(EditorKey key);
    /// As KeyInEditor, but a key that would leave the row leaves it to the caller to do so.
    KeyEffect Type(std::string_view character);
    /// What such a key leads to: the box about the missing price, the commit, and field 76 if it is listed.
    void MoveToSalePrice();
    void SetEditorText(EditorText text);
    void SetBlockText(EditorText text);
    /// Commits, unless the keyboard went to the calendar or a list of the editor's own.
    void LoseFocus(ScreenFocus to);
    /// As LoseFocus, before a command that takes all values for good. False where a value was refused, now or
    /// when a button of the top bar just took the keyboard: its row is open again.
    bool CommitAll(ScreenFocus to);
    /// The rule of the field under the editor cannot take what was committed.
    void NoteRefusal() { refused_ = true; }

    // `MonthView1`, `Combo1`, `Combo2`.
    void ClickDay(std::chrono::year_month_day day, bool twice);
    void KeyInCalendar(EditorKey key, std::chrono::year_month_day day);
    void PickChoice(std::size_t line);
    /// Enter and Tab commit the combo box's text, Escape closes the editor; other keys are the list's own.
    void KeyInChoices(EditorKey key, std::string_view text);
    void PickRecord(std::size_t line);

    // The edit menu.
    void Paste(const Clipboard& clipboard);
    void ClearValue();
    void SelectAll();
    void ViewPicture();

    /// The rows are others now: no editor is open, no row highlighted, the first row on top.
    void Forget();
    /// How to go about the grid in the screen's mode, on the guidance bar.
    void ShowGuidance();

 private:
    // Opening (grid_editor.cpp).
    void OpenRow(int row, int direction);
    int RowToOpen(int row, int direction);
    bool LacksTemplateName();
    bool BeginsFieldEntry();
    void OpenEditorOver(int row);
    void FillCombo2(AddressBook book, int n);
    void Close();
    void Leave();
    void BringIntoView(int row);
    int NextRow(int row, int direction) const;

    // Keys and commits (grid_editor_keys.cpp).
    bool Commit();
    bool Store(std::string_view text);
    std::string AskForTag(int n, std::string_view value);
    void WarnOfPlace(int n, const std::string& warning);
    void CommitAndAdvance();
    void CommitAndMove(int direction);

    // Lists (grid_editor_lists.cpp).
    bool AskForDetailOf(std::string_view choice);
    std::optional<std::string> DetailFromPerson(const CapacityDetail& detail);
    void CommitChoice(std::string_view text);

    // The block editor and the edit menu (grid_editor_block.cpp).
    void ShowBlock(std::string_view text);
    void ShowPicture(std::string picture);
    void KeyInBlock(EditorKey key);
    bool CommitBlock();
    void PasteIntoLine(std::string_view text);
    void PasteIntoBlock(std::string_view text);

    void Tell(std::string title, std::string text, DialogIcon icon);
    bool RefusesText(std::string_view text);
    void RequireCell(int row, int column) const;
    void RequireEditor(EditorKind kind) const;
    bool IsInGrid(int row) const { return row >= 0 && row < static_cast<int>(screen_.grid.size()); }
    GridRow& RowAt(int row) const { return screen_.grid[static_cast<std::size_t>(row)]; }

    ScreenState& screen_;
    const FirmContext& firm_;
    Dialogs& dialogs_;
    GridSurroundings around_;
    GridEditorState state_;
    bool staysOnRow_ = false;      ///< the last commit left a value to be corrected
    bool refused_ = false;         ///< a rule could not take the last value
    int refusedRow_ = -1;          ///< where a button took the keyboard from a value to be corrected
    bool blockUntouched_ = false;  ///< `txtBlock` holds what it opened with
};

}  // namespace quillmark
