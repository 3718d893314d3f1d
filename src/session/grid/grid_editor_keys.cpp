#include "core/field_registry.h"
#include "core/fields.h"
#include "entry/field_listing.h"
#include "entry/questions.h"
#include "platform/code_page.h"
#include "selection/field_rows.h"
#include "session/grid/grid_editor.h"

namespace quillmark {

namespace {

bool IsPartOfEditor(ScreenFocus focus) {
    return focus == ScreenFocus::Editor || focus == ScreenFocus::Calendar || focus == ScreenFocus::Choices ||
           focus == ScreenFocus::AddressBook;
}

}  // namespace

void GridEditor::KeyInEditor(std::string_view character) {
    if (Type(character) == KeyEffect::MoveToSalePrice) MoveToSalePrice();
}

KeyEffect GridEditor::Type(std::string_view character) {
    RequireEditor(EditorKind::Line);
    if (RefusesText(character)) return KeyEffect::None;
    const int n = state_.EditField;
    const std::string marker = n > 0 ? std::string(FieldMarker(n)) : RowAt(state_.EditRow).label;
    TypedKey key = TypeKey(state_.txtEdit, character, {n, screen_.job, screen_.templateBeingSet}, marker,
                           firm_.settings.properCase);
    state_.txtEdit = std::move(key.editor);
    if (key.effect == KeyEffect::OpenChoices) {
        state_.Combo1.open = true;
        state_.focus = ScreenFocus::Choices;
    }
    return key.effect;
}

void GridEditor::KeyInEditor(EditorKey key) {
    Require(state_.IsOpen() && state_.EditRow >= 0, "no editor is open");
    if (key == EditorKey::Escape) return Leave();
    if (state_.BlockEdit) return KeyInBlock(key);
    if (key == EditorKey::Up) return CommitAndMove(-1);
    if (key == EditorKey::Down) return CommitAndMove(1);
    if (key == EditorKey::Home || key == EditorKey::End) return;  // of the line, which the window moves in
    CommitAndAdvance();
}

void GridEditor::SetEditorText(EditorText text) {
    RequireEditor(EditorKind::Line);
    const bool changes = text.text != state_.txtEdit.text;
    if (changes && RefusesText(text.text)) return;
    if (changes && !text.text.empty() && IsPickedOnly(state_.EditField)) return;
    text.caret = std::min(text.caret, text.text.size());
    text.selection = std::min(text.selection, text.text.size() - text.caret);
    state_.txtEdit = std::move(text);
}

void GridEditor::LoseFocus(ScreenFocus to) {
    const bool questionStands = state_.IsOpen() && state_.EditRow < 0;
    if (questionStands) return;
    if (state_.IsOpen() && !IsPartOfEditor(to)) {
        const int row = state_.EditRow;
        staysOnRow_ = refused_ = false;
        Commit();
        if (to == ScreenFocus::Buttons && (staysOnRow_ || refused_)) refusedRow_ = row;
        Close();
    }
    state_.focus = to;
}

bool GridEditor::CommitAll(ScreenFocus to) {
    LoseFocus(to);
    const int row = std::exchange(refusedRow_, -1);
    if (!IsInGrid(row)) return true;
    OpenRow(row, 0);
    return false;
}

/// The editor's text goes to its field; whether the field has another value now.
bool GridEditor::Commit() {
    if (state_.BlockEdit) return CommitBlock();
    const bool nothingPicked = state_.Combo1.fixed && state_.txtEdit.text == kPickFromList;
    return !nothingPicked && Store(std::string(state_.txtEdit.text));
}

bool GridEditor::Store(std::string_view text) {
    const int row = state_.EditRow;
    const int n = state_.EditField;
    const auto value = [&] { return n > 0 ? screen_.job.D(n) : RowAt(row).value; };
    const std::string before = value();
    {
        const StandingQuestion guard(state_.EditRow);
        const std::string tag = AskForTag(n, text);
        const Listed listed = UpdateListing(n, text, screen_, {.row = row, .tag = tag});
        if (!listed.warning.empty()) WarnOfPlace(n, listed.warning);
        staysOnRow_ = !listed.warning.empty() && !state_.BlockEdit;
    }
    if (value() == before) return false;
    around_.fieldChanged(n);
    return true;
}

/// Asks what has to be known about a first amount; what the answers put behind it.
std::string GridEditor::AskForTag(int n, std::string_view value) {
    std::vector<bool> answers;
    for (;;) {
        QuestionStep step = NextQuestion(n, value, answers, screen_);
        if (!step.question) return std::move(step.tag);
        answers.push_back(dialogs_.Confirm(step.question->title, step.question->text));
    }
}

void GridEditor::WarnOfPlace(int n, const std::string& warning) {
    const std::string_view marker = FieldMarker(n);
    dialogs_.Tell(std::string(marker.substr(1, marker.size() - 2)) + "  ", warning, DialogIcon::Warning);
}

void GridEditor::CommitAndAdvance() {
    const int row = state_.EditRow;
    const bool changed = Commit();
    if (std::exchange(staysOnRow_, false)) return OpenRow(row, 0);
    if (screen_.mode == ScreenMode::Presets) {
        screen_.picInfo.clear();
        return Leave();
    }
    const int next = NextRow(row, 1);
    if (next < 0) return Leave();
    const bool onPage = next - state_.topRow < state_.rowsOnScreen;
    if (!changed || onPage) return OpenRow(next, 1);
    OpenRow(row, 0);
    state_.txtEdit.caret = state_.txtEdit.text.size();
    state_.txtEdit.selection = 0;
}

void GridEditor::CommitAndMove(int direction) {
    const int row = state_.EditRow;
    Commit();
    if (std::exchange(staysOnRow_, false)) return OpenRow(row, 0);
    const int next = NextRow(row, direction);
    if (next >= 0) return OpenRow(next, direction);
    if (direction < 0) return OpenRow(row, 0);
    Leave();
}

/// A commission by percent needs the price first.
void GridEditor::MoveToSalePrice() {
    Tell("", std::string(kNoSalePrice), DialogIcon::Warning);
    Commit();
    Leave();
    if (const GridRow* price = FindRow(field::SalePriceNumeric, screen_))
        OpenRow(static_cast<int>(price - screen_.grid.data()), 1);
}

bool GridEditor::RefusesText(std::string_view text) {
    const auto missing = FirstUnencodable(text);
    if (!missing) return false;
    const std::string marker =
        state_.EditField > 0 ? std::string(FieldMarker(state_.EditField)) : RowAt(state_.EditRow).label;
    Tell(marker + " ", "A field cannot hold " + missing->name + ".", DialogIcon::Warning);
    return true;
}

}  // namespace quillmark
