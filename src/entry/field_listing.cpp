#include "entry/field_listing.h"

#include "core/field_registry.h"
#include "core/fields.h"
#include "entry/note_cells.h"
#include "selection/field_rows.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

void UpdateUserRow(int at, std::string_view value, JobInHand& hand) {
    if (at < 0 || at >= static_cast<int>(hand.grid.size())) return;
    GridRow& row = hand.grid[static_cast<std::size_t>(at)];
    if (row.kind != RowKind::User) return;
    hand.job.SetUserField(row.label, value);
    DrawRow(row, hand);
    if (hand.mode == ScreenMode::Job) CountFields(hand);
}

/// A warning of a place that is no town; empty where the field holds none such.
std::string WarningOfTown(int n, const Job& job) {
    if ((n != field::PropertyCityStateZip && n != field::TownOfExecution) || !job.IsFilled(n) ||
        !job.D(field::Part(1, static_cast<field::Field>(n))).empty())
        return {};
    return n == field::PropertyCityStateZip
               ? "City/Town/District not recognized ...\n\nPlease check spelling or use parent municipality, "
                 "\nand be sure to follow name with a Comma  "
               : "City/Town not recognized ...\n\nPlease use parent municipality and check spelling  ";
}

/// The field takes the value, with the tag behind it or the one that its row remembers.
void Store(int n, std::string_view value, std::string_view tag, JobInHand& hand) {
    Job& job = hand.job;
    job.SetField(n, value);
    if (TagFamilyOf(n) == TagFamily::None) return;
    if (!tag.empty()) job.SetField(n, std::string(value) + std::string(tag));
    const std::string noted = NotedFieldValue(n, hand);
    noted.empty() ? job.ClearField(n) : job.SetField(n, noted);
}

void Redraw(int n, bool unlocks, JobInHand& hand) {
    if (unlocks) hand.job.txtField(n).locked = false;
    if (GridRow* row = FindRow(n, hand)) {
        if (unlocks) SetLocked(*row, false, hand);
        DrawRow(*row, hand);
    }
    if (hand.mode == ScreenMode::Job) CountFields(hand);
}

}  // namespace

Listed UpdateListing(int n, std::string_view value, JobInHand& hand, const ListingEntry& entry) {
    if (n == 0) {
        UpdateUserRow(entry.row, value, hand);
        return {};
    }
    Job& job = hand.job;
    if (value == job.txtField(n).text && !entry.filling) return {};
    Listed listed;
    if (!value.empty()) {
        Store(n, value, entry.tag, hand);
        listed.warning = WarningOfTown(n, job);
    } else if (job.IsFilled(n)) {
        job.ClearField(n);
    }
    Redraw(n, entry.filling, hand);
    return listed;
}

void SetLocked(GridRow& row, bool locked, JobInHand& hand) {
    row.locked = locked;
    if (row.kind == RowKind::Field) hand.job.txtField(row.n).locked = locked;
}

}  // namespace quillmark
