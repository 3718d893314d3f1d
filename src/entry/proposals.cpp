#include "entry/proposals.h"

#include <algorithm>
#include <charconv>

#include "core/field_registry.h"
#include "core/fields.h"
#include "core/text_conversions.h"
#include "entry/address_book_fields.h"
#include "selection/field_defaults.h"

namespace quillmark {

namespace {

constexpr int kNamesToChoose[] = {field::SellerCurrentName, field::PrincipalOfPower};

/// Where a proposal comes from beside a plain field.
enum class Source { Field, Persons, EitherSeller, OtherSeller, PrincipalsHome, AgentsHome, AttorneysTown };

struct Row {
    int n;
    Source source;
    int from = 0;
};

using namespace field;

// clang-format off
constexpr Row kProposals[] = {
    // second seller
    {Seller2Addr1,            Source::Field, Seller1Addr1},
    {Seller2Addr2,            Source::Field, Seller1Addr2},
    {Seller2CityStateZip,     Source::Field, Seller1CityStateZip},
    {Seller2Phone,            Source::Field, Seller1Phone},
    {ConservedParty,          Source::Field, Seller1Name},
    // second buyer
    {Buyer2Addr1,             Source::Field, Buyer1Addr1},
    {Buyer2Addr2,             Source::Field, Buyer1Addr2},
    {Buyer2CityStateZip,      Source::Field, Buyer1CityStateZip},
    // property
    {PropertyAddress1,        Source::Persons, Seller1Addr1},
    {PropertyAddress2,        Source::Persons, Seller1Addr2},
    {PropertyCityStateZip,    Source::Persons, Seller1CityStateZip},
    {ProrationDate,           Source::Field, ClosingDate},
    // mortgagors, mortgagees
    {Payoff1Mortgagor,        Source::Field, Seller1Name},
    {Payoff2Mortgagor,        Source::Field, Seller1Name},
    {IndemMortgagor,          Source::Field, Seller1Name},
    {Payoff1Mortgagee,        Source::Field, Payoff1Servicer},
    {Payoff2Mortgagee,        Source::Field, Payoff2Servicer},
    // escrow attorney, witness
    {EscrowAtty,              Source::Field, SellerAtty},
    {EscrowAttyAddr1,         Source::Field, SellerAttyAddr1},
    {EscrowAttyAddr2,         Source::Field, SellerAttyAddr2},
    {EscrowAttyCityStateZip,  Source::Field, SellerAttyCityStateZip},
    {EscrowAttyPhone,         Source::Field, SellerAttyPhone},
    {Witness1,                Source::Field, SellerAtty},
    // change of name, power of attorney
    {SellerCurrentName,       Source::EitherSeller},
    {PrincipalOfPower,        Source::EitherSeller},
    {PrincipalAddr1,          Source::PrincipalsHome, 0},
    {PrincipalAddr2,          Source::PrincipalsHome, 1},
    {PrincipalCityStateZip,   Source::PrincipalsHome, 2},
    {DateOfPower,             Source::Field, DocumentDate},
    {AttyInFact,              Source::OtherSeller},
    {AttyInFactAddr1,         Source::AgentsHome, 0},
    {AttyInFactAddr2,         Source::AgentsHome, 1},
    {AttyInFactCityStateZip,  Source::AgentsHome, 2},
    {TownOfExecution,         Source::AttorneysTown},
};
// clang-format on

std::string ValueOf(int n, const Job& job) {
    return job.IsFilled(n) ? job.D(n) : std::string();
}

/// The seller (the field of the name) whom field n names; 0 for neither.
int SellerNamedIn(int n, const Job& job) {
    if (!job.IsFilled(n)) return 0;
    for (const int seller : {field::Seller1Name, field::Seller2Name})
        if (job.IsFilled(seller) && Trimmed(job.D(n)) == Trimmed(job.D(seller))) return seller;
    return 0;
}

/// A line of a seller's address, 0 to 2.
std::string HomeOf(int seller, int line, const Job& job) {
    constexpr int kBehindName = 2;
    constexpr int kSecondBehindName = 1;
    if (seller == field::Seller1Name) return ValueOf(seller + kBehindName + line, job);
    if (seller == field::Seller2Name) return ValueOf(seller + kSecondBehindName + line, job);
    return {};
}

std::string EitherSeller(const Job& job) {
    std::string sellers = ValueOf(field::Seller1Name, job);
    if (!sellers.empty() && job.IsFilled(field::Seller2Name)) sellers += "; " + job.D(field::Seller2Name);
    return sellers;
}

std::string OtherSeller(const Job& job) {
    const int principal = SellerNamedIn(field::PrincipalOfPower, job);
    if (principal == 0) return {};
    return ValueOf(principal == field::Seller1Name ? field::Seller2Name : field::Seller1Name, job);
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
            return HomeOf(SellerNamedIn(field::PrincipalOfPower, job), row.from, job);
        case Source::AgentsHome: {
            const int agent = SellerNamedIn(field::AttyInFact, job);
            return HomeOf(agent != 0 ? agent : SellerNamedIn(field::PrincipalOfPower, job), row.from, job);
        }
        case Source::AttorneysTown:
            return job.IsFilled(SellerAttyCityStateZip) ? job.D(Part(1, SellerAttyCityStateZip))
                                                        : std::string();
    }
    return {};
}

bool IsNameToChoose(int n) {
    return std::find(std::begin(kNamesToChoose), std::end(kNamesToChoose), n) != std::end(kNamesToChoose);
}

bool IsListed(int n, const JobInHand& hand) {
    return std::any_of(hand.grid.begin(), hand.grid.end(),
                       [&](const GridRow& row) { return row.kind == RowKind::Field && row.n == n; });
}

std::size_t PlaceOfAttorney(const Job& job) {
    const std::string& tag = job.txtField(field::SellerAtty).tag;
    std::size_t place = 0;
    std::from_chars(tag.data(), tag.data() + tag.size(), place);
    return place;
}

std::size_t CurrentChoice(const OpenedEditor& editor, int n, const Job& job) {
    if (n == field::SellerAttyEmail) return std::min(PlaceOfAttorney(job), editor.choices.size() - 1);
    const auto at = std::find(editor.choices.begin(), editor.choices.end(), editor.text);
    return at == editor.choices.end() ? 0 : static_cast<std::size_t>(at - editor.choices.begin());
}

/// The default or the proposal that an unfilled field opens with, and its choices.
void FillFromDefault(OpenedEditor& editor, int n, const JobInHand& hand, const FirmContext& firm) {
    const Job& job = hand.job;
    const bool unfilled = !job.IsFilled(n);
    std::string start = FieldDefault(FieldMarker(n), hand, firm);
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

OpenedEditor OpenEditor(const GridRow& row, const JobInHand& hand, const FirmContext& firm) {
    OpenedEditor editor;
    editor.text = row.value;
    const bool isField = row.kind == RowKind::Field;
    const std::string marker(isField ? FieldMarker(row.n) : std::string_view(row.label));
    if (isField) editor.book = BookOfField(row.n, IsListed(field::BuyerLawfirm, hand));
    if (editor.book) {
        if (editor.text.empty() && hand.mode == ScreenMode::Job) editor.text = marker;
    } else if (isField) {
        FillFromDefault(editor, row.n, hand, firm);
    }
    if (IsDate(marker)) editor.calendar = ReadDate(editor.text).value_or(firm.clock.Today());
    return editor;
}

}  // namespace quillmark
