#include "core/options.h"

#include <algorithm>
#include <iterator>

namespace quillmark {

namespace {

enum class Group { Sellers, SellerKind, Buyers, Payoffs, PropertyType, Letterhead, Capacity };

struct Row {
    int option;
    std::string_view caption;
    Group group;
    std::string_view tooltip;
};

constexpr std::string_view kSellersTip = " indicate number of sellers ";
constexpr std::string_view kKindTip = " specify if seller is person or entity ";
constexpr std::string_view kBuyersTip = " indicate number of buyers ";
constexpr std::string_view kPayoffsTip = " number of mortgage payoffs (Dbl-Click for None) ";
constexpr std::string_view kPropertyTip = " special property types (Dbl-Click for None) ";
constexpr std::string_view kLetterheadTip = " letterhead allowance, or use default ";
constexpr std::string_view kCapacityTip =
    " indicate if seller is Fiduciary, or acting via POA (Dbl-Clk to clear) ";
constexpr std::string_view kOneOfTwoTip =
    " indicate if one of the sellers acting via POA (Dbl-Clk to clear) ";

// clang-format off
// option, caption, group, tool tip
constexpr Row kRows[] = {
    {OneSeller,         "1 Seller",         Group::Sellers,      kSellersTip},
    {TwoSellers,        "2 Sellers",        Group::Sellers,      kSellersTip},
    {Person,            "Person",           Group::SellerKind,   kKindTip},
    {Entity,            "Entity",           Group::SellerKind,   kKindTip},
    {OneBuyer,          "1 Buyer",          Group::Buyers,       kBuyersTip},
    {TwoBuyers,         "2 Buyers",         Group::Buyers,       kBuyersTip},
    {OnePayoff,         "1 Payoff",         Group::Payoffs,      kPayoffsTip},
    {TwoPayoffs,        "2 Payoffs",        Group::Payoffs,      kPayoffsTip},
    {Condo,             "Condo",            Group::PropertyType, kPropertyTip},
    {Commercial,        "Commercial",       Group::PropertyType, kPropertyTip},
    {Letterhead,        "Letterhead",       Group::Letterhead,   kLetterheadTip},
    {DefaultLetterhead, "Default",          Group::Letterhead,   kLetterheadTip},
    {LandMultiFamily,   "Land / Multi-Fam", Group::PropertyType, kPropertyTip},
    {PowerOfAttorney,   "P.O.A.",           Group::Capacity,     kCapacityTip},
    {EstateTrust,       "Estate / Trust",   Group::Capacity,     kCapacityTip},
};
// clang-format on

struct Exclusion {
    int option;
    std::initializer_list<int> by;
};

const Exclusion kExclusions[] = {
    {TwoSellers, {Entity, EstateTrust}},
    {Entity, {TwoSellers, PowerOfAttorney, EstateTrust}},
    {PowerOfAttorney, {Entity}},
    {EstateTrust, {TwoSellers, Entity}},
};

const Row& RowOf(int n) {
    return kRows[static_cast<std::size_t>(n - 1)];
}

}  // namespace

bool IsOption(int n) {
    return n >= 1 && n <= kOptions;
}

std::string_view OptionCaption(int n) {
    return IsOption(n) ? RowOf(n).caption : std::string_view();
}

std::string_view OptionTooltip(int n, const Job& job) {
    if (!IsOption(n)) return {};
    const bool oneOfTwo = RowOf(n).group == Group::Capacity && job.optConf(TwoSellers);
    return oneOfTwo ? kOneOfTwoTip : RowOf(n).tooltip;
}

void TurnOn(int n, Job& job) {
    TurnGroupOff(n, job);
    job.SetOption(n, true);
}

void TurnGroupOff(int n, Job& job) {
    for (const Row& row : kRows)
        if (row.group == RowOf(n).group) job.SetOption(row.option, false);
}

bool GroupMayBeOff(int n) {
    const Group group = RowOf(n).group;
    return group == Group::Payoffs || group == Group::PropertyType || group == Group::Capacity;
}

bool IsExcluded(int n, const Job& job) {
    return ExcludedBy(n, job) != 0;
}

int ExcludedBy(int n, const Job& job) {
    const auto row = std::find_if(std::begin(kExclusions), std::end(kExclusions),
                                  [n](const Exclusion& exclusion) { return exclusion.option == n; });
    if (row == std::end(kExclusions)) return 0;
    const auto other = std::find_if(row->by.begin(), row->by.end(), [&](int by) { return job.optConf(by); });
    return other == row->by.end() ? 0 : *other;
}

}  // namespace quillmark
