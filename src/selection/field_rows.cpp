#include "selection/field_rows.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/field_registry.h"
#include "core/fields.h"
#include "selection/option_tags.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

constexpr std::size_t kMarkerWidth = 24;  ///< the asterisks of required fields line up behind it
constexpr std::size_t kHeadingWidth = 25;
constexpr field::Field kFirstTemplateField = field::SellerAttysFee;

struct Group {
    std::string_view above;  ///< a key greater than this text belongs to it
    int limit;
    std::string_view label;
    int jump;  ///< number of its label, 0 for none
};

// clang-format off
constexpr std::string_view kUserKey = "9999";
constexpr Group kUserGroup = {"", 10000, " USER-DEFINED", 0};
constexpr Group kGroups[] = {
    {"6000", 7000, " ADJUSTMENTS",          6},
    {"5000", 6000, " PAYOFF/ESCROW",        5},
    {"4000", 5000, " PROPERTY/TRANSACTION", 4},
    {"3000", 4000, " BUYER",                3},
    {"2000", 3000, " SELLER/FIDUCIARY",     2},
    {"1000", 2000, " ATTORNEY",             1},
};
// clang-format on

const Group* FindGroup(std::string_view key) {
    if (key == kUserKey) return &kUserGroup;
    const auto group =
        std::find_if(std::begin(kGroups), std::end(kGroups), [&](const Group& g) { return key > g.above; });
    return group == std::end(kGroups) ? nullptr : &*group;
}

std::string KeyText(float sortKey) {
    return fmt::format("{:g}", sortKey);
}

bool HasRow(int n, const SelectionState& screen) {
    const std::string_view marker = FieldMarker(n);
    if (marker.empty() || marker == "[]") return false;
    if (screen.ScreenMode == screen_mode::kEdit && screen.job.IsFilled(n)) return true;
    if (screen.ScreenMode == screen_mode::kPresets && n > field::DocumentDate && n < field::Placeholder)
        return true;
    return screen.job.txtField(n).relevant;
}

/// Rows by key, equal keys in the order in which they come.
void InsertByKey(GridRow row, float sortKey, std::vector<float>& keys, std::vector<GridRow>& grid) {
    const auto at = std::upper_bound(keys.begin(), keys.end(), sortKey);
    grid.insert(grid.begin() + (at - keys.begin()), std::move(row));
    keys.insert(at, sortKey);
}

/// Beside a job, rows are also what later loops take the fields from.
void PrepareHolder(int n, SelectionState& screen) {
    FieldHolder& holder = screen.job.txtField(n);
    holder.relevant = true;
    if (n > field::SellerAttyEmail) return;
    holder.locked = true;
    if (n == field::SellerAttyEmail && holder.text.empty()) screen.job.ClearField(n);
}

GridRow HeadingRow(const Group& group) {
    GridRow row;
    row.kind = RowKind::Heading;
    row.label = fmt::format("{:~>{}}", group.label, kHeadingWidth);
    return row;
}

void AddUserRows(SelectionState& screen) {
    if (screen.ScreenMode == screen_mode::kEdit) {
        for (const auto& [marker, value] : screen.job.userFields) AddUserRow(marker, screen);
        return;
    }
    for (const std::string& marker : screen.userMarkers) {
        AddUserRow(std::string_view(marker).substr(0, marker.find(']') + 1), screen);
        if (screen.ScreenMode == screen_mode::kJob) ++screen.relevantFieldCount;
    }
}

}  // namespace

std::string RowLabel(int n, const SelectionState& screen) {
    const std::string_view marker = FieldMarker(n);
    const Job& job = screen.job;
    const bool mustBeFilled = screen.ScreenMode == screen_mode::kJob && !IsOptionalField(n, job) &&
                              job.txtField(n).colour == FieldColour::Unfilled;
    return mustBeFilled ? fmt::format("{:<{}}*", marker, kMarkerWidth) : std::string(marker);
}

void DrawRow(GridRow& row, const SelectionState& screen) {
    if (row.kind == RowKind::User) row.value = screen.job.UserField(row.label);
    if (row.kind != RowKind::Field) return;
    row.label = RowLabel(row.n, screen);
    row.locked = screen.job.txtField(row.n).locked;
    row.value = screen.job.IsFilled(row.n) ? screen.job.D(row.n) : std::string();
    DrawOptionTags(row, screen);
}

GridRow* FindRow(int n, SelectionState& screen) {
    const auto row = std::find_if(screen.grid.begin(), screen.grid.end(),
                                  [&](const GridRow& r) { return r.kind == RowKind::Field && r.n == n; });
    return row == screen.grid.end() ? nullptr : &*row;
}

int GroupOfKey(std::string_view key) {
    const Group* group = FindGroup(key);
    return group ? group->jump : 0;
}

void AddUserRow(std::string_view marker, SelectionState& screen) {
    GridRow row;
    row.kind = RowKind::User;
    row.label = marker;
    row.key = kUserKey;
    DrawRow(row, screen);
    screen.grid.push_back(std::move(row));
}

void RebuildRows(SelectionState& screen) {
    std::vector<GridRow> grid;
    std::vector<float> keys;
    const int first = screen.ScreenMode == screen_mode::kPresets ? kFirstTemplateField : 1;
    for (int n = first; n <= kFields; ++n) {
        if (!HasRow(n, screen)) continue;
        if (screen.ScreenMode != screen_mode::kJob) PrepareHolder(n, screen);
        GridRow row;
        row.n = n;
        row.key = KeyText(FieldSortKey(n));
        DrawRow(row, screen);
        InsertByKey(std::move(row), FieldSortKey(n), keys, grid);
    }
    screen.grid = std::move(grid);
    screen.currentRow = -1;
    AddUserRows(screen);
}

void PlaceHeadings(SelectionState& screen) {
    std::erase_if(screen.grid, [](const GridRow& row) { return row.kind == RowKind::Heading; });
    screen.lblJump.fill({});
    int limit = 0;
    for (std::size_t i = 0; i < screen.grid.size(); ++i) {
        const Group* group = FindGroup(screen.grid[i].key);
        if (!group || limit >= group->limit) continue;
        screen.grid.insert(screen.grid.begin() + static_cast<std::ptrdiff_t>(i), HeadingRow(*group));
        limit = group->limit;
        if (group->jump == 0) continue;
        JumpLabel& label = screen.lblJump[static_cast<std::size_t>(group->jump)];
        label.enabled = true;
        label.headingRow = static_cast<int>(i);
    }
}

}  // namespace quillmark
