#include <algorithm>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "entry/capacity_detail.h"
#include "entry/field_listing.h"
#include "platform/code_page.h"
#include "selection/field_rows.h"
#include "session/grid/grid_editor.h"

namespace quillmark {

void GridEditor::ClickDay(std::chrono::year_month_day day, bool twice) {
    RequireEditor(EditorKind::Line);
    Require(state_.MonthView1.has_value(), "the calendar does not show");
    Require(day.ok(), "there is no such day");
    state_.MonthView1 = day;
    const std::string date = LongDate(day);
    state_.txtEdit = {date, date.size(), 0};
    state_.focus = ScreenFocus::Calendar;
    if (twice) CommitAndAdvance();
}

void GridEditor::KeyInCalendar(EditorKey key, std::chrono::year_month_day day) {
    RequireEditor(EditorKind::Line);
    Require(state_.MonthView1.has_value(), "the calendar does not show");
    if (key == EditorKey::Escape) return Leave();
    if (key == EditorKey::Up || key == EditorKey::Enter) return ClickDay(day, true);
    CommitAndAdvance();
}

void GridEditor::PickChoice(std::size_t line) {
    RequireEditor(EditorKind::Line);
    Require(state_.Combo1.open && line < state_.Combo1.lines.size(), "the choice list has no such line");
    CommitChoice(std::string(state_.Combo1.lines[line]));
}

void GridEditor::KeyInChoices(EditorKey key, std::string_view text) {
    RequireEditor(EditorKind::Line);
    Require(state_.Combo1.open || state_.Combo2, "no list is open");
    if (key == EditorKey::Escape) return Leave();
    if ((key != EditorKey::Enter && key != EditorKey::Tab) || !state_.Combo1.open) return;
    const auto& lines = state_.Combo1.lines;
    Require(!state_.Combo1.fixed || std::find(lines.begin(), lines.end(), text) != lines.end(),
            "the field can only be picked from its list");
    if (!RefusesText(text)) CommitChoice(std::string(text));
}

void GridEditor::CommitChoice(std::string_view text) {
    if (state_.EditField == field::FiduciaryType && !AskForDetailOf(text)) return Leave();
    state_.txtEdit = {std::string(text), text.size(), 0};
    CommitAndAdvance();
}

/// False if the pick may not be completed: there was no answer.
bool GridEditor::AskForDetailOf(std::string_view choice) {
    const auto detail = CapacityDetailOf(choice, screen_.job);
    if (!detail) return true;
    const std::string before = screen_.job.D(detail->n);
    const auto answer = DetailFromPerson(*detail);
    if (!answer) return false;
    const std::string_view value = Trimmed(*answer);
    UpdateListing(detail->n, value, screen_);
    if (screen_.job.D(detail->n) != before) around_.fieldChanged(detail->n);
    return !value.empty();
}

/// Nothing for a cancelled box and for a text that data files cannot hold.
std::optional<std::string> GridEditor::DetailFromPerson(const CapacityDetail& detail) {
    const StandingQuestion guard(state_.EditRow);
    const InputDialog box = DetailQuestion(detail, screen_.job);
    auto answer = dialogs_.Ask(box);
    if (!answer) return std::nullopt;
    const auto missing = FirstUnencodable(*answer);
    if (!missing) return answer;
    dialogs_.Tell(box.title, "A field cannot hold " + missing->name + ".", DialogIcon::Warning);
    return std::nullopt;
}

void GridEditor::PickRecord(std::size_t line) {
    Require(state_.Combo2 && line < state_.Combo2->lines.size(), "the address book has no such line");
    if (line == 0) return;
    const bool attorneyHasRow = FindRow(field::BuyerAtty, screen_) != nullptr;
    const std::vector<FieldText> block = FieldsOfPick(*state_.Combo2, line, attorneyHasRow);
    Leave();
    state_.markedRow = -1;
    for (const FieldText& field : block) {
        const std::string before = screen_.job.D(field.n);
        const Listed listed = UpdateListing(field.n, field.text, screen_, {.filling = true});
        if (!listed.warning.empty()) WarnOfPlace(field.n, listed.warning);
        if (const GridRow* row = FindRow(field.n, screen_))
            screen_.currentRow = static_cast<int>(row - screen_.grid.data());
        if (screen_.job.D(field.n) != before) around_.fieldChanged(field.n);
    }
}

}  // namespace quillmark
