#include <algorithm>

#include "core/field_registry.h"
#include "entry/companions.h"
#include "entry/note_cells.h"
#include "entry/proposals.h"
#include "entry/questions.h"
#include "entry/smart_fields.h"
#include "platform/code_page.h"
#include "selection/field_listing.h"
#include "selection/field_rows.h"
#include "selection/relevant_fields.h"
#include "session/field_editor.h"
#include "session/main_screen.h"

namespace quillmark {

namespace {

constexpr int kDocumentDate = 1;
constexpr int kFiduciaryType = 209;

std::string TitleOf(int n) {
    const std::string_view marker = FieldMarker(n);
    return std::string(marker.substr(1, marker.size() - 2));
}

}  // namespace

std::size_t MainScreen::RowOf(int n) const {
    const auto row = std::find_if(screen_.grid.begin(), screen_.grid.end(),
                                  [&](const GridRow& r) { return r.kind == RowKind::Field && r.n == n; });
    Require(row != screen_.grid.end(), "field " + std::to_string(n) + " has no row in the grid");
    return static_cast<std::size_t>(row - screen_.grid.begin());
}

std::size_t MainScreen::RowOf(std::string_view marker) const {
    const auto row = std::find_if(screen_.grid.begin(), screen_.grid.end(), [&](const GridRow& r) {
        return r.kind == RowKind::User && r.label == marker;
    });
    Require(row != screen_.grid.end(), "the grid has no row \"" + std::string(marker) + "\"");
    return static_cast<std::size_t>(row - screen_.grid.begin());
}

/// What a click on a row does before its editor opens.
void MainScreen::OpenRow(std::size_t row) {
    const NameBox& box = screen_.txtJobName;
    if (screen_.ScreenMode == screen_mode::kPresets && box.text.empty()) {
        machine_.dialogs.Tell(" No file name given", "You must provide a file name before proceeding",
                              DialogIcon::Warning);
        throw NotAllowed("the template has no name yet");
    }
    if (screen_.grid[row].locked) {
        screen_.picInfo = " Locked field, Double-Click to open for edit";
        throw NotAllowed("the field is locked");
    }
    const bool isNewJob = screen_.ScreenMode == screen_mode::kJob && !box.locked;
    if (isNewJob && box.enabled && !box.IsSaveable()) {
        const auto answer = machine_.dialogs.Show({"  Notice",
                                                   "No filename was given, information will NOT be saved.",
                                                   {DialogButton::OK, DialogButton::Cancel},
                                                   DialogButton::OK,
                                                   DialogIcon::Information});
        if (answer == DialogButton::Cancel) {
            FocusName();
            throw NotAllowed("the job has no name yet");
        }
    }
    BeginFieldEntry();
    screen_.currentRow = static_cast<int>(row);
    const int n = screen_.grid[row].n;
    screen_.picInfo = FieldDescription(n, screen_.job);
    const int group = GroupOfKey(screen_.grid[row].key);
    for (std::size_t i = 1; i < screen_.lblJump.size(); ++i)
        screen_.lblJump[i].current = static_cast<int>(i) == group;
}

std::string MainScreen::Commit(std::size_t row, std::string_view text) {
    if (const auto missing = FirstUnencodable(text))
        throw NotAllowed("the character \"" + std::string(missing->character) +
                         "\" can be kept in no data file");
    const int n = screen_.grid[row].n;
    const std::string before = n > 0 ? screen_.job.D(n) : screen_.grid[row].value;
    try {
        UpdateListing(n, text, screen_, office_, FieldQuestions(screen_, office_));
    } catch (const BadFieldInput& bad) {
        machine_.dialogs.Tell(TitleOf(bad.field()), "BAD INPUT\nPlease try a different format.",
                              DialogIcon::Warning);
        UpdateListing(bad.field(), "", screen_, office_);
    }
    const std::string after = n > 0 ? screen_.job.D(n) : screen_.grid[row].value;
    if (after != before && n != kDocumentDate) FieldChanged();
    ShowExit();
    Advance(row);
    return after;
}

void MainScreen::FieldChanged() {
    if (!screen_.txtJobName.IsSaveable()) return;
    if (screen_.cmdCreate.caption != "Re-Make") screen_.cmdCreate.caption = "CREATE\n+save";
    const bool edits = screen_.ScreenMode == screen_mode::kEdit;
    screen_.cmdOpen = {"SAVE", edits ? " save changes " : " save data only (no docs) ", true, true};
    screen_.cmdPrintFList.visible = false;
    if (!screen_.txtJobName.locked) return;
    screen_.cmdNameAs.caption = "Name As";
    screen_.cmdNameAs.enabled = screen_.cmdNameAs.visible = true;
}

/// The highlight goes to the next row below that is no heading; in a template it stays.
void MainScreen::Advance(std::size_t row) {
    if (screen_.ScreenMode == screen_mode::kPresets) {
        screen_.picInfo.clear();
        return;
    }
    for (std::size_t next = row + 1; next < screen_.grid.size(); ++next) {
        if (screen_.grid[next].kind == RowKind::Heading) continue;
        screen_.currentRow = static_cast<int>(next);
        if (!screen_.grid[next].locked) screen_.picInfo = FieldDescription(screen_.grid[next].n, screen_.job);
        return;
    }
}

std::string MainScreen::EnterField(int n, std::string_view text, EntryWay way) {
    const std::size_t row = RowOf(n);
    if (way == EntryWay::Pick) return PickChoice(row, text);
    const TypedText typed =
        TypeOver(text, {n, screen_.job, screen_.templateBeingSet}, FieldMarker(n), settings_.properCase);
    Require(way != EntryWay::Type || typed.effect != KeyEffect::OpenChoices,
            "this field is picked from its list");
    OpenRow(row);
    if (IsBlockField(n)) return Commit(row, WithFileLineEnds(text));
    if (way == EntryWay::Paste) return Commit(row, PastedLine(text));
    if (typed.effect != KeyEffect::MoveToSalePrice) return Commit(row, typed.text);
    machine_.dialogs.Tell("", std::string(kNoSalePrice), DialogIcon::Warning);
    const std::string kept = Commit(row, typed.text);
    if (const GridRow* price = FindRow(kSalePriceField, screen_))
        screen_.currentRow = static_cast<int>(price - screen_.grid.data());
    return kept;
}

std::string MainScreen::PickChoice(std::size_t row, std::string_view text) {
    const int n = screen_.grid[row].n;
    const OpenedEditor editor = OpenEditor(screen_.grid[row], screen_, office_);
    Require(std::find(editor.choices.begin(), editor.choices.end(), text) != editor.choices.end(),
            "the field offers no choice \"" + std::string(text) + "\"");
    OpenRow(row);
    if (n == kFiduciaryType && !AskForCompanion(text, screen_, office_)) return screen_.job.D(n);
    return Commit(RowOf(n), text);
}

std::string MainScreen::EnterUserField(std::string_view marker, std::string_view text, EntryWay way) {
    const std::size_t row = RowOf(marker);
    OpenRow(row);
    if (way != EntryWay::Type) return Commit(row, PastedLine(text));
    return Commit(
        row, TypeOver(text, {0, screen_.job, screen_.templateBeingSet}, marker, settings_.properCase).text);
}

std::string MainScreen::TypeInEditor(int n, std::string_view text) {
    OpenRow(RowOf(n));
    if (IsBlockField(n)) return std::string(text);
    const TypedText typed =
        TypeOver(text, {n, screen_.job, screen_.templateBeingSet}, FieldMarker(n), settings_.properCase);
    return typed.effect == KeyEffect::OpenChoices ? std::string(kPickFromList) : typed.text;
}

void MainScreen::UnlockRow(int n) {
    GridRow& row = screen_.grid[RowOf(n)];
    Require(row.locked, "the field is not locked");
    if (!machine_.dialogs.Confirm(std::string(FieldMarker(n)) + " ", "Unlock this field\n      for edit ?")) {
        screen_.picInfo = " action canceled";
        return;
    }
    SetRowState(row, "OFF", screen_);
    OpenRow(RowOf(n));
}

std::string MainScreen::ClickNote(int n, int column) {
    GridRow& row = screen_.grid[RowOf(n)];
    Require(column == 2 || column == 3, "note cells stand in columns 2 and 3");
    Require(!row.locked, "the field is locked");
    Require(!row.notes[static_cast<std::size_t>(column - 2)].empty(), "the row has no such note cell");
    const std::string before = screen_.job.D(n);
    ShowFieldNotes(n, row, column, screen_);
    if (screen_.job.D(n) != before) FieldChanged();
    return screen_.job.D(n);
}

void MainScreen::ClickJumpLabel(int group) {
    Require(group >= 1 && group <= 6, "jump labels are numbered from 1 to 6");
    const JumpLabel& label = screen_.lblJump[static_cast<std::size_t>(group)];
    Require(label.enabled, "the group has no rows");
    screen_.currentRow = label.headingRow;
    for (std::size_t i = 1; i < screen_.lblJump.size(); ++i)
        screen_.lblJump[i].current = static_cast<int>(i) == group;
}

}  // namespace quillmark
