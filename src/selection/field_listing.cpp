#include "selection/field_listing.h"

#include "core/field_registry.h"
#include "core/fields.h"
#include "selection/field_rows.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

void UpdateUserRow(int at, std::string_view value, SelectionState& screen) {
    if (at < 0 || at >= static_cast<int>(screen.grid.size())) return;
    GridRow& row = screen.grid[static_cast<std::size_t>(at)];
    if (row.kind != RowKind::User) return;
    screen.job.SetUserField(row.label, value);
    DrawRow(row, screen);
    if (screen.ScreenMode == screen_mode::kJob) CountFields(screen);
}

void WarnOfTown(int n, const std::string& text, const Office& office) {
    const std::string_view marker = FieldMarker(n);
    const std::string title = std::string(marker.substr(1, marker.size() - 2)) + "  ";
    office.dialogs.Tell(title, text, DialogIcon::Warning);
}

/// Warns of a place that is no town; whether the field holds none such.
bool CheckTown(int n, const SelectionState& screen, const Office& office) {
    const Job& job = screen.job;
    if ((n != field::PropertyCityStateZip && n != field::TownOfExecution) || !job.IsFilled(n) ||
        !job.D(field::Part(1, static_cast<field::Field>(n))).empty())
        return true;
    WarnOfTown(
        n,
        n == field::PropertyCityStateZip
            ? "City/Town/District not recognized ...\n\nPlease check spelling or use parent municipality, "
              "\nand be sure to follow name with a Comma  "
            : "City/Town not recognized ...\n\nPlease use parent municipality and check spelling  ",
        office);
    return false;
}

/// Shows that a value came by itself: its row is current and free to be edited.
void ShowFilled(int n, SelectionState& screen) {
    screen.job.txtField(n).locked = false;
    GridRow* row = FindRow(n, screen);
    if (!row) return;
    screen.currentRow = static_cast<int>(row - screen.grid.data());
    SetRowState(*row, "OFF", screen);
}

void Redraw(int n, SelectionState& screen) {
    if (GridRow* row = FindRow(n, screen)) DrawRow(*row, screen);
    if (screen.ScreenMode == screen_mode::kJob) CountFields(screen);
}

}  // namespace

bool UpdateListing(int n, std::string_view value, SelectionState& screen, const Office& office,
                   const FieldDialogue& dialogue, ListingEntry entry) {
    if (n == 0) {
        UpdateUserRow(entry.row < 0 ? screen.currentRow : entry.row, value, screen);
        return true;
    }
    Job& job = screen.job;
    if (value == job.txtField(n).text && !entry.filling) return true;
    bool known = true;
    if (!value.empty()) {
        std::string stored(value);
        if (dialogue) stored = dialogue(n, std::move(stored));
        stored.empty() ? job.ClearField(n) : job.SetField(n, stored);
        known = CheckTown(n, screen, office);
    } else if (job.IsFilled(n)) {
        job.ClearField(n);
    }
    if (entry.filling) ShowFilled(n, screen);
    Redraw(n, screen);
    return known;
}

void SetRowState(GridRow& row, std::string_view state, SelectionState& screen) {
    row.locked = state != "OFF";
    if (row.kind == RowKind::Field) screen.job.txtField(row.n).locked = row.locked;
}

}  // namespace quillmark
