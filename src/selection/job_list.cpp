#include "selection/job_list.h"

#include <algorithm>
#include <optional>

#include "core/fields.h"
#include "selection/accompanying_documents.h"
#include "selection/option_buttons.h"
#include "selection/packages.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

constexpr std::string_view kSellersPackage = "STANDARD SELLER'S PACKAGE";

void MarkNoSave(SelectionState& screen) {
    if (!screen.txtJobName.text.empty()) return;
    screen.txtJobName.text = kNoSaveText;
    screen.txtJobName.noSave = true;
}

void OpenJobList(SelectionState& screen) {
    if (screen.List2Enabled) return;
    screen.List2Enabled = true;
    screen.List2.clear();
}

/// Position 0 counts as none, so what drives out the first line goes to the end.
void AddDocument(std::string_view picked, std::size_t position, SelectionState& screen,
                 const Office& office) {
    const auto at =
        position == 0 ? screen.List2.end() : screen.List2.begin() + static_cast<std::ptrdiff_t>(position);
    screen.List2.insert(at, {std::string(picked), false});
    AddAccompanying(picked, screen, office);
    screen.List2.back().selected = false;
}

/// The sellers' package of a fiduciary has the deed of the fiduciary's own capacity.
void PutFiduciaryDeed(SelectionState& screen) {
    const auto deed = std::find_if(screen.List2.begin(), screen.List2.end(), [](const JobListLine& line) {
        return HasTrait(line.name, DocumentTrait::PlainDeed);
    });
    if (deed == screen.List2.end()) return;
    const auto place = screen.List2.erase(deed);
    if (!screen.job.IsFilled(field::FiduciaryType)) return;
    const std::string name = std::string(kDeedPrefix) + screen.job.D(field::FiduciaryType);
    const auto inserted = screen.List2.insert(place, {name, false});
    if (HasTrait(name, DocumentTrait::TrusteeDeed))
        screen.List2.insert(inserted + 1, {std::string(kTrusteesAffidavit), false});
}

void TakePackage(std::string_view name, const std::vector<std::string>& documents, SelectionState& screen) {
    screen.List2.clear();
    for (const std::string& document : documents) AppendLine(document, screen);
    if (name == kSellersPackage && screen.job.optConf(EstateTrust)) PutFiduciaryDeed(screen);
}

/// Letterhead comes in one size.
void UnselectLetters(SelectionState& screen) {
    if (!screen.job.optConf(Letterhead)) return;
    for (JobListLine& line : screen.List2)
        if (HasTrait(line.name, DocumentTrait::Letter)) line.selected = false;
}

void CloseOtherScreens(SelectionState& screen) {
    for (Button* button : {&screen.cmdOpen, &screen.cmdTemplate, &screen.cmdPackages, &screen.cmdCustom})
        button->enabled = false;
}

void ShowOptions(bool shown, SelectionState& screen) {
    for (OptionButton& button : screen.options) button.visible = shown;
}

/// A typed name makes the options useful.
void ShowOptionsOfNamedJob(SelectionState& screen) {
    ShowOptions(true, screen);
    PlacePropertyTypeFrame(screen);
}

/// The fiduciary deeds imply the seller's capacity, and the other deeds that there is none.
void FollowDeed(std::string_view picked, SelectionState& screen) {
    if (HasTrait(picked, DocumentTrait::FiduciaryDeed))
        TurnOn(EstateTrust, screen.job);
    else if (picked.starts_with("Deed /"))
        screen.job.SetOption(EstateTrust, false);
    else
        return;
    ShowCapacityTooltips(screen);
}

void FinishPick(SelectionState& screen, const Office& office) {
    LinesChanged(screen);
    RefreshFields(screen, office);
    screen.cmdSelect.visible = false;
    screen.cmdPrintFList.visible = true;
    screen.cmdCreate.enabled = true;
}

void ListIsEmpty(SelectionState& screen) {
    screen.cmdPrintFList.visible = false;
    ShowList1Guidance(screen);
    screen.cmdCreate.enabled = false;
}

/// Without a typed name the options stay hidden, and only their frame follows the list.
void AdjustFrame(SelectionState& screen) {
    const bool statement = std::any_of(screen.List2.begin(), screen.List2.end(), [](const JobListLine& line) {
        return line.name.starts_with(kClosingStatement);
    });
    const bool contract = HoldsLine(kBridgeportContract, screen) || HoldsLine(kValleyContract, screen);
    if (statement && contract) return;
    if (!statement) screen.job.SetOption(LandMultiFamily, false);
    screen.propertyTypeFrame = PropertyTypeFrame::Wide;
}

}  // namespace

ListAction PickLine(std::string_view line, SelectionState& screen, const Office& office) {
    if (!screen.List1Enabled) return ListAction::ListDisabled;
    if (std::find(screen.List1.begin(), screen.List1.end(), line) == screen.List1.end())
        return ListAction::NoSuchLine;
    const std::string picked(line);
    const std::string package = PackageNameOf(picked);
    std::optional<std::vector<std::string>> documents;
    if (IsPackageLine(picked)) documents = PackageDocuments(office.folders.ProgramFolder, package);

    MarkNoSave(screen);
    OpenJobList(screen);
    const Excluded removed =
        RemoveExcluded(screen.List2, picked, [](const JobListLine& l) -> std::string_view { return l.name; });
    PlacePropertyTypeFrame(screen, picked);
    if (documents)
        TakePackage(package, *documents, screen);
    else
        AddDocument(picked, removed.position, screen, office);
    UnselectLetters(screen);
    CloseOtherScreens(screen);
    if (screen.txtJobName.HoldsTypedName())
        ShowOptionsOfNamedJob(screen);
    else if (removed.any)
        ShowOptions(false, screen);
    FollowDeed(picked, screen);
    FinishPick(screen, office);
    return ListAction::Done;
}

ListAction DropLine(std::size_t line, SelectionState& screen, const Office& office) {
    if (!screen.List2Enabled) return ListAction::ListDisabled;
    if (line >= screen.List2.size()) return ListAction::NoSuchLine;
    screen.List2.erase(screen.List2.begin() + static_cast<std::ptrdiff_t>(line));
    LinesChanged(screen);
    ShowOptions(false, screen);
    RefreshFields(screen, office);
    if (screen.List2.empty())
        ListIsEmpty(screen);
    else if (screen.txtJobName.HoldsTypedName())
        ShowOptionsOfNamedJob(screen);
    else
        AdjustFrame(screen);
    return ListAction::Done;
}

ListAction ToggleLegalSize(std::size_t line, SelectionState& screen) {
    if (!screen.List2Enabled) return ListAction::ListDisabled;
    if (line >= screen.List2.size()) return ListAction::NoSuchLine;
    screen.List2[line].selected = !screen.List2[line].selected;
    LinesChanged(screen);
    screen.picInfo = " Double-Click an item to remove it from the job list";
    return ListAction::Done;
}

ListAction SelectLegalSize(const std::vector<std::string>& names, SelectionState& screen) {
    if (!screen.List2Enabled) return ListAction::ListDisabled;
    std::vector<JobListLine> lines = screen.List2;
    for (JobListLine& line : lines) line.selected = false;
    for (const std::string& name : names) {
        const auto line = std::find_if(lines.begin(), lines.end(),
                                       [&](const JobListLine& l) { return l.name == name && !l.selected; });
        if (line == lines.end()) return ListAction::NoSuchLine;
        line->selected = true;
    }
    screen.List2 = std::move(lines);
    LinesChanged(screen);
    screen.picInfo = " Double-Click an item to remove it from the job list";
    return ListAction::Done;
}

void ShowList1Guidance(SelectionState& screen) {
    screen.picInfo = " Double-Click documents to add them to the job list";
}

}  // namespace quillmark
