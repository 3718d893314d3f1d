#include <algorithm>
#include <vector>

#include "core/text_conversions.h"
#include "production/builders/closing/statement_lines.h"
#include "production/kit/job_values.h"
#include "production/kit/typing.h"

namespace quillmark {

using namespace field;

namespace {

constexpr double kRightColumn = 3.75;
/// Where the realtors' blanks stand behind their labels, and the figures behind theirs.
constexpr double kLeftBlank = 0.75;
constexpr double kRightBlank = 4.5;
constexpr double kFigure = 5;

using Lines = std::vector<std::string>;

/// A line to write on, as long as a column takes beside its label.
std::string Blank() {
    return RepeatUnderscore(25);
}

/// Two columns side by side, whichever is longer.
void TypeColumns(Typist& type, Lines left, Lines right) {
    const std::size_t rows = std::max(left.size(), right.size());
    left.resize(rows);
    right.resize(rows);
    for (std::size_t row = 0; row < rows; ++row) type.Text(left[row], "\t", right[row], "\r");
    type.Text("\r");
}

void AddAddress(Lines& lines, const JobValues& job, Field addr1, Field addr2, Field cityStateZip) {
    lines.push_back(job[addr1]);
    if (job.IsFilled(addr2)) lines.push_back(job[addr2]);
    lines.push_back(job[cityStateZip]);
}

/// The fields of one party, in the order of its block.
struct PartyFields {
    Field name, addr1, addr2, cityStateZip, taxId;
};
constexpr PartyFields kSeller1Fields = {Seller1Name, Seller1Addr1, Seller1Addr2, Seller1CityStateZip,
                                        Seller1TaxId};
constexpr PartyFields kSeller2Fields = {Seller2Name, Seller2Addr1, Seller2Addr2, Seller2CityStateZip,
                                        Seller2TaxId};
constexpr PartyFields kBuyer1Fields = {Buyer1Name, Buyer1Addr1, Buyer1Addr2, Buyer1CityStateZip, Buyer1TaxId};
constexpr PartyFields kBuyer2Fields = {Buyer2Name, Buyer2Addr1, Buyer2Addr2, Buyer2CityStateZip, Buyer2TaxId};

/// The block of one party. `secondLine`: one of the two beside each other has a second line of address, so
/// that both leave room for it; `agentLine` likewise.
Lines PartyLines(const JobValues& job, const PartyFields& party, bool secondLine, bool agentLine,
                 const std::string& agent) {
    Lines lines = {job[party.name], job[party.addr1]};
    if (secondLine) lines.push_back(job.IsFilled(party.addr2) ? job[party.addr2] : std::string());
    lines.push_back(job[party.cityStateZip]);
    if (agentLine) lines.push_back(agent);
    lines.insert(lines.end(), {"Tax ID#:  " + job[party.taxId], "Home:  " + Blank(), "Work:  " + Blank()});
    return lines;
}

/// Two parties beside each other, line by line; the right column stays empty where there is one.
void TypeParties(const JobValues& job, Typist& type, const PartyFields& first, const PartyFields& second,
                 bool two, bool hasAgent) {
    const bool secondLine = job.IsFilled(first.addr2) || (two && job.IsFilled(second.addr2));
    TypeColumns(type, PartyLines(job, first, secondLine, hasAgent, job[Seller1Agent]),
                two ? PartyLines(job, second, secondLine, hasAgent, {}) : Lines());
}

void TypeRealtors(const JobValues& job, Typist& type) {
    const std::string fiveBlanks(5, ' ');
    type.TypeBold("Realtor 1");
    type.Text(fiveBlanks, job[Realtor1Name], "\t");
    type.TypeBold("Realtor 2");
    type.Text(fiveBlanks, job[Realtor2Name], RepeatReturn(2));
    Lines rows;
    for (const char* label : {"Agent:", "Addr1:", "Addr2:", "City:", "Phone:", "Fax:", "Email:"})
        rows.push_back(label + ("\t" + Blank()));
    type.AtTabs({kLeftBlank, kRightBlank}, [&] { TypeColumns(type, rows, rows); });
}

Lines BuyersAttorney(const JobValues& job) {
    Lines lines = {job[BuyerAtty]};
    // A firm without a name of its own bears its attorney's.
    if (job.IsFilled(BuyerLawfirm) && job[BuyerLawfirm] != job[BuyerAtty])
        lines.insert(lines.begin(), job[BuyerLawfirm]);
    AddAddress(lines, job, BuyerAttyAddr1, BuyerAttyAddr2, BuyerAttyCityStateZip);
    lines.insert(lines.end(), {"Phone:  " + job[BuyerAttyPhone], "Fax:  " + job[BuyerAttyFax]});
    return lines;
}

Lines Notes(const JobValues& job, std::size_t rows) {
    Lines lines = {"seller's agent:   " + (job.Has(Entity) ? job[Seller1Agent] : Blank())};
    lines.resize(rows, SignatureRule());
    return lines;
}

Lines SellersAttorney(const JobValues& job) {
    Lines lines = {job[SellerLawfirm], job[SellerAtty]};
    AddAddress(lines, job, SellerAttyAddr1, SellerAttyAddr2, SellerAttyCityStateZip);
    lines.insert(lines.end(), {"Phone:  " + job[SellerAttyPhone], "Fax:  " + job[SellerAttyFax]});
    return lines;
}

/// Amounts that the job does not know are left to be written in; so is the balance that needs them.
Lines Figures(const JobValues& job) {
    const auto shown = [&](Field n) { return "$" + FigureText(AmountOf(job[n])); };
    const auto deposit = [&](Field n) { return job.IsFilled(n) ? shown(n) : Blank(); };
    const bool hasPrice = job.IsFilled(SalePriceNumeric);
    const bool hasDeposits = job.IsFilled(BinderDeposit) || job.IsFilled(ContractDeposit);
    const double deposits = AmountOf(job[BinderDeposit]) + AmountOf(job[ContractDeposit]);
    const double balance = AmountOf(job[SalePriceNumeric]) - deposits;
    return {
        "Closing Date:\t" + job[ClosingDate],
        "Sale Price:\t" + (hasPrice ? shown(SalePriceNumeric) : job[SalePriceNumeric]),
        "Binder Deposit:\t" + deposit(BinderDeposit),
        "Contract Deposit:\t" + deposit(ContractDeposit),
        "Total Deposits:\t" + (hasDeposits ? "$" + FigureText(deposits) : Blank()),
        "Balance:\t" + (hasPrice && hasDeposits ? "$" + FigureText(balance) : Blank()),
    };
}

void TypeHeadings(Typist& type, std::string_view left, std::string_view right) {
    type.TypeBold(left, "\t", right, RepeatReturn(2));
}

void TypeRule(Typist& type) {
    type.Text(RepeatUnderscore(86), RepeatReturn(2));
}

void TypeBothSides(const JobValues& job, Typist& type) {
    type.Text(job.TwoLines(PropertyAddress1), ", ", job.Town(PropertyCityStateZip), RepeatReturn(2));
    TypeHeadings(type, "Seller 1 Information", "Seller 2 Information");
    TypeParties(job, type, kSeller1Fields, kSeller2Fields, job.Has(TwoSellers), job.Has(Entity));
    TypeHeadings(type, "Buyer 1 Information", "Buyer 2 Information");
    TypeParties(job, type, kBuyer1Fields, kBuyer2Fields, job.Has(TwoBuyers), false);
    TypeRule(type);
}

void TypeAttorneys(const JobValues& job, Typist& type) {
    TypeHeadings(type, "Buyer's Attorney", "NOTES");
    const Lines attorney = BuyersAttorney(job);
    TypeColumns(type, attorney, Notes(job, attorney.size()));
    TypeRule(type);

    TypeHeadings(type, "Seller's Attorney", "Figures");
    type.AtTab(kFigure, [&] { TypeColumns(type, SellersAttorney(job), Figures(job)); });
}

}  // namespace

void TypeFileSummarySheet(const JobValues& job, Typist& type) {
    type.Indents(0);
    type.Align(word::AlignLeft);
    type.Font("Arial", 10);
    type.Bold(false);
    type.Italic(false);
    type.AtTab(kRightColumn, [&] {
        TypeBothSides(job, type);
        TypeRealtors(job, type);
        TypeAttorneys(job, type);
    });
}

}  // namespace quillmark
