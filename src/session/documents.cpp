#include "session/documents.h"

#include <algorithm>

#include "core/job_file.h"
#include "core/options.h"
#include "platform/atomic_file.h"
#include "selection/job_list.h"
#include "selection/job_list_lines.h"
#include "selection/option_clicks.h"
#include "selection/packages.h"
#include "session/grid/refresh.h"
#include "session/state/buttons.h"
#include "session/state/ready.h"

namespace quillmark {

namespace {

constexpr std::string_view kList1Guidance = " Double-Click documents to add them to the job list";
constexpr std::string_view kList2Guidance = " Double-Click an item to remove it from the job list";

}  // namespace

void ShowOptionTooltips(ScreenState& screen) {
    for (int n = 1; n <= kOptions; ++n) screen.ButtonOf(n).tooltip = OptionTooltip(n, screen.job);
}

void DocumentCommands::Offer() {
    PackageFile packages;
    try {
        packages = ReadPackages(firm_.folders.ProgramFolder);
        for (const std::string& fault : packages.faults) dialogs_.Tell("", fault, DialogIcon::Warning);
    } catch (const FileError& failure) {
        dialogs_.Tell("", failure.what(), DialogIcon::Warning);
    }
    screen_.List1 = LinesOffered(packages, firm_.folders);
}

void DocumentCommands::FocusList1() {
    RequireReady(screen_);
    Require(screen_.List1Enabled, "the choice of documents is closed");
    editor_.LoseFocus(ScreenFocus::Documents);
    screen_.picInfo = kList1Guidance;
}

void DocumentCommands::FocusList2() {
    RequireReady(screen_);
    Require(screen_.List2Enabled, "the job list is closed");
    editor_.LoseFocus(ScreenFocus::Documents);
    screen_.picInfo = kList2Guidance;
}

void DocumentCommands::Pick(std::string_view line) {
    RequireReady(screen_);
    Require(screen_.List1Enabled, "the choice of documents is closed");
    Require(std::find(screen_.List1.begin(), screen_.List1.end(), line) != screen_.List1.end(),
            "List1 has no line \"" + std::string(line) + "\"");
    Require(screen_.List2.size() < kMostDocuments, "a job cannot keep more documents");
    editor_.LoseFocus(ScreenFocus::Documents);
    const PickEffects effects = PickLine(line, !screen_.List2Enabled, screen_, firm_);
    MarkNoSave();
    screen_.List2Enabled = true;
    FollowPick(effects.droveOut, effects.asksPropertyType);
    if (line.starts_with(kDeedPrefix)) ShowCapacityTooltips();
    TellOfAdded(effects.notices);
    Refresh(screen_, firm_, editor_);
    screen_.cmdSelect.visible = false;
    screen_.cmdPrintFList.visible = true;
    screen_.cmdCreate.enabled = true;
}

void DocumentCommands::MarkNoSave() {
    if (!screen_.txtJobName.text.empty()) return;
    screen_.txtJobName.text = kNoSaveText;
    screen_.txtJobName.noSave = true;
}

void DocumentCommands::FollowPick(bool droveOut, bool asksPropertyType) {
    if (asksPropertyType) screen_.propertyTypeFrame = PropertyTypeFrame::OverPayoffs;
    screen_.cmdOpen.enabled = false;
    EnableOtherWaysIn(false, screen_);
    if (screen_.txtJobName.HoldsTypedName())
        ShowOptionsOfNamedJob();
    else if (droveOut)
        ShowOptions(false);
}

void DocumentCommands::Drop(std::string_view line) {
    RequireReady(screen_);
    Require(screen_.List2Enabled, "the job list is closed");
    const auto place = FindLine(line, screen_);
    Require(place.has_value(), "List2 has no line \"" + std::string(line) + "\"");
    editor_.LoseFocus(ScreenFocus::Documents);
    DropLine(*place, screen_);
    ShowOptions(false);
    Refresh(screen_, firm_, editor_);
    FollowDrop();
}

void DocumentCommands::FollowDrop() {
    if (screen_.List2.empty()) {
        screen_.cmdPrintFList.visible = false;
        screen_.picInfo = kList1Guidance;
        screen_.cmdCreate.enabled = false;
        return;
    }
    if (screen_.txtJobName.HoldsTypedName()) return ShowOptionsOfNamedJob();
    // Without a typed name the options stay hidden, and only their frame follows the list.
    if (AsksPropertyType(screen_)) return;
    if (!HoldsClosingStatement(screen_)) screen_.job.SetOption(LandMultiFamily, false);
    screen_.propertyTypeFrame = PropertyTypeFrame::Wide;
}

void DocumentCommands::Move(std::size_t line, std::size_t to) {
    RequireReady(screen_);
    Require(screen_.List2Enabled, "the job list is closed");
    auto& list = screen_.List2;
    Require(line < list.size() && to < list.size(), "the job list has no such line");
    const auto from = list.begin() + static_cast<std::ptrdiff_t>(line);
    const auto place = list.begin() + static_cast<std::ptrdiff_t>(to);
    line < to ? std::rotate(from, from + 1, place + 1) : std::rotate(place, from, from + 1);
    Refresh(screen_, firm_, editor_);
    screen_.picInfo = kList2Guidance;
}

void DocumentCommands::SelectLegal(const std::vector<std::string>& lines) {
    RequireReady(screen_);
    Require(screen_.List2Enabled, "the job list is closed");
    Require(SelectLegalSize(lines, screen_), "the job list does not hold all of these lines");
    screen_.picInfo = kList2Guidance;
}

void DocumentCommands::ClickOption(int n) {
    RequireOption(n);
    const OptionEffects effects = ChooseOption(n, screen_);
    if (screen_.mode != ScreenMode::Job) {
        if (!screen_.txtJobName.text.empty()) screen_.cmdOpen.enabled = true;
        ApplyInterlocks();
    }
    if (!screen_.List2.empty()) {
        screen_.List1Enabled = false;
        screen_.List2Enabled = false;
    }
    if (effects.asksFairHousing &&
        dialogs_.Confirm(" PA 16-16 Fair Housing Query", "Is this sale for a Multi-Family Rental property ?",
                         DialogButton::No))
        TellOfAdded({AddFairHousingNotice(screen_)});
    Refresh(screen_, firm_, editor_);
    CountOptionChange(screen_);
    ShowCapacityTooltips();
}

void DocumentCommands::DoubleClickOption(int n) {
    RequireOption(n);
    if (!GroupMayBeOff(n)) return ShowRowsAnew(screen_, editor_);
    ClearOptionGroup(n, screen_);
    if (screen_.mode != ScreenMode::Job && !screen_.txtJobName.text.empty()) screen_.cmdOpen.enabled = true;
    if (!screen_.List2.empty()) {
        screen_.List1Enabled = false;
        screen_.List2Enabled = false;
    }
    if (n == PowerOfAttorney || n == EstateTrust) {
        if (!screen_.job.optConf(Entity)) BringBack(TwoSellers);
        if (!screen_.job.optConf(TwoSellers)) BringBack(Entity);
    }
    if (screen_.mode == ScreenMode::Job)
        Refresh(screen_, firm_, editor_);
    else
        ShowRowsAnew(screen_, editor_);
    CountOptionChange(screen_);
}

void DocumentCommands::CloseChoice() {
    UnselectLines(screen_);
    screen_.List1Enabled = false;
    screen_.List2Enabled = false;
}

void DocumentCommands::RequireOption(int n) const {
    RequireReady(screen_);
    const std::string option = "option " + std::to_string(n);
    Require(IsOption(n), "there is no " + option);
    Require(screen_.ButtonOf(n).visible, option + " is hidden");
    Require(screen_.ButtonOf(n).enabled, option + " is disabled");
}

void DocumentCommands::ShowOptions(bool shown) {
    for (OptionButton& button : screen_.options) button.visible = shown;
}

/// A typed name makes the options useful.
void DocumentCommands::ShowOptionsOfNamedJob() {
    ShowOptions(true);
    if (AsksPropertyType(screen_)) screen_.propertyTypeFrame = PropertyTypeFrame::OverPayoffs;
}

/// In an opened job or a template, hides the buttons of what the present options exclude, and brings the
/// others of them back.
void DocumentCommands::ApplyInterlocks() {
    for (const Option n : kExcludable) {
        if (IsExcluded(n, screen_.job))
            screen_.ButtonOf(n).visible = false;
        else
            BringBack(n);
    }
}

/// Shows a button, and in an opened job or a template, where no document decides on it, enables it.
void DocumentCommands::BringBack(int n) {
    screen_.ButtonOf(n).visible = true;
    if (screen_.mode != ScreenMode::Job) screen_.ButtonOf(n).enabled = true;
}

void DocumentCommands::ShowCapacityTooltips() {
    for (const int n : {PowerOfAttorney, EstateTrust})
        screen_.ButtonOf(n).tooltip = OptionTooltip(n, screen_.job);
}

void DocumentCommands::TellOfAdded(const std::vector<std::string>& notices) {
    if (!firm_.settings.documentAlerts) return;
    for (const std::string& notice : notices) dialogs_.Tell("  ALERT", notice, DialogIcon::Information);
}

}  // namespace quillmark
