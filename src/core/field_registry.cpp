#include "core/field_registry.h"

#include <array>
#include <unordered_map>

#include "core/fields.h"
#include "core/job.h"

namespace quillmark {

namespace {

struct FieldRow {
    int number;
    std::string_view marker;
    float sortKey;
    std::string_view description;
};

constexpr FieldRow kRows[] = {
#define FIELD(number, name, marker, sortKey, description) {number, marker, sortKey, description},
#include "core/fields.inc"
#undef FIELD
};

// clang-format off
constexpr DerivedField kDerived[] = {
    // number  marker                 description
    {1001, "[curr month]",           " Month to appear on document(s) being prepared {*smart field*}"},
    {2001, "[curr day]",             " Day to appear on document(s) being prepared, includes suffix {*smart field*}"},
    {3001, "[curr year]",            " Year to appear on document(s) being prepared {*smart field*}"},
    {1006, "[seller atty city]",     " Seller attorney's city {*smart field*}"},
    {3012, "[buyer atty last name]", " Buyer attorney's last name {*smart field*}"},
    {1015, "[buyer atty city]",      " Buyer attorney's city {*smart field*}"},
    {2021, "[seller 1 first name]",  " First name of Seller #1/Mortgagee, includes middle {*smart field*}"},
    {3021, "[seller 1 last name]",   " Last name of Seller #1/Mortgagee {*smart field*}"},
    {2028, "[seller 2 first name]",  " First name of Seller #2/Mortgagee, includes middle {*smart field*}"},
    {3028, "[seller 2 last name]",   " Last name of Seller #2/Mortgagee {*smart field*}"},
    {2059, "[buyer 1 first name]",   " First name of Buyer #1, includes middle {*smart field*}"},
    {3059, "[buyer 1 last name]",    " Last name of Buyer #1 {*smart field*}"},
    {2064, "[buyer 2 first name]",   " First name of Buyer #2, includes middle {*smart field*}"},
    {3064, "[buyer 2 last name]",    " Last name of Buyer #2 {*smart field*}"},
    {1072, "[property city]",        " City of property being sold {*smart field*}"},
    {2072, "[property county]",      " County of property being sold {*smart field*}"},
    {3072, "[property village]",     " Village/District of property being sold {*smart field*}"},
    {4072, "[prop municipal csz]",   " Municipal city, state zip of property being sold {*smart field*}"},
    {1076, "[sale price words]",     " Contract purchase/sales price in words {*smart field*}"},
    {1079, "[closing month]",        " Month of closing {*smart field*}"},
    {2079, "[closing day]",          " Day of closing, includes suffix {*smart field*}"},
    {3079, "[closing year]",         " Year of closing {*smart field*}"},
    {1089, "[mtg amount words]",     " Buyer's mortgage amount in words {*smart field*}"},
    {1187, "[county of execution]",  " County in which documents will be executed {*smart field*}"},
};

constexpr int kAddresses[] = {
    field::SellerAttyAddr1,
    field::BuyerAttyAddr1,
    field::Seller1Addr1,
    field::Seller2Addr1,
    field::SellerFwdAddr1,
    field::AdminAddr1,
    field::ExecutorAddr1,
    field::DecedentAddr1,
    field::ConservatorAddr1,
    field::TrusteeAddr1,
    field::Buyer1Addr1,
    field::Buyer2Addr1,
    field::PropertyAddress1,
    field::Payoff1Addr1,
    field::Payoff2Addr1,
    field::EscrowAttyAddr1,
    field::PrincipalAddr1,
    field::AttyInFactAddr1,
    field::AttyInFact2Addr1,
};
// clang-format on

const FieldRow* FindRow(int n) {
    static const auto rows = [] {
        std::array<const FieldRow*, kFields + 1> byNumber{};
        for (const FieldRow& row : kRows) byNumber[static_cast<std::size_t>(row.number)] = &row;
        return byNumber;
    }();
    return n >= 1 && n <= kFields ? rows[static_cast<std::size_t>(n)] : nullptr;
}

const DerivedField* FindDerived(int number) {
    for (const DerivedField& derived : kDerived)
        if (derived.number == number) return &derived;
    return nullptr;
}

bool HoldsName(const Job& job, int n) {
    const std::string& text = job.txtField(n).text;
    return !text.empty() && text != FieldMarker(n);
}

std::string CommissionDescription(const std::string& realtor) {
    return " Commission charged by " + realtor + " (e.g.  15000 or 6%), auto-fmt";
}

bool IsDefaultsList(std::string_view jobName) {
    constexpr std::string_view kName = "DEFAULTS";
    if (jobName.size() != kName.size()) return false;
    for (std::size_t i = 0; i < kName.size(); ++i)
        if ((jobName[i] & ~0x20) != kName[i]) return false;
    return true;
}

/// The description that the job's state puts in the place of the constant one; empty where it does not.
std::string DescriptionInJob(int n, const Job& job) {
    switch (n) {
        case field::SellerAtty:
            if (IsDefaultsList(job.name))
                return " Full name & juris# of seller's attorney, separated by forward-slash \"/\""
                       " (e.g.  Mary A. Smith/012345)";
            break;
        case field::Seller1Name:
            if (job.optConf(Entity)) return " Full name of seller entity (e.g.  ACME Properties LLC)";
            if (job.optConf(EstateTrust))
                return " Full name of fiduciary seller signing documents (e.g.  Mary R. Doe)";
            break;
        case field::FiduciaryArticleNumber: {
            // A holder that no document asks for rests at its marker, which is no sign of a decedent.
            const FieldHolder& decedent = job.txtField(field::Decedent);
            if (HoldsName(job, field::Decedent) || (decedent.relevant && !decedent.text.empty()))
                return " Article number in decedent's Will under which trustee is appointed (e.g.  'IV' or "
                       "'4')";
            break;
        }
        case field::Realtor1Commission:
        case field::Realtor2Commission:
            if (HoldsName(job, n - 1)) return CommissionDescription(job.txtField(n - 1).text);
            break;
        default:
            break;
    }
    return {};
}

}  // namespace

std::string_view FieldMarker(int n) {
    const FieldRow* row = FindRow(n);
    return row ? row->marker : std::string_view{};
}

float FieldSortKey(int n) {
    const FieldRow* row = FindRow(n);
    return row ? row->sortKey : 0;
}

std::string FieldDescription(int n, const Job& job) {
    if (n == 0) return " user-defined field";
    if (const FieldRow* row = FindRow(n)) {
        std::string inJob = DescriptionInJob(n, job);
        if (!inJob.empty()) return inJob;
        return std::string(" ").append(row->description);
    }
    const DerivedField* derived = FindDerived(n);
    return derived ? std::string(derived->description) : std::string();
}

int FieldOfMarker(std::string_view marker) {
    static const auto numbers = [] {
        std::unordered_map<std::string_view, int> byMarker;
        for (const FieldRow& row : kRows)
            if (row.marker != "[]") byMarker.emplace(row.marker, row.number);
        return byMarker;
    }();
    const auto found = numbers.find(marker);
    return found == numbers.end() ? 0 : found->second;
}

std::span<const DerivedField> DerivedFields() {
    return kDerived;
}

std::string_view DerivedMarker(int number) {
    const DerivedField* derived = FindDerived(number);
    return derived ? derived->marker : std::string_view{};
}

std::span<const int> AddressFields() {
    return kAddresses;
}

}  // namespace quillmark
