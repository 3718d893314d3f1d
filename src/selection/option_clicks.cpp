#include "selection/option_clicks.h"

#include <algorithm>
#include <cctype>
#include <optional>

#include "core/fields.h"
#include "core/options.h"
#include "selection/accompanying_documents.h"
#include "selection/document_catalogue.h"
#include "selection/job_list_lines.h"

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

bool AsksFairHousing(const JobInHand& hand) {
    return !IsInHistory(kChroNotice, hand.job.JobDocuments) && HoldsContract(hand) &&
           !HoldsLine(kChroNotice, hand);
}

void ApplyEffect(int clicked, JobInHand& hand) {
    if (const Effect* effect = EffectOf(clicked)) {
        if (effect->restores) RestoreParked(*effect->restores, hand);
        Park(effect->parks, ParkingList::A, hand);
        TakeOff(effect->takesOff, hand);
    }
}

void RequireRoomFor(int clicked, const JobInHand& hand) {
    const Effect* effect = EffectOf(clicked);
    if (effect && effect->parks != None)
        RequireParkingRoom(effect->parks, ParkingList::A, effect->restores.has_value(), hand);
}

void ClearCapacity(int n, JobInHand& hand) {
    if (n == EstateTrust) TakeOff(FiduciaryDeed | DeedAffidavit, hand);
    TurnGroupOff(n, hand.job);
}

void ClearPropertyType(int n, JobInHand& hand) {
    if (n == Commercial) RestoreParked(ParkingList::A, hand);
    if (n == LandMultiFamily) {
        TakeOff([](std::string_view name) { return name == kChroNotice; }, hand);
        hand.job.txtField(field::PropertyAddress1).tag.clear();
    }
    TurnGroupOff(n, hand.job);
}

void ClearGroup(int n, JobInHand& hand) {
    if (n == OnePayoff || n == TwoPayoffs) {
        Park(Payoff, ParkingList::B, hand);
        TurnGroupOff(n, hand.job);
    } else if (n == PowerOfAttorney || n == EstateTrust) {
        ClearCapacity(n, hand);
    } else {
        ClearPropertyType(n, hand);
    }
}

}  // namespace

OptionEffects ChooseOption(int n, JobInHand& hand) {
    RequireRoomFor(n, hand);
    TurnOn(n, hand.job);
    if (hand.mode != ScreenMode::Job && (n == Person || n == Entity))
        for (const int taxId : {field::Seller1TaxId, field::Seller2TaxId}) ReformTaxId(taxId, n, hand.job);
    if (hand.List2.empty()) return {};
    RebuildValues(n, hand.job);
    ApplyEffect(n, hand);
    CollectLegalSize(hand);
    return {.asksFairHousing = n == LandMultiFamily && AsksFairHousing(hand)};
}

std::string AddFairHousingNotice(JobInHand& hand) {
    AppendLine(kChroNotice, hand);
    hand.job.txtField(field::PropertyAddress1).tag = std::string(kMultiFamilyTag);
    return AddedNotice("A CHRO Fair Housing Notice must accompany the contract");
}

void ClearOptionGroup(int n, JobInHand& hand) {
    if (n == OnePayoff || n == TwoPayoffs) RequireParkingRoom(Payoff, ParkingList::B, false, hand);
    ClearGroup(n, hand);
    CollectLegalSize(hand);
}

}  // namespace quillmark
