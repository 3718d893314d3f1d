#include "session/main_screen.h"

#include <algorithm>

#include "core/field_registry.h"
#include "core/fields.h"
#include "core/job_file.h"
#include "production/run/field_list.h"
#include "selection/field_defaults.h"
#include "session/grid/refresh.h"
#include "session/letter.h"
#include "session/state/buttons.h"
#include "session/state/ready.h"
#include "session/state/stages.h"
#include "session/upkeep.h"

namespace quillmark {

namespace {

/// Whether anything was typed or chosen that a job's file would keep.
bool HoldsValues(const Job& job) {
    for (int n = field::DocumentDate + 1; n <= kFields; ++n) {
        const FieldHolder& holder = job.txtField(n);
        if (job.IsFilled(n) && holder.top != 0 && !holder.forShow) return true;
    }
    return std::ranges::any_of(job.userFields, [](const auto& row) { return !row.second.empty(); });
}

}  // namespace

MainScreen::MainScreen(std::filesystem::path programFolder, Machine machine)
    : machine_(std::move(machine)),
      firm_(std::move(programFolder), machine_),
      editor_(screen_, firm_.Context(), machine_.dialogs, AroundGrid()),
      steps_(screen_, editor_, firm_.Context(), machine_.dialogs, [this] { return firm_.Books(); }),
      nameBox_(screen_, editor_, machine_, firm_.ProgramFolder(), AroundName()),
      documents_(screen_, editor_, firm_.Context(), machine_.dialogs),
      files_(screen_, editor_, nameBox_, firm_, machine_),
      create_(screen_, files_, firm_, machine_, [this] { ResetSession(); }),
      settings_(screen_, firm_, machine_, [this] { BeginFieldEntry(); }),
      clients_(screen_, firm_, machine_,
               {.startAnew = [this] { StartAnew(); },
                .setDefaults =
                    [this] {
                        TypeName("DEFAULTS");
                        EnterName();
                    }}),
      sideWindows_(screen_, editor_, firm_, machine_,
                   {.isClosed = [this] { return clients_.IsOpen(); },
                    .settingsShown = [this] { return settings_.IsShown(); },
                    .openRow = [this](int row) { steps_.VisitRow(row); },
                    .fieldChanged = [this](int n) { FieldChanged(n); },
                    .offerDocuments = [this] { documents_.Offer(); },
                    .startTestMode = [this] { StartTestMode(); },
                    .readFirm = [this] { ReadFirmAnew(); }}) {
    const auto choices = [this](int n) {
        const std::string value = FieldDefault(FieldMarker(n), screen_, firm_.Context());
        return IsChoiceList(value) ? value : std::string();
    };
    AttachSmartFields(screen_.job, {.choices = choices,
                                    .templateBeingSet = [this] { return screen_.templateBeingSet; },
                                    .refused = [this](const BadFieldInput& bad) { TellBadInput(bad); }});
    ResetButtons(false, screen_);
    ShowOptionTooltips(screen_);
}

GridSurroundings MainScreen::AroundGrid() {
    return {.focusName = [this] { FocusName(); },
            .beginFieldEntry = [this] { BeginFieldEntry(); },
            .fieldChanged = [this](int n) { FieldChanged(n); },
            .books = [this] { return firm_.Books(); },
            .progress = [this] { machine_.LetRepaint(); }};
}

NameSurroundings MainScreen::AroundName() {
    return {.reset = [this] { ResetSession(); },
            .showSettings = [this] { settings_.Show(); },
            .isClosed = [this] { return clients_.IsOpen(); },
            .openBackup = [this] { sideWindows_.OpenBackup(); }};
}

void MainScreen::TellBadInput(const BadFieldInput& bad) {
    const std::string_view marker = FieldMarker(bad.field());
    editor_.NoteRefusal();
    files_.NoteDoubt(bad.what());
    machine_.dialogs.Tell(std::string(marker.substr(1, marker.size() - 2)),
                          "BAD INPUT\nPlease try a different format.", DialogIcon::Warning);
}

bool MainScreen::Start(bool warns) {
    if (EndsAtStart(firm_.ProgramFolder(), machine_)) {
        screen_.ended = true;
        return false;
    }
    firm_.Read();
    if (firm_.DataIsNewer()) {
        machine_.dialogs.Tell("", "UPGRADE REQUIRED, please visit https://www.quillmark.example",
                              DialogIcon::Warning);
        screen_.ended = true;
        return false;
    }
    firm_.Serve({});
    firm_.MakeFolders();
    documents_.Offer();
    if (warns) WarnOfUnsetDefaults();
    OpenOwnState();
    StartAnew();
    if (firm_.settings().paraPro)
        clients_.Open();
    else
        OfferWhatWasLeft();
    return true;
}

void MainScreen::WarnOfUnsetDefaults() {
    if (!firm_.IsUnset()) return;
    machine_.dialogs.Tell("IMPORTANT",
                          "Your company defaults have not been set !!\n(see Page 3 of User's Guide for "
                          "instructions)",
                          DialogIcon::Warning);
}

/// Settings, clients, defaults, packages and forms are those that a backup has brought.
void MainScreen::ReadFirmAnew() {
    firm_.Read();
    firm_.Serve({});
    firm_.MakeFolders();
    documents_.Offer();
    ResetSession();
    if (firm_.settings().paraPro) clients_.Open();
}

void MainScreen::StartForBulk() {
    firm_.Read();
    firm_.Serve({});
    StartAnew();
}

void MainScreen::ListDocuments(const std::vector<std::string>& documents) {
    RequireReady(screen_);
    screen_.List2.clear();
    for (const std::string& document : documents) screen_.List2.push_back({document, false});
    screen_.List2Enabled = screen_.cmdCreate.enabled = !documents.empty();
    Refresh(screen_, firm_.Context(), editor_);
}

void MainScreen::DateDocuments(std::string_view date) {
    RequireReady(screen_);
    screen_.job.SetField(field::DocumentDate, date);
    screen_.job.txtField(field::DocumentDate).locked = true;  // keeps its value while the list changes
    Refresh(screen_, firm_.Context(), editor_);
}

void MainScreen::Click(std::string_view name) {
    RequireReady(screen_);
    const Button* button = FindButton(name, screen_);
    Require(button != nullptr, "there is no button \"" + std::string(name) + "\"");
    Require(button->enabled && button->visible,
            std::string(name) + " is " + (button->visible ? "disabled" : "hidden"));
    // What the editor held is an act of its own; what the buttons do is none.
    bool goesOn = true;
    Act([&] {
        if (name == "cmdCreate" || (name == "cmdExit" && screen_.exitDoes == ExitDoes::End))
            goesOn = editor_.CommitAll(ScreenFocus::Buttons);
        else
            editor_.LoseFocus(IsInTopBar(name) ? ScreenFocus::Buttons : ScreenFocus::Elsewhere);
    });
    if (!goesOn) return;
    const AfterCommand after{[&] { EndsHistory(name) ? EndHistory() : NoteAct(0); }};
    ClickButton(name);
}

/// A run of CREATE that left early has changed nothing.
bool MainScreen::EndsHistory(std::string_view name) const {
    if (name == "cmdCreate") return create_.LastDocument() || screen_.List2.empty();
    return name == "cmdOpen" || name == "cmdReset" || name == "cmdNameAs" || name == "cmdTemplate";
}

/// A key in an editor changes the job only where it leaves the row.
void MainScreen::Type(std::string_view character) {
    const int hint = FieldInHand();
    const int row = editor_.State().EditRow;
    editor_.KeyInEditor(character);
    if (!editor_.State().IsOpen() || editor_.State().EditRow != row) NoteAct(hint);
}

void MainScreen::ClickButton(std::string_view name) {
    if (name == "cmdOpen") return OpenJobOrSave();
    if (name == "cmdReset") return ResetSession();
    if (name == "cmdCreate") return create_.Run();
    if (name == "cmdNameAs") return files_.NameJob();
    if (name == "cmdTemplate") return Templates();
    if (name == "cmdSelect") return clients_.Open();
    if (name == "cmdPrintFList") return PrintFieldList();
    if (name == "cmdCustom") return sideWindows_.OpenCustomForms();
    if (name == "cmdOP236") return sideWindows_.OpenReturn();
    if (name == "cmdEnvelopes") return sideWindows_.OpenEnvelopes();
    Require(name == "cmdExit", std::string(name) + " leads to a screen of its own");
    screen_.exitDoes == ExitDoes::Mail ? Mail() : End();
}

/// Without a mail program the address itself is of use.
void MainScreen::Mail() {
    try {
        MailBuyersAttorney(screen_, firm_.Context(), machine_.shell);
    } catch (const MachineError& failure) {
        const std::string& address = screen_.job.D(field::BuyerAttyEmail);
        const std::string text = std::string(failure.what()) + "\n\nThe address is " + address;
        if (!machine_.copyText) return machine_.dialogs.Tell("  EMAIL", text, DialogIcon::Warning);
        if (machine_.dialogs.Confirm("  EMAIL", text + "\nCopy it to the clipboard ?", DialogButton::Yes))
            machine_.copyText(address);
    }
}

void MainScreen::OpenJobOrSave() {
    if (screen_.openDoes == OpenDoes::OpenJob) return OpenBrowser(false);
    screen_.openDoes == OpenDoes::EditJob ? Edit() : Save();
}

void MainScreen::Close() {
    if (editor_.CommitAll(ScreenFocus::Elsewhere)) End();
}

/// Nothing that no file holds is dropped unless the person says so: whatever keeps it from being saved keeps
/// the session, with the reason before the person.
void MainScreen::End() {
    if (AsksToSave()) {
        Save();
        if (screen_.HasUnsavedChanges()) return;
    } else if (HoldsNamelessWork() && !LeavesNamelessWork()) {
        return;
    }
    screen_.ended = true;
}

bool MainScreen::HoldsNamelessWork() const {
    const bool changed = changesBeforeHistory_ + history_.Done() > 0;
    return changed && !screen_.testMode && !screen_.txtJobName.IsSaveable() && HoldsValues(screen_.job);
}

bool MainScreen::LeavesNamelessWork() {
    if (machine_.dialogs.Confirm("  ALERT",
                                 "This job has no name, so it was never saved.\nLeave without saving ???",
                                 DialogButton::No, DialogIcon::Warning))
        return true;
    ShowOpen(OpenDoes::SaveFields, false, screen_);
    screen_.txtJobName.enabled = true;
    nameBox_.Focus();
    return false;
}

bool MainScreen::AsksToSave() {
    return screen_.HasUnsavedChanges() &&
           machine_.dialogs.Confirm("  ALERT", "You did not save your changes.\nSave them now ???");
}

void MainScreen::Save() {
    settings_.IsShown() ? settings_.Save() : files_.Save();
}

void MainScreen::ResetSession() {
    create_.QuitWord();
    if (AsksToSave()) return Save();
    StartAnew();
}

void MainScreen::StartAnew() {
    ScreenState fresh;
    fresh.job = std::move(screen_.job);
    fresh.job.Reset();
    fresh.List1 = std::move(screen_.List1);
    fresh.testMode = screen_.testMode;
    screen_ = std::move(fresh);
    for (int n = 1; n <= kFields; ++n) screen_.job.SetField(n, "");
    ResetButtons(firm_.ServesClient(), screen_);
    Enter(Stage::Idle, screen_);
    ShowOptionTooltips(screen_);
    editor_.Forget();
    settings_.Close();
    files_.Forget();
    create_.Forget();
    sideWindows_.CloseAll();
    FocusName();
    EndHistory();
    if (screen_.testMode) CloseForTest();
}

/// A job on which forms are tried out has no name, and no other job takes its place.
void MainScreen::CloseForTest() {
    screen_.txtJobName.locked = true;
    screen_.cmdOpen.enabled = false;
    screen_.picInfo = " CUSTOM FORMS TEST MODE (exit & restart normally when finished)";
}

void MainScreen::StartTestMode() {
    screen_.testMode = true;
    StartAnew();
}

void MainScreen::BeginFieldEntry() {
    if (!screen_.txtJobName.enabled) return;
    if (!screen_.FieldEntryStarted) screen_.txtJobName.enabled = false;
    documents_.CloseChoice();
    for (OptionButton& option : screen_.options) option.enabled = false;
    if (screen_.mode == ScreenMode::Job) screen_.FieldEntryStarted = true;
    screen_.cmdTemplate.enabled = false;
}

void MainScreen::FieldChanged(int n) {
    ShowExit(screen_);
    if (n != field::DocumentDate) CountFieldChange(screen_);
}

void MainScreen::Edit() {
    documents_.CloseChoice();
    Enter(Stage::Editing, screen_);
    Refresh(screen_, firm_.Context(), editor_);
    editor_.LoseFocus(ScreenFocus::Grid);
    screen_.cmdNameAs.enabled = false;
    screen_.picInfo = " Click an item for edit (Double-Click if locked)";
}

void MainScreen::Templates() {
    Enter(Stage::Template, screen_);
    OpenBrowser(true);
}

void MainScreen::OpenBrowser(bool templates) {
    screen_.templateBeingSet = templates;
    screen_.browserOpen = true;
}

void MainScreen::Spawn(std::string_view entry) {
    RequireReady(screen_);
    Require(screen_.templateBeingSet && screen_.browserOpen, "the template browser is not open");
    Anew([&] { files_.Spawn(entry); });
}

void MainScreen::PrintFieldList() {
    Require(machine_.printer != nullptr, "there is no printer to print the field list on");
    const NameBox& box = screen_.txtJobName;
    try {
        machine_.printer->Print(FieldList(screen_, box.IsSaveable() ? box.text : std::string()));
    } catch (const MachineError& failure) {
        machine_.dialogs.Tell("  ALERT", failure.what(), DialogIcon::Warning);
    }
}

}  // namespace quillmark
