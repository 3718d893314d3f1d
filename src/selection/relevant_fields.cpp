#include "selection/relevant_fields.h"

#include <algorithm>
#include <array>

#include "core/custom_forms.h"
#include "core/field_registry.h"
#include "core/fields.h"
#include "selection/document_catalogue.h"
#include "selection/document_table.h"
#include "selection/field_defaults.h"
#include "selection/field_rows.h"

namespace quillmark {

namespace {

constexpr int kForwardingAddress[] = {field::SellerFwdAddr1, field::SellerFwdAddr2,
                                      field::SellerFwdCityStateZip};
constexpr int kSeller1Address[] = {field::Seller1Addr1, field::Seller1Addr2, field::Seller1CityStateZip};

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
void FillSilently(int n, std::string_view value, JobInHand& hand) {
    FieldHolder& holder = hand.job.txtField(n);
    if (!hand.job.IsFilled(n)) {
        hand.job.SetField(n, value);
        holder.top = 0;
    }
    holder.locked = true;
}

void AddField(int n, JobInHand& hand, const FirmContext& firm) {
    FieldHolder& holder = hand.job.txtField(n);
    if (holder.relevant || holder.top == 0) return;
    if (IsAttorneyField(n)) {
        const std::string value = FieldDefault(FieldMarker(n), hand, firm);
        if (!IsChoiceList(value)) {
            FillSilently(n, value, hand);
            return;
        }
    }
    holder.relevant = true;
    ++hand.relevantFieldCount;
    if (!holder.locked) hand.job.ClearField(n);
}

void StartAnew(JobInHand& hand) {
    for (int n = 1; n <= kFields; ++n) {
        FieldHolder& holder = hand.job.txtField(n);
        if (!holder.locked) hand.job.SetField(n, "");
        holder.relevant = false;
        // The property's own mark, a multi-family rental, is not of the documents' making.
        if (n != field::PropertyAddress1) holder.tag.clear();
    }
    hand.groups.fill({});
    hand.grid.clear();
    hand.userMarkers.clear();
    hand.relevantFieldCount = 0;
}

/// Collects what the documents of a list ask for.
class NeedsReader {
 public:
    NeedsReader(const Job& job, const std::filesystem::path& customForms)
        : job_(job), customForms_(customForms) {}

    void ReadEntry(std::string_view entry) {
        if (const DocumentFields* row = FieldsOfDocument(entry)) return ReadDocument(*row);
        const std::string_view custom = CustomDocumentName(entry);
        if (!custom.empty()) ReadCustomDocument(custom);
    }

    JobNeeds Take() {
        if (mailingAddress_) {
            const bool forwards = job_.IsFilled(field::SellerFwdAddr1);
            Add(forwards ? kForwardingAddress : kSeller1Address);
        }
        return std::move(needs_);
    }

 private:
    void Add(std::span<const int> fields) {
        for (const int n : fields) {
            if (seen_[static_cast<std::size_t>(n)]) continue;
            seen_[static_cast<std::size_t>(n)] = true;
            needs_.fields.push_back(n);
        }
    }

    void AddUserMarker(std::string marker) {
        auto& markers = needs_.userMarkers;
        if (std::find(markers.begin(), markers.end(), marker) == markers.end())
            markers.push_back(std::move(marker));
    }

    void ReadDocument(const DocumentFields& row) {
        Add(row.fields);
        for (const int option : row.options) needs_.options.set(static_cast<std::size_t>(option));
        if (row.document.starts_with(kClosingStatement) && !job_.optConf(Condo))
            needs_.options.set(LandMultiFamily);
        for (const Addition& addition : row.additions) ReadAddition(addition);
        if (!row.capacity.empty()) needs_.capacity = row.capacity;
        mailingAddress_ |= row.mailingAddress;
    }

    void ReadAddition(const Addition& addition) {
        if (job_.optConf(addition.option) == (addition.when == When::NotOption)) return;
        Add(addition.fields);
        if (addition.when != When::Principal) return;
        constexpr int kPrincipal[] = {field::PrincipalOfPower};
        if (job_.IsFilled(field::Seller2Name))
            Add(kPrincipal);
        else
            needs_.principalIsSeller = true;
    }

    /// The markers that a custom document holds, as its list beside the document has them.
    void ReadCustomDocument(std::string_view name) {
        std::vector<int> fields = {field::DocumentDate};
        for (FormMarker& marker : ReadFormMarkers(MarkerFile(customForms_, name))) {
            if (marker.field == 0)
                AddUserMarker(std::move(marker.marker));
            else
                fields.push_back(marker.field);
        }
        Add(fields);
    }

    const Job& job_;
    const std::filesystem::path& customForms_;
    JobNeeds needs_;
    std::array<bool, kFields + 1> seen_ = {};
    bool mailingAddress_ = false;
};

void ApplyNeeds(const JobNeeds& needs, JobInHand& hand, const FirmContext& firm) {
    AddFields(needs.fields, hand, firm);
    for (const std::string& marker : needs.userMarkers)
        if (std::find(hand.userMarkers.begin(), hand.userMarkers.end(), marker) == hand.userMarkers.end())
            hand.userMarkers.push_back(marker);
    if (needs.principalIsSeller) hand.job.ClearField(field::PrincipalOfPower);
    std::string& capacity = hand.job.txtField(field::Seller1Name).tag;
    if (!needs.capacity.empty()) capacity = needs.capacity;
    if (!capacity.empty())
        hand.job.SetField(field::FiduciaryType, std::string(capacity));
    else if (hand.job.optConf(EstateTrust) && !hand.List2.empty())
        AddField(field::FiduciaryType, hand, firm);
}

/// The first of several choices is what an attorney's field starts with.
void StartWithFirstChoices(JobInHand& hand, const FirmContext& firm) {
    for (int n = field::SellerLawfirm; n <= field::SellerAttyFax; ++n) {
        if (hand.job.IsFilled(n)) continue;
        hand.job.SetField(n, FirstChoice(FieldDefault(FieldMarker(n), hand, firm)));
        FieldHolder& holder = hand.job.txtField(n);
        holder.forShow = !holder.relevant && holder.top != 0;
    }
}

/// What the documents enable that a choice took off the list: the choice must be there to bring them back.
OptionSet WaysBack(const JobInHand& hand) {
    OptionSet options;
    for (const auto& parked : hand.ParkedDocuments)
        for (const std::string& document : parked)
            if (const DocumentFields* row = FieldsOfDocument(document))
                for (const int option : row->options) options.set(static_cast<std::size_t>(option));
    return options;
}

/// In a template every user-defined field can be given a value.
std::vector<std::string> AllUserMarkers(const FirmContext& firm) {
    std::vector<std::string> markers = UserFieldNames(firm.folders.CustomFormsFolder);
    for (std::string& marker : markers) marker = "[" + marker + "]";
    return markers;
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

void AddFields(std::span<const int> fields, JobInHand& hand, const FirmContext& firm) {
    for (const int n : fields) AddField(n, hand, firm);
}

OpenFields OpenFieldsOf(const JobInHand& hand) {
    OpenFields open;
    for (int n = 1; n <= kFields; ++n) {
        const FieldHolder& holder = hand.job.txtField(n);
        if (!holder.relevant || holder.text != FieldMarker(n)) continue;
        (IsOptionalField(n, hand.job) ? open.optional : open.required).emplace_back(FieldMarker(n));
    }
    for (const GridRow& row : hand.grid)
        if (row.kind == RowKind::User && row.value.empty()) open.required.push_back(row.label);
    return open;
}

void CountFields(JobInHand& hand) {
    const Job& job = hand.job;
    int open = 0;
    int optional = 0;
    for (int n = 1; n <= kFields; ++n) {
        if (!job.txtField(n).relevant || job.txtField(n).text != FieldMarker(n)) continue;
        ++open;
        if (IsOptionalField(n, job)) ++optional;
    }
    std::array<int, 7> openInGroup = {};
    for (std::size_t i = 0; i + 1 < hand.grid.size(); ++i) {
        const GridRow& row = hand.grid[i];
        if (row.label.ends_with('*'))
            ++openInGroup[static_cast<std::size_t>(GroupOfKey(row.key))];
        else if (row.kind == RowKind::User && row.value.empty())
            ++open;
    }
    for (std::size_t g = 1; g < openInGroup.size(); ++g) {
        GridGroup& group = hand.groups[g];
        group.complete = hand.mode == ScreenMode::Job && group.HasRows() && openInGroup[g] == 0;
    }
    hand.total = hand.relevantFieldCount;
    hand.remaining = open - optional;
}

JobNeeds NeedsOf(const std::vector<JobListLine>& list, const Job& job,
                 const std::filesystem::path& customForms) {
    NeedsReader reader(job, customForms);
    for (const JobListLine& line : list) reader.ReadEntry(line.name);
    return reader.Take();
}

OptionSet RefreshFields(JobInHand& hand, const FirmContext& firm) {
    if (hand.mode == ScreenMode::Job) StartAnew(hand);
    const JobNeeds needs = NeedsOf(hand.List2, hand.job, firm.folders.CustomFormsFolder);
    ApplyNeeds(needs, hand, firm);
    StartWithFirstChoices(hand, firm);
    if (hand.mode == ScreenMode::Presets) hand.userMarkers = AllUserMarkers(firm);
    RebuildRows(hand);
    PlaceHeadings(hand);
    if (hand.mode == ScreenMode::Job) CountFields(hand);
    return needs.options | WaysBack(hand);
}

}  // namespace quillmark
