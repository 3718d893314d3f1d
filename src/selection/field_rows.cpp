#include "selection/field_rows.h"

#include <algorithm>
#include <utility>

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

bool HasRow(int n, const JobInHand& hand) {
    const std::string_view marker = FieldMarker(n);
    if (marker.empty() || marker == "[]") return false;
    if (hand.mode == ScreenMode::Edit && hand.job.IsFilled(n)) return true;
    if (hand.mode == ScreenMode::Presets && n > field::DocumentDate && n < field::Placeholder) return true;
    return hand.job.txtField(n).relevant;
}

/// Rows by key, equal keys in the order in which they come.
void InsertByKey(GridRow row, float sortKey, std::vector<float>& keys, std::vector<GridRow>& grid) {
    const auto at = std::upper_bound(keys.begin(), keys.end(), sortKey);
    grid.insert(grid.begin() + (at - keys.begin()), std::move(row));
    keys.insert(at, sortKey);
}

/// Beside a job, rows are also what later loops take the fields from.
void PrepareHolder(int n, JobInHand& hand) {
    FieldHolder& holder = hand.job.txtField(n);
    holder.relevant = true;
    if (n > field::SellerAttyEmail) return;
    holder.locked = true;
    if (n == field::SellerAttyEmail && holder.text.empty()) hand.job.ClearField(n);
}

GridRow HeadingRow(const Group& group) {
    GridRow row;
    row.kind = RowKind::Heading;
    row.label = fmt::format("{:~>{}}", group.label, kHeadingWidth);
    return row;
}

void AddUserRows(JobInHand& hand) {
    if (hand.mode == ScreenMode::Edit) {
        for (const auto& [marker, value] : hand.job.userFields) AddUserRow(marker, hand);
        return;
    }
    for (const std::string& marker : hand.userMarkers) {
        AddUserRow(std::string_view(marker).substr(0, marker.find(']') + 1), hand);
        if (hand.mode == ScreenMode::Job) ++hand.relevantFieldCount;
    }
}

}  // namespace

std::string RowLabel(int n, const JobInHand& hand) {
    const std::string_view marker = FieldMarker(n);
    const Job& job = hand.job;
    const bool mustBeFilled = hand.mode == ScreenMode::Job && !IsOptionalField(n, job) &&
                              job.txtField(n).colour == FieldColour::Unfilled;
    return mustBeFilled ? fmt::format("{:<{}}*", marker, kMarkerWidth) : std::string(marker);
}

void DrawRow(GridRow& row, const JobInHand& hand) {
    if (row.kind == RowKind::User) row.value = hand.job.UserField(row.label);
    if (row.kind != RowKind::Field) return;
    row.label = RowLabel(row.n, hand);
    row.locked = hand.job.txtField(row.n).locked;
    row.value = hand.job.IsFilled(row.n) ? hand.job.D(row.n) : std::string();
    DrawOptionTags(row, hand);
}

const GridRow* FindRow(int n, const JobInHand& hand) {
    const auto row = std::find_if(hand.grid.begin(), hand.grid.end(),
                                  [&](const GridRow& r) { return r.kind == RowKind::Field && r.n == n; });
    return row == hand.grid.end() ? nullptr : &*row;
}

GridRow* FindRow(int n, JobInHand& hand) {
    return const_cast<GridRow*>(FindRow(n, std::as_const(hand)));
}

int GroupOfKey(std::string_view key) {
    const Group* group = FindGroup(key);
    return group ? group->jump : 0;
}

void AddUserRow(std::string_view marker, JobInHand& hand) {
    GridRow row;
    row.kind = RowKind::User;
    row.label = marker;
    row.key = kUserKey;
    DrawRow(row, hand);
    hand.grid.push_back(std::move(row));
}

void RebuildRows(JobInHand& hand) {
    std::vector<GridRow> grid;
    std::vector<float> keys;
    const int first = hand.mode == ScreenMode::Presets ? kFirstTemplateField : 1;
    for (int n = first; n <= kFields; ++n) {
        if (!HasRow(n, hand)) continue;
        if (hand.mode != ScreenMode::Job) PrepareHolder(n, hand);
        GridRow row;
        row.n = n;
        row.key = KeyText(FieldSortKey(n));
        DrawRow(row, hand);
        InsertByKey(std::move(row), FieldSortKey(n), keys, grid);
    }
    hand.grid = std::move(grid);
    AddUserRows(hand);
}

void PlaceHeadings(JobInHand& hand) {
    std::erase_if(hand.grid, [](const GridRow& row) { return row.kind == RowKind::Heading; });
    hand.groups.fill({});
    int limit = 0;
    for (std::size_t i = 0; i < hand.grid.size(); ++i) {
        const Group* group = FindGroup(hand.grid[i].key);
        if (!group || limit >= group->limit) continue;
        hand.grid.insert(hand.grid.begin() + static_cast<std::ptrdiff_t>(i), HeadingRow(*group));
        limit = group->limit;
        if (group->jump == 0) continue;
        hand.groups[static_cast<std::size_t>(group->jump)].headingRow = static_cast<int>(i);
    }
}

}  // namespace quillmark
