#include "selection/option_clicks.h"

#include <algorithm>
#include <cctype>
#include <optional>

#include "core/fields.h"
#include "selection/accompanying_documents.h"
#include "selection/document_catalogue.h"
#include "selection/job_list_lines.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

using enum DocumentTrait;

constexpr std::string_view kMultiFamilyTag = "M";

/// What a click does to the job list, in this order.
struct Effect {
    int option;
    std::optional<ParkingList> restores;
    DocumentTrait parks = None;  ///< into list A
    DocumentTrait takesOff = None;
};

// clang-format off
// option clicked,    restores,       parks in list A, takes off for good
constexpr Effect kEffects[] = {
    {Person,          ParkingList::A, EntityOnly},
    {Entity,          ParkingList::A, PersonOnly},
    {OnePayoff,       ParkingList::B},
    {TwoPayoffs,      ParkingList::B},
    {Condo,           ParkingList::A},
    {LandMultiFamily, ParkingList::A},
    {Commercial,      std::nullopt,   NotCommercial},
    {PowerOfAttorney, std::nullopt,   None,            FiduciaryDeed | DeedAffidavit},
    {EstateTrust,     std::nullopt,   None,            PlainDeed},
};
// clang-format on

const Effect* EffectOf(int n) {
    const auto row = std::find_if(std::begin(kEffects), std::end(kEffects),
                                  [n](const Effect& e) { return e.option == n; });
    return row == std::end(kEffects) ? nullptr : &*row;
}

std::optional<OptionAction> Refusal(int n, const SelectionState& screen) {
    if (!IsOption(n)) return OptionAction::NoSuchOption;
    const OptionButton& button = screen.options[static_cast<std::size_t>(n)];
    if (!button.visible) return OptionAction::Hidden;
    if (!button.enabled) return OptionAction::Disabled;
    return std::nullopt;
}

/// In an opened job or a template, unlike in a new job.
bool ChangesAnOpenedJob(const SelectionState& screen) {
    return screen.ScreenMode == screen_mode::kEdit || screen.ScreenMode == screen_mode::kPresets;
}

void EnableSave(SelectionState& screen) {
    if (!screen.txtJobName.text.empty()) screen.cmdOpen.enabled = true;
}

/// Setting a name again rebuilds what derives from it.
void RebuildName(int n, Job& job) {
    const std::string name = job.D(n);
    job.SetField(n, "");
    job.SetField(n, name);
}

/// Gives the nine digits of the other kind's form back to the field, whose rule puts them into the new form.
void ReformTaxId(int n, int clicked, Job& job) {
    constexpr std::size_t kDigits = 9;
    const std::size_t hyphen = clicked == Person ? 2 : 3;
    std::string value = job.D(n);
    if (value.size() <= hyphen || value[hyphen] != '-') return;
    std::erase(value, '-');
    const bool digits =
        std::all_of(value.begin(), value.end(), [](unsigned char c) { return std::isdigit(c); });
    if (digits && value.size() == kDigits) job.SetField(n, value);
}

void RebuildValues(int clicked, Job& job) {
    if (clicked >= OneSeller && clicked <= Entity) RebuildName(field::Seller1Name, job);
    if (clicked == Person || clicked == Entity) ReformTaxId(field::Seller1TaxId, clicked, job);
    if (clicked == OneBuyer || clicked == TwoBuyers) RebuildName(field::Buyer1Name, job);
}

/// Public Act 16-16: the sale of rental property comes with a notice of fair housing.
void AskForFairHousing(SelectionState& screen, const Office& office) {
    if (IsInHistory(kChroNotice, screen.job.JobDocuments) || !HoldsContract(screen) ||
        HoldsLine(kChroNotice, screen))
        return;
    if (!office.dialogs.Confirm(" PA 16-16 Fair Housing Query",
                                "Is this sale for a Multi-Family Rental property ?", DialogButton::No))
        return;
    AppendLine(kChroNotice, screen);
    screen.job.txtField(field::PropertyAddress1).tag = std::string(kMultiFamilyTag);
    AlertAdded("A CHRO Fair Housing Notice must accompany the contract", office);
}

void ApplyEffect(int clicked, SelectionState& screen, const Office& office) {
    if (const Effect* effect = EffectOf(clicked)) {
        if (effect->restores) RestoreParked(*effect->restores, screen);
        Park(effect->parks, ParkingList::A, screen);
        TakeOff(effect->takesOff, screen);
    }
    if (clicked == LandMultiFamily) AskForFairHousing(screen, office);
}

void RequireRoomFor(int clicked, const SelectionState& screen) {
    const Effect* effect = EffectOf(clicked);
    if (effect && effect->parks != None)
        RequireParkingRoom(effect->parks, ParkingList::A, effect->restores.has_value(), screen);
}

void ClearCapacity(int n, SelectionState& screen) {
    if (n == EstateTrust) TakeOff(FiduciaryDeed | DeedAffidavit, screen);
    TurnGroupOff(n, screen.job);
    if (!screen.job.optConf(Entity)) BringBack(TwoSellers, screen);
    if (!screen.job.optConf(TwoSellers)) BringBack(Entity, screen);
}

void ClearPropertyType(int n, SelectionState& screen) {
    if (n == Commercial) RestoreParked(ParkingList::A, screen);
    if (n == LandMultiFamily) {
        TakeOff([](std::string_view name) { return name == kChroNotice; }, screen);
        screen.job.txtField(field::PropertyAddress1).tag.clear();
    }
    TurnGroupOff(n, screen.job);
}

void ClearGroup(int n, SelectionState& screen) {
    if (n == OnePayoff || n == TwoPayoffs) {
        Park(Payoff, ParkingList::B, screen);
        TurnGroupOff(n, screen.job);
    } else if (n == PowerOfAttorney || n == EstateTrust) {
        ClearCapacity(n, screen);
    } else {
        ClearPropertyType(n, screen);
    }
}

}  // namespace

OptionAction ClickOption(int n, SelectionState& screen, const Office& office) {
    if (const auto refusal = Refusal(n, screen)) return *refusal;
    if (screen.optionChangesSuppressed) {
        TurnOn(n, screen.job);
        ShowCapacityTooltips(screen);
        return OptionAction::Done;
    }
    RequireRoomFor(n, screen);
    TurnOn(n, screen.job);
    if (ChangesAnOpenedJob(screen)) {
        EnableSave(screen);
        if (n == Person || n == Entity)
            for (const int taxId : {field::Seller1TaxId, field::Seller2TaxId})
                ReformTaxId(taxId, n, screen.job);
        ApplyInterlocks(screen);
    }
    if (!screen.List2.empty()) {
        CloseDocumentChoice(screen);
        RebuildValues(n, screen.job);
        ApplyEffect(n, screen, office);
        LinesChanged(screen);
    }
    RefreshFields(screen, office);
    JobCountsAsChanged(screen);
    ShowCapacityTooltips(screen);
    return OptionAction::Done;
}

OptionAction DoubleClickOption(int n, SelectionState& screen, const Office& office) {
    if (const auto refusal = Refusal(n, screen)) return *refusal;
    if (!GroupMayBeOff(n)) return OptionAction::Done;
    if (n == OnePayoff || n == TwoPayoffs) RequireParkingRoom(Payoff, ParkingList::B, false, screen);
    if (ChangesAnOpenedJob(screen)) EnableSave(screen);
    if (!screen.List2.empty()) CloseDocumentChoice(screen);
    ClearGroup(n, screen);
    LinesChanged(screen);
    if (screen.ScreenMode == screen_mode::kJob) RefreshFields(screen, office);
    JobCountsAsChanged(screen);
    return OptionAction::Done;
}

void JobCountsAsChanged(SelectionState& screen) {
    if (screen.cmdOpen.enabled || screen.txtJobName.locked || !screen.txtJobName.IsSaveable()) return;
    screen.cmdOpen.caption = "SAVE";
    screen.cmdOpen.enabled = true;
    screen.cmdOpen.tooltip = " save data only ";
    if (screen.cmdCreate.caption != "Re-Make") screen.cmdCreate.caption = "CREATE\n+save";
    screen.cmdPrintFList.visible = false;
    screen.cmdNameAs.caption = "Name As";
}

}  // namespace quillmark
