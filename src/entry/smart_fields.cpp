#include "entry/smart_fields.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "core/fields.h"
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

using namespace field;

// clang-format off
/// The rule of each smart field.
const RuleRow kRules[] = {
    {rules::Date,            {DocumentDate, ClosingDate}},
    {rules::BuyerAttorney,   {BuyerAtty}},
    {rules::SellerOne,       {Seller1Name}},
    {rules::SellerTwo,       {Seller2Name}},
    {rules::Buyer,           {Buyer1Name, Buyer2Name}},
    {rules::Realtors,        {Realtor1Name, Realtor2Name}},
    {rules::OriginalTrustee, {OriginalTrustee}},
    {rules::AttorneyCity,    {SellerAttyCityStateZip, BuyerAttyCityStateZip}},
    {rules::PropertyCity,    {PropertyCityStateZip}},
    {rules::TownOfExecution, {TownOfExecution}},
    {rules::Telephone,       {SellerAttyPhone, SellerAttyFax, BuyerAttyPhone, BuyerAttyFax, Seller1Phone,
                              Seller2Phone, EscrowAttyPhone}},
    {rules::AmountInWords,   {SalePriceNumeric, BuyersMtgAmount}},
    {rules::SellerTaxId,     {Seller1TaxId, Seller2TaxId}},
    {rules::BuyerTaxId,      {Buyer1TaxId, Buyer2TaxId}},
    {rules::Money,           {SellerAttysFee, BinderDeposit, ContractDeposit, Realtor1Commission,
                              Realtor2Commission, Payoff1Amount, Mortgage1Amount, Payoff2Amount,
                              Mortgage2Amount, IndemMtgAmount, EscrowAmountHeld, NoteMonthlyPymt,
                              AnnualPropertyTax, MonthlyCommonChg, MonthlyRent, ClosingCostCredit,
                              RepairCredit, RecordingFees, CourierFee, SmokeDetectorCredit}},
    {rules::MoneyOrPoc,      {SewerAdjustment, WaterAdjustment, OilAdjustment, SecurityDeposit}},
    {rules::Disbursement,    {OtherDisbursement1, OtherDisbursement2, OtherDisbursement3,
                              OtherDisbursement4, OtherDisbursement5, OtherDisbursement6}},
    {rules::OtherAdjustment, {OtherAdjustment1, OtherAdjustment2, OtherAdjustment3, OtherAdjustment4}},
};

// clang-format on

constexpr Rule kAmountRules[] = {rules::AmountInWords, rules::Money, rules::MoneyOrPoc, rules::Disbursement,
                                 rules::OtherAdjustment};

void RunRule(Job& job, int n, const ChoiceLists& choices) {
    if (n == field::SellerAtty && choices) return rules::SellerAttorney(job, choices(n));
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
    for (int first : AddressFields()) {
        table[static_cast<std::size_t>(first)] = {rules::AddressPair, first};
        table[static_cast<std::size_t>(first) + 1] = {rules::AddressPair, first};
    }
    table[field::SellerAtty] = {[](Job& job, int) { rules::SellerAttorney(job, {}); }, field::SellerAtty};
    return table;
}

}  // namespace

BadFieldInput::BadFieldInput(int field, const std::string& value)
    : std::runtime_error(std::string(FieldMarker(field)) + " holds \"" + value + "\", which is not a date"),
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
