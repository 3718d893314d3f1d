#include "selection/field_listing.h"

#include "core/field_registry.h"
#include "selection/field_rows.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

constexpr int kPropertyCityLine = 72;
constexpr int kTownOfExecution = 187;

void UpdateUserRow(std::string_view value, SelectionState& screen) {
    if (screen.currentRow < 0 || screen.currentRow >= static_cast<int>(screen.grid.size())) return;
    GridRow& row = screen.grid[static_cast<std::size_t>(screen.currentRow)];
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

void CheckTown(int n, const SelectionState& screen, const Office& office) {
    const Job& job = screen.job;
    if (n == kPropertyCityLine && job.IsFilled(n) && job.D(1000 + n).empty()) {
        WarnOfTown(
            n,
            "City/Town/District not recognized ...\n\nPlease check spelling or use parent municipality, "
            "\nand be sure to follow name with a Comma  ",
            office);
    }
    if (n == kTownOfExecution && job.IsFilled(n) && job.D(1000 + n).empty()) {
        WarnOfTown(n, "City/Town not recognized ...\n\nPlease use parent municipality and check spelling  ",
                   office);
    }
}

void Redraw(int n, SelectionState& screen) {
    if (GridRow* row = FindRow(n, screen)) DrawRow(*row, screen);
    if (screen.ScreenMode == screen_mode::kJob) CountFields(screen);
}

}  // namespace

void UpdateListing(int n, std::string_view value, SelectionState& screen, const Office& office,
                   const FieldDialogue& dialogue) {
    if (n == 0) {
        UpdateUserRow(value, screen);
        return;
    }
    Job& job = screen.job;
    if (value == job.txtField(n).text) return;
    if (value.empty()) {
        if (job.IsFilled(n)) job.ClearField(n);
        Redraw(n, screen);
        return;
    }
    std::string stored(value);
    if (dialogue) stored = dialogue(n, std::move(stored));
    job.SetField(n, stored);
    CheckTown(n, screen, office);
    Redraw(n, screen);
}

void SetRowState(GridRow& row, std::string_view state, SelectionState& screen) {
    row.locked = state != "OFF";
    if (row.kind == RowKind::Field) screen.job.txtField(row.n).locked = row.locked;
}

}  // namespace quillmark
