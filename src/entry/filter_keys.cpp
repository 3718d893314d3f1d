#include "entry/filter_keys.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "core/field_registry.h"
#include "core/fields.h"

namespace quillmark {

namespace {

enum class KeyRule { Any, Amount, AmountOrPoc, Commission, DescribedAmount, FixedList };

struct RuleRow {
    KeyRule rule;
    std::initializer_list<int> fields;
};

using namespace field;

// clang-format off
const RuleRow kRules[] = {
    {KeyRule::Amount,          {SellerAttysFee, SalePriceNumeric, BinderDeposit, ContractDeposit,
                                Payoff1Amount, Payoff2Amount, AnnualPropertyTax, MonthlyCommonChg,
                                MonthlyRent, ClosingCostCredit, RepairCredit, RecordingFees, CourierFee}},
    {KeyRule::AmountOrPoc,     {SewerAdjustment, WaterAdjustment, OilAdjustment, SecurityDeposit}},
    {KeyRule::Commission,      {Realtor1Commission, Realtor2Commission}},
    {KeyRule::DescribedAmount, {OtherDisbursement1, OtherDisbursement2, OtherDisbursement3,
                                OtherDisbursement4, OtherAdjustment1, OtherAdjustment2, OtherAdjustment3,
                                OtherAdjustment4, OtherDisbursement5, OtherDisbursement6}},
    {KeyRule::FixedList,       {BuyerTitleInsurCo, FiduciaryType}},
};
// clang-format on

KeyRule RuleOf(int n) {
    for (const RuleRow& row : kRules)
        if (std::find(row.fields.begin(), row.fields.end(), n) != row.fields.end()) return row.rule;
    return KeyRule::Any;
}

bool IsOneOf(std::string_view character, std::string_view set) {
    return character.size() == 1 && set.find(character.front()) != std::string_view::npos;
}

bool IsAmountKey(std::string_view character) {
    return character == kBackspace || IsOneOf(character, "0123456789$,.");
}

/// Letters beyond ASCII lie from U+00C0 on, with two signs of arithmetic among them.
bool IsLetter(std::string_view character) {
    if (character.size() == 1) {
        const char c = character.front();
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    }
    const auto lead = static_cast<unsigned char>(character.empty() ? 0 : character.front());
    return lead >= 0xC3 && lead <= 0xC9 && character != "×" && character != "÷";
}

std::string WithoutSelection(const EditorText& editor) {
    std::string text = editor.text;
    return text.erase(editor.caret, editor.selection);
}

bool IsDescribedAmountKey(const EditorText& editor, std::string_view character) {
    if (IsAmountKey(character) || character == " ") return true;
    if (character == "-") return WithoutSelection(editor).find('-') == std::string::npos;
    return IsLetter(character) && editor.text.substr(0, editor.caret).find('-') != std::string::npos;
}

EditorText Showing(std::string text) {
    EditorText editor{std::move(text)};
    editor.caret = editor.text.size();
    return editor;
}

FilteredKey CommissionFromPercent(const EditorText& editor, const Job& job) {
    if (!job.IsFilled(field::SalePriceNumeric)) return {editor, {}, KeyEffect::MoveToSalePrice};
    const double percent = LeadingNumber(editor.text);
    return {Showing(DecimalText(AmountOf(job.D(field::SalePriceNumeric)) * percent / 100, 2)), {}};
}

FilteredKey ByRule(const EditorText& editor, std::string_view character, const KeyPlace& place) {
    const FilteredKey passed{editor, std::string(character)};
    const FilteredKey dropped{editor, {}};
    switch (RuleOf(place.n)) {
        case KeyRule::Any:
            return passed;
        case KeyRule::DescribedAmount:
            return IsDescribedAmountKey(editor, character) ? passed : dropped;
        case KeyRule::FixedList:
            return {Showing(std::string(kPickFromList)), {}, KeyEffect::OpenChoices};
        case KeyRule::Commission:
            if (character == "%") return CommissionFromPercent(editor, place.job);
            break;
        case KeyRule::AmountOrPoc:
            if (IsOneOf(character, "Pp")) return {Showing("POC"), {}};
            break;
        case KeyRule::Amount:
            break;
    }
    return IsAmountKey(character) ? passed : dropped;
}

}  // namespace

bool IsPickedOnly(int n) {
    return RuleOf(n) == KeyRule::FixedList;
}

bool IsPlaceholder(std::string_view text) {
    return text.starts_with('[') || text == "(None)" || text == "(enter check #)";
}

FilteredKey FilterEditKey(const EditorText& editor, std::string_view character, const KeyPlace& place) {
    if (character == "\"") return {editor, {}};
    FilteredKey key = ByRule(editor, character, place);
    if (place.templateBeingSet && character == ";") key.character.clear();
    if (key.effect != KeyEffect::MoveToSalePrice && IsPlaceholder(key.editor.text)) key.editor = {};
    return key;
}

TypedKey TypeKey(const EditorText& editor, std::string_view character, const KeyPlace& place,
                 std::string_view marker, bool properCase) {
    FilteredKey key = FilterEditKey(editor, character, place);
    if (key.character.empty()) return {std::move(key.editor), key.effect};
    const ProperCaseKey cased = ProperCase(key.editor, key.character, marker, properCase);
    return {WithCharacter(cased.editor, cased.character), key.effect};
}

EditorText WithCharacter(EditorText editor, std::string_view character) {
    if (character != kBackspace) {
        editor.text.replace(editor.caret, editor.selection, character);
        return {std::move(editor.text), editor.caret + character.size(), 0};
    }
    std::size_t from = editor.caret;
    if (editor.selection == 0 && from > 0)
        while (--from > 0 && (editor.text[from] & 0xC0) == 0x80) continue;
    editor.text.erase(from, editor.caret + editor.selection - from);
    return {std::move(editor.text), from, 0};
}

}  // namespace quillmark
