#include "selection/job_list.h"

#include <algorithm>
#include <optional>

#include "core/fields.h"
#include "core/options.h"
#include "selection/accompanying_documents.h"
#include "selection/job_list_lines.h"
#include "selection/packages.h"

namespace quillmark {

namespace {

constexpr std::string_view kSellersPackage = "STANDARD SELLER'S PACKAGE";

/// Position 0 counts as none, so what drives out the first line goes to the end.
std::vector<std::string> AddDocument(std::string_view picked, std::size_t position,
                                     std::chrono::year_month_day today, JobInHand& hand) {
    const auto at =
        position == 0 ? hand.List2.end() : hand.List2.begin() + static_cast<std::ptrdiff_t>(position);
    hand.List2.insert(at, {std::string(picked), false});
    std::vector<std::string> notices = AddAccompanying(picked, today, hand);
    hand.List2.back().selected = false;
    return notices;
}

/// The sellers' package of a fiduciary has the deed of the fiduciary's own capacity.
void PutFiduciaryDeed(JobInHand& hand) {
    const auto deed = std::find_if(hand.List2.begin(), hand.List2.end(), [](const JobListLine& line) {
        return HasTrait(line.name, DocumentTrait::PlainDeed);
    });
    if (deed == hand.List2.end()) return;
    const auto place = hand.List2.erase(deed);
    if (!hand.job.IsFilled(field::FiduciaryType)) return;
    const std::string name = std::string(kDeedPrefix) + hand.job.D(field::FiduciaryType);
    const auto inserted = hand.List2.insert(place, {name, false});
    if (HasTrait(name, DocumentTrait::TrusteeDeed))
        hand.List2.insert(inserted + 1, {std::string(kTrusteesAffidavit), false});
}

void TakePackage(std::string_view name, const std::vector<std::string>& documents, JobInHand& hand) {
    hand.List2.clear();
    for (const std::string& document : documents) AppendLine(document, hand);
    if (name == kSellersPackage && hand.job.optConf(EstateTrust)) PutFiduciaryDeed(hand);
}

/// Letterhead comes in one size.
void UnselectLetters(JobInHand& hand) {
    if (!hand.job.optConf(Letterhead)) return;
    for (JobListLine& line : hand.List2)
        if (HasTrait(line.name, DocumentTrait::Letter)) line.selected = false;
}

/// The fiduciary deeds imply the seller's capacity, and the other deeds that there is none.
void FollowDeed(std::string_view picked, JobInHand& hand) {
    if (HasTrait(picked, DocumentTrait::FiduciaryDeed))
        TurnOn(EstateTrust, hand.job);
    else if (picked.starts_with("Deed /"))
        hand.job.SetOption(EstateTrust, false);
}

}  // namespace

PickEffects PickLine(std::string_view line, bool anew, JobInHand& hand, const FirmContext& firm) {
    const std::string picked(line);
    const std::string package = PackageNameOf(picked);
    std::optional<std::vector<std::string>> documents;
    if (IsPackageLine(picked)) documents = PackageDocuments(firm.folders.ProgramFolder, package);

    if (anew) hand.List2.clear();
    PickEffects effects;
    const Excluded removed =
        RemoveExcluded(hand.List2, picked, [](const JobListLine& l) -> std::string_view { return l.name; });
    effects.droveOut = removed.any;
    effects.asksPropertyType = AsksPropertyType(hand, picked);
    if (documents)
        TakePackage(package, *documents, hand);
    else
        effects.notices = AddDocument(picked, removed.position, firm.clock.Today(), hand);
    UnselectLetters(hand);
    FollowDeed(picked, hand);
    CollectLegalSize(hand);
    return effects;
}

void DropLine(std::size_t line, JobInHand& hand) {
    hand.List2.erase(hand.List2.begin() + static_cast<std::ptrdiff_t>(line));
    CollectLegalSize(hand);
}

bool SelectLegalSize(const std::vector<std::string>& names, JobInHand& hand) {
    std::vector<JobListLine> lines = hand.List2;
    for (JobListLine& line : lines) line.selected = false;
    for (const std::string& name : names) {
        const auto line = std::find_if(lines.begin(), lines.end(),
                                       [&](const JobListLine& l) { return l.name == name && !l.selected; });
        if (line == lines.end()) return false;
        line->selected = true;
    }
    hand.List2 = std::move(lines);
    CollectLegalSize(hand);
    return true;
}

void UnselectLines(JobInHand& hand) {
    for (JobListLine& line : hand.List2) line.selected = false;
}

}  // namespace quillmark
