#include "entry/smart_fields.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "core/job.h"
#include "entry/address_rules.h"
#include "entry/date_rules.h"
#include "entry/money_rules.h"
#include "entry/name_rules.h"

namespace quillmark {

namespace {

using Rule = void (*)(Job&, int);

struct RuleRow {
    Rule rule;
    std::initializer_list<int> fields;
};

// clang-format off
/// The rule of each smart field.
const RuleRow kRules[] = {
    {rules::Date,            {1, 79}},
    {rules::BuyerAttorney,   {12}},
    {rules::SellerOne,       {21}},
    {rules::SellerTwo,       {28}},
    {rules::Buyer,           {59, 64}},
    {rules::Realtors,        {85, 87}},
    {rules::OriginalTrustee, {204}},
    {rules::AttorneyCity,    {6, 15}},
    {rules::PropertyCity,    {72}},
    {rules::TownOfExecution, {187}},
    {rules::Telephone,       {7, 8, 16, 17, 27, 33, 144}},
    {rules::AmountInWords,   {76, 89}},
    {rules::SellerTaxId,     {26, 32}},
    {rules::BuyerTaxId,      {63, 68}},
    {rules::Money,           {10, 77, 78, 86, 88, 100, 105, 118, 123, 133, 139, 146, 170, 175, 177, 178, 179, 180,
                              181, 203}},
    {rules::MoneyOrPoc,      {171, 173, 174, 176}},
    {rules::Disbursement,    {182, 183, 184, 185, 212, 213}},
    {rules::OtherAdjustment, {193, 194, 195, 196}},
};

/// The first lines of the address pairs; the second line is the next field.
constexpr int kAddressPairs[] = {4,  13, 23, 29, 34, 38,  42,  46,  50, 55,
                                 60, 65, 70, 96, 114, 141, 157, 162, 166};
// clang-format on

constexpr Rule kAmountRules[] = {rules::AmountInWords, rules::Money, rules::MoneyOrPoc, rules::Disbursement,
                                 rules::OtherAdjustment};

constexpr int kSellerAttorney = 3;

void RunRule(Job& job, int n, const ChoiceLists& choices) {
    if (n == kSellerAttorney && choices) return rules::SellerAttorney(job, choices(n));
    OnFieldChanged(job, n);
}

struct FieldRule {
    Rule rule = nullptr;
    int argument = 0;
};

std::array<FieldRule, kFields + 1> CollectRules() {
    std::array<FieldRule, kFields + 1> table;
    for (const RuleRow& row : kRules)
        for (int n : row.fields) table[static_cast<std::size_t>(n)] = {row.rule, n};
    for (int first : kAddressPairs) {
        table[static_cast<std::size_t>(first)] = {rules::AddressPair, first};
        table[static_cast<std::size_t>(first) + 1] = {rules::AddressPair, first};
    }
    table[kSellerAttorney] = {[](Job& job, int) { rules::SellerAttorney(job, {}); }, kSellerAttorney};
    return table;
}

}  // namespace

BadFieldInput::BadFieldInput(int field, const std::string& value)
    : std::runtime_error(std::string(FieldMarker(field)) + ": \"" + value + "\" is not a date"),
      field_(field) {}

void OnFieldChanged(Job& job, int n) {
    static const auto table = CollectRules();
    if (n < 1 || n > kFields) return;
    if (const FieldRule& entry = table[static_cast<std::size_t>(n)]; entry.rule)
        entry.rule(job, entry.argument);
}

bool TakesAmount(int n) {
    return std::any_of(std::begin(kRules), std::end(kRules), [n](const RuleRow& row) {
        return std::find(std::begin(kAmountRules), std::end(kAmountRules), row.rule) !=
                   std::end(kAmountRules) &&
               std::find(row.fields.begin(), row.fields.end(), n) != row.fields.end();
    });
}

void OnPartyOptionChanged(Job& job) {
    for (int n : {21, 28, 59, 64}) OnFieldChanged(job, n);
}

std::vector<int> AttachSmartFields(Job& job, RuleSurroundings around) {
    job.SetChangeRule([around = std::move(around)](Job& changed, int n) {
        const std::string text = changed.txtField(n).text;
        if (const auto end = text.find(';');
            end != text.npos && around.templateBeingSet && around.templateBeingSet())
            return changed.SetField(n, text.substr(0, end));
        try {
            RunRule(changed, n, around.choices);
            if (!text.empty() && changed.txtField(n).text.empty()) changed.ClearField(n);
        } catch (const BadFieldInput& bad) {
            if (!around.refused) throw;
            around.refused(bad);
            changed.ClearField(bad.field());
        }
    });
    std::vector<int> refused;
    for (int n = 1; n <= kFields; ++n) {
        try {
            job.RunChangeRule(n);
        } catch (const BadFieldInput& fault) {
            refused.push_back(fault.field());
        }
    }
    return refused;
}

}  // namespace quillmark
