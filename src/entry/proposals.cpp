#include "entry/proposals.h"

#include <algorithm>
#include <charconv>

#include "core/field_registry.h"
#include "core/text_conversions.h"
#include "entry/address_book_fields.h"
#include "selection/field_defaults.h"

namespace quillmark {

namespace {

constexpr int kSellerAttorney = 3;
constexpr int kSellerAttorneyEmail = 9;
constexpr int kBuyerLawFirm = 11;
constexpr int kSellerOne = 21;
constexpr int kSellerTwo = 28;
constexpr int kSellerAttorneyCity = 1006;
constexpr int kNamesToChoose[] = {153, 156};
constexpr int kPrincipal = 156;
constexpr int kAttorneyInFact = 161;

/// Where a proposal comes from beside a plain field.
enum class Source { Field, Persons, EitherSeller, OtherSeller, PrincipalsHome, AgentsHome, AttorneysTown };

struct Row {
    int n;
    Source source;
    int from = 0;
};

// clang-format off
constexpr Row kProposals[] = {
    // second seller
    {29,  Source::Field, 23}, {30, Source::Field, 24}, {31, Source::Field, 25}, {33, Source::Field, 27},
    {53,  Source::Field, 21},
    // second buyer
    {65,  Source::Field, 60}, {66, Source::Field, 61}, {67, Source::Field, 62},
    // property
    {70,  Source::Persons, 23}, {71, Source::Persons, 24}, {72, Source::Persons, 25},
    {81,  Source::Field, 79},
    // mortgagors, mortgagees
    {103, Source::Field, 21}, {121, Source::Field, 21}, {131, Source::Field, 21},
    {104, Source::Field, 95}, {122, Source::Field, 113},
    // escrow attorney, witness
    {140, Source::Field, 3}, {141, Source::Field, 4}, {142, Source::Field, 5}, {143, Source::Field, 6},
    {144, Source::Field, 7}, {188, Source::Field, 3},
    // change of name, power of attorney
    {153, Source::EitherSeller}, {156, Source::EitherSeller},
    {157, Source::PrincipalsHome, 0}, {158, Source::PrincipalsHome, 1}, {159, Source::PrincipalsHome, 2},
    {160, Source::Field, 1}, {161, Source::OtherSeller},
    {162, Source::AgentsHome, 0}, {163, Source::AgentsHome, 1}, {164, Source::AgentsHome, 2},
    {187, Source::AttorneysTown},
};
// clang-format on

std::string ValueOf(int n, const Job& job) {
    return job.IsFilled(n) ? job.D(n) : std::string();
}

/// The seller whose name field n holds: 21, 28, or 0.
int SellerNamedIn(int n, const Job& job) {
    if (!job.IsFilled(n)) return 0;
    for (const int seller : {kSellerOne, kSellerTwo})
        if (job.IsFilled(seller) && Trimmed(job.D(n)) == Trimmed(job.D(seller))) return seller;
    return 0;
}

/// A line of a seller's address, 0 to 2.
std::string HomeOf(int seller, int line, const Job& job) {
    constexpr int kBehindName = 2;
    constexpr int kSecondBehindName = 1;
    if (seller == kSellerOne) return ValueOf(seller + kBehindName + line, job);
    if (seller == kSellerTwo) return ValueOf(seller + kSecondBehindName + line, job);
    return {};
}

std::string EitherSeller(const Job& job) {
    std::string sellers = ValueOf(kSellerOne, job);
    if (!sellers.empty() && job.IsFilled(kSellerTwo)) sellers += "; " + job.D(kSellerTwo);
    return sellers;
}

std::string OtherSeller(const Job& job) {
    const int principal = SellerNamedIn(kPrincipal, job);
    if (principal == 0) return {};
    return ValueOf(principal == kSellerOne ? kSellerTwo : kSellerOne, job);
}

/// Sellers who are persons; a firm's address says nothing of the property's.
bool SellersArePersons(const Job& job) {
    return job.optConf(Person) && (job.optConf(OneSeller) || job.optConf(TwoSellers));
}

std::string Proposed(const Row& row, const Job& job) {
    switch (row.source) {
        case Source::Field:
            return ValueOf(row.from, job);
        case Source::Persons:
            return SellersArePersons(job) ? ValueOf(row.from, job) : std::string();
        case Source::EitherSeller:
            return EitherSeller(job);
        case Source::OtherSeller:
            return OtherSeller(job);
        case Source::PrincipalsHome:
            return HomeOf(SellerNamedIn(kPrincipal, job), row.from, job);
        case Source::AgentsHome: {
            const int agent = SellerNamedIn(kAttorneyInFact, job);
            return HomeOf(agent != 0 ? agent : SellerNamedIn(kPrincipal, job), row.from, job);
        }
        case Source::AttorneysTown:
            return job.IsFilled(kSellerAttorneyCity % 1000) ? job.D(kSellerAttorneyCity) : std::string();
    }
    return {};
}

bool IsNameToChoose(int n) {
    return std::find(std::begin(kNamesToChoose), std::end(kNamesToChoose), n) != std::end(kNamesToChoose);
}

bool IsListed(int n, const SelectionState& screen) {
    return std::any_of(screen.grid.begin(), screen.grid.end(),
                       [&](const GridRow& row) { return row.kind == RowKind::Field && row.n == n; });
}

std::size_t PlaceOfAttorney(const Job& job) {
    const std::string& tag = job.txtField(kSellerAttorney).tag;
    std::size_t place = 0;
    std::from_chars(tag.data(), tag.data() + tag.size(), place);
    return place;
}

std::size_t CurrentChoice(const OpenedEditor& editor, int n, const Job& job) {
    if (n == kSellerAttorneyEmail) return std::min(PlaceOfAttorney(job), editor.choices.size() - 1);
    const auto at = std::find(editor.choices.begin(), editor.choices.end(), editor.text);
    return at == editor.choices.end() ? 0 : static_cast<std::size_t>(at - editor.choices.begin());
}

/// The default or the proposal that an unfilled field opens with, and its choices.
void FillFromDefault(OpenedEditor& editor, int n, const SelectionState& screen, const Office& office) {
    const Job& job = screen.job;
    const bool unfilled = !job.IsFilled(n);
    std::string start = FieldDefault(FieldMarker(n), screen, office);
    if (start == FieldMarker(n) && (unfilled || IsNameToChoose(n))) start = Proposal(n, job);
    editor.choices = ChoicesOf(start);
    if (!editor.choices.empty()) editor.currentChoice = CurrentChoice(editor, n, job);
    if (unfilled) editor.text = editor.choices.empty() ? start : editor.choices[editor.currentChoice];
}

bool IsDate(std::string_view marker) {
    return marker.find("[date ") != std::string_view::npos || marker.find(" date") != std::string_view::npos;
}

}  // namespace

std::string Proposal(int n, const Job& job) {
    const auto row = std::find_if(std::begin(kProposals), std::end(kProposals),
                                  [&](const Row& proposal) { return proposal.n == n; });
    return row == std::end(kProposals) ? std::string() : Proposed(*row, job);
}

std::vector<std::string> ChoicesOf(std::string_view list) {
    std::vector<std::string> choices;
    if (!IsChoiceList(list)) return choices;
    for (std::size_t at = 0; at <= list.size();) {
        const std::size_t end = std::min(list.find(';', at), list.size());
        if (const auto choice = Trimmed(list.substr(at, end - at)); !choice.empty())
            choices.emplace_back(choice);
        at = end + 1;
    }
    return choices;
}

OpenedEditor OpenEditor(const GridRow& row, const SelectionState& screen, const Office& office) {
    OpenedEditor editor;
    editor.text = row.value;
    const bool isField = row.kind == RowKind::Field;
    const std::string marker(isField ? FieldMarker(row.n) : std::string_view(row.label));
    if (isField) editor.book = BookOfField(row.n, IsListed(kBuyerLawFirm, screen));
    if (editor.book) {
        if (editor.text.empty() && screen.ScreenMode == screen_mode::kJob) editor.text = marker;
    } else if (isField) {
        FillFromDefault(editor, row.n, screen, office);
    }
    if (IsDate(marker)) editor.calendar = ReadDate(editor.text).value_or(office.clock.Today());
    return editor;
}

}  // namespace quillmark
