#include "selection/relevant_fields.h"

#include <algorithm>
#include <array>

#include "core/field_registry.h"
#include "core/fields.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/paths.h"
#include "platform/record_file.h"
#include "selection/document_table.h"
#include "selection/field_defaults.h"
#include "selection/field_rows.h"

namespace quillmark {

namespace {

constexpr int kForwardingAddress[] = {field::SellerFwdAddr1, field::SellerFwdAddr2,
                                      field::SellerFwdCityStateZip};
constexpr int kSeller1Address[] = {field::Seller1Addr1, field::Seller1Addr2, field::Seller1CityStateZip};
constexpr std::size_t kFormListLimit = 1024 * 1024;  ///< bytes of the largest list of markers
constexpr std::string_view kNewDocument = "[ NEW DOCUMENT ]";

// clang-format off
constexpr int kOptionalFields[] = {
      5,   9,  11,  14,  18,  24,  30,  35,  39,  43,  47,  51,  56,  61,  66,  71,  73,  87,  88,  97, 101,
    110, 111, 112, 115, 119, 128, 129, 130, 142, 158, 163, 167, 171, 172, 173, 174, 176, 177, 178, 179, 180,
    181, 182, 183, 184, 185, 189, 193, 194, 195, 196, 203, 204, 205, 210, 211, 212, 213,
};
// clang-format on

bool IsAttorneyField(int n) {
    return n >= field::SellerLawfirm && n <= field::SellerAttyEmail;
}

/// One default or none: the field is filled silently, locked, and never seen.
void FillSilently(int n, std::string_view value, SelectionState& screen) {
    FieldHolder& holder = screen.job.txtField(n);
    if (!screen.job.IsFilled(n)) {
        screen.job.SetField(n, value);
        holder.top = 0;
    }
    holder.locked = true;
}

void AddField(int n, SelectionState& screen, const Office& office) {
    FieldHolder& holder = screen.job.txtField(n);
    if (holder.relevant || holder.top == 0) return;
    if (IsAttorneyField(n)) {
        const std::string value = FieldDefault(FieldMarker(n), screen, office);
        if (!IsChoiceList(value)) {
            FillSilently(n, value, screen);
            return;
        }
    }
    holder.relevant = true;
    ++screen.relevantFieldCount;
    if (!holder.locked) screen.job.ClearField(n);
}

void StartAnew(SelectionState& screen) {
    for (int n = 1; n <= kFields; ++n) {
        FieldHolder& holder = screen.job.txtField(n);
        if (!holder.locked) screen.job.SetField(n, "");
        holder.relevant = false;
        // The property's own mark, a multi-family rental, is not of the documents' making.
        if (n != field::PropertyAddress1) holder.tag.clear();
    }
    for (OptionButton& button : screen.options) button.enabled = false;
    screen.lblJump.fill({});
    screen.grid.clear();
    screen.userMarkers.clear();
    screen.relevantFieldCount = 0;
}

void EnableOptions(const DocumentFields& row, SelectionState& screen) {
    for (const int option : row.options) screen.options[static_cast<std::size_t>(option)].enabled = true;
    const bool isClosingStatement = row.document.starts_with("Closing Statement");
    if (isClosingStatement && !screen.job.optConf(Condo)) screen.options[LandMultiFamily].enabled = true;
}

void ApplyAddition(const Addition& addition, SelectionState& screen, const Office& office) {
    if (screen.job.optConf(addition.option) == (addition.when == When::NotOption)) return;
    AddFields(addition.fields, screen, office);
    if (addition.when != When::Principal) return;
    if (screen.job.IsFilled(field::Seller2Name))
        AddField(field::PrincipalOfPower, screen, office);
    else
        screen.job.ClearField(field::PrincipalOfPower);
}

void ApplyDocument(const DocumentFields& row, SelectionState& screen, const Office& office) {
    AddFields(row.fields, screen, office);
    EnableOptions(row, screen);
    for (const Addition& addition : row.additions) ApplyAddition(addition, screen, office);
    if (!row.capacity.empty()) screen.job.txtField(field::Seller1Name).tag = row.capacity;
}

void AddUserMarker(std::string marker, SelectionState& screen) {
    auto& markers = screen.userMarkers;
    if (std::find(markers.begin(), markers.end(), marker) == markers.end())
        markers.push_back(std::move(marker));
}

/// The markers that a custom document holds, as its list beside the document has them.
void ApplyCustomDocument(std::string_view name, SelectionState& screen, const Office& office) {
    const auto file = FindExisting(office.folders.CustomFormsFolder / PathOf(std::string(name) + ".inf"));
    const std::string bytes = ReadFile(file, kFormListLimit);
    RecordReader records(TextOf(file), bytes);
    std::vector<int> fields = {field::DocumentDate};
    while (records.Next()) {
        const int n = static_cast<int>(records.Number(1));
        if (n < 0 || n > kFields) records.Fail("there is no field " + std::to_string(n));
        if (n == 0)
            AddUserMarker(records.Text(0), screen);
        else
            fields.push_back(n);
    }
    AddFields(fields, screen, office);
}

bool ApplyEntry(const std::string& entry, SelectionState& screen, const Office& office) {
    if (const DocumentFields* row = FieldsOfDocument(entry)) {
        ApplyDocument(*row, screen, office);
        return row->mailingAddress;
    }
    const std::string_view custom = CustomDocumentName(entry);
    if (!custom.empty()) ApplyCustomDocument(custom, screen, office);
    return false;
}

void ApplyJobList(SelectionState& screen, const Office& office) {
    bool mailingAddress = false;
    for (std::size_t i = 0; i < screen.List2.size(); ++i)
        mailingAddress |= ApplyEntry(screen.List2[i].name, screen, office);
    if (mailingAddress) {
        const bool forwards = screen.job.IsFilled(field::SellerFwdAddr1);
        AddFields(forwards ? kForwardingAddress : kSeller1Address, screen, office);
    }
    const std::string capacity = screen.job.txtField(field::Seller1Name).tag;
    if (!capacity.empty())
        screen.job.SetField(field::FiduciaryType, capacity);
    else if (screen.job.optConf(EstateTrust) && !screen.List2.empty())
        AddField(field::FiduciaryType, screen, office);
}

/// The first of several choices is what an attorney's field starts with.
void StartWithFirstChoices(SelectionState& screen, const Office& office) {
    for (int n = field::SellerLawfirm; n <= field::SellerAttyFax; ++n) {
        if (screen.job.IsFilled(n)) continue;
        screen.job.SetField(n, FirstChoice(FieldDefault(FieldMarker(n), screen, office)));
    }
}

/// The choice that took documents off the list must be there to bring them back.
void KeepWaysBack(SelectionState& screen) {
    const auto enable = [&](std::initializer_list<int> options) {
        for (const int n : options) screen.options[static_cast<std::size_t>(n)].enabled = true;
    };
    if (!screen.ParkedDocuments[0].empty()) enable({Person, Entity, Condo, Commercial});
    if (!screen.ParkedDocuments[1].empty()) enable({OnePayoff, TwoPayoffs});
}

void ApplyExclusions(SelectionState& screen) {
    const Job& job = screen.job;
    const auto exclude = [&](int option, std::initializer_list<int> others) {
        for (const int other : others)
            if (job.optConf(other)) screen.options[static_cast<std::size_t>(option)].enabled = false;
    };
    exclude(TwoSellers, {EstateTrust, Entity});
    exclude(Entity, {EstateTrust, PowerOfAttorney, TwoSellers});
    exclude(PowerOfAttorney, {Entity});
    exclude(EstateTrust, {Entity, TwoSellers});
    if (screen.options[LandMultiFamily].enabled) screen.options[LandMultiFamily].visible = true;
}

/// In a template every user-defined field can be given a value.
std::vector<std::string> AllUserMarkers(const Office& office) {
    const auto file = FindExisting(office.folders.CustomFormsFolder / "userfields.lst");
    std::vector<std::string> markers;
    if (!std::filesystem::exists(file)) return markers;
    const std::string names = FromWindows1252(ReadFile(file, kFormListLimit));
    for (std::size_t at = 0; at < names.size();) {
        const std::size_t end = std::min(names.find_first_of("\r\n", at), names.size());
        if (end > at) markers.push_back("[" + names.substr(at, end - at) + "]");
        at = end + 1;
    }
    return markers;
}

void ShowGuidance(SelectionState& screen) {
    for (JumpLabel& label : screen.lblJump) label.current = false;
    const auto first = std::find_if(screen.lblJump.begin(), screen.lblJump.end(),
                                    [](const JumpLabel& label) { return label.enabled; });
    if (first != screen.lblJump.end()) first->current = true;
    screen.picInfo = " Click an item for edit";
    if (screen.ScreenMode == screen_mode::kPresets) {
        screen.picInfo += ".  Use scroll bar or jump labels to navigate";
        return;
    }
    screen.picInfo += " (Double-Click if locked)";
    if (screen.ScreenMode == screen_mode::kEdit)
        screen.picInfo += ".  Use Enter, Tab, or Up/Down Arrow keys to navigate";
}

}  // namespace

bool IsOptionalField(int n, const Job& job) {
    if (n == field::MonthlyCommonChg) return !job.optConf(Condo);
    return std::binary_search(std::begin(kOptionalFields), std::end(kOptionalFields), n);
}

std::string_view CustomDocumentName(std::string_view entry) {
    if (!entry.starts_with("[ ") || !entry.ends_with(" ]") || entry.size() < 5 || entry == kNewDocument)
        return {};
    return entry.substr(2, entry.size() - 4);
}

void AddFields(std::span<const int> fields, SelectionState& screen, const Office& office) {
    for (const int n : fields) AddField(n, screen, office);
}

void CountFields(SelectionState& screen) {
    const Job& job = screen.job;
    int open = 0;
    int optional = 0;
    for (int n = 1; n <= kFields; ++n) {
        if (!job.txtField(n).relevant || job.txtField(n).text != FieldMarker(n)) continue;
        ++open;
        if (IsOptionalField(n, job)) ++optional;
    }
    std::array<int, 7> openInGroup = {};
    for (std::size_t i = 0; i + 1 < screen.grid.size(); ++i) {
        const GridRow& row = screen.grid[i];
        if (row.label.ends_with('*'))
            ++openInGroup[static_cast<std::size_t>(GroupOfKey(row.key))];
        else if (row.kind == RowKind::User && row.value.empty())
            ++open;
    }
    for (std::size_t group = 1; group < openInGroup.size(); ++group) {
        JumpLabel& label = screen.lblJump[group];
        label.complete = screen.ScreenMode == screen_mode::kJob && label.enabled && openInGroup[group] == 0;
    }
    screen.total = screen.relevantFieldCount;
    screen.remaining = open - optional;
}

void RefreshFields(SelectionState& screen, const Office& office, bool headingsOnly) {
    if (!headingsOnly) {
        if (screen.ScreenMode == screen_mode::kJob) StartAnew(screen);
        ApplyJobList(screen, office);
        StartWithFirstChoices(screen, office);
        KeepWaysBack(screen);
        ApplyExclusions(screen);
        if (screen.ScreenMode == screen_mode::kPresets) screen.userMarkers = AllUserMarkers(office);
        RebuildRows(screen);
    }
    PlaceHeadings(screen);
    if (screen.ScreenMode == screen_mode::kJob) CountFields(screen);
    ShowGuidance(screen);
}

}  // namespace quillmark
