#include "core/field_registry.h"
#include "selection/option_buttons.h"
#include "session/main_screen.h"

namespace quillmark {

namespace {

constexpr std::string_view kUnsavedTitle = "  ALERT";
constexpr std::string_view kUnsavedText = "You did not save your changes.\nSave them now ???";

void ResetOptions(SelectionState& screen) {
    for (int n = 1; n <= kOptions; ++n) {
        OptionButton& button = screen.options[static_cast<std::size_t>(n)];
        button = {false, n != LandMultiFamily, {}};
    }
    ShowOptionTooltips(screen);
}

void ResetButtons(SelectionState& screen, bool paraPro) {
    screen.cmdOpen = {"OPEN", " open existing job file ", true, true};
    screen.cmdCreate = {"CREATE", " process current job ", false, true};
    screen.cmdReset = {"RESET", " restart the session ", true, true};
    screen.cmdExit = {"EXIT", " shutdown Quillmark ", true, true};
    screen.cmdTemplate = {"TEMPLATES", " set/edit client defaults ", true, true};
    screen.cmdPackages = {"PACKAGES", " create/edit package definitions ", true, true};
    screen.cmdCustom = {"CUSTOM", " import/edit custom documents ", true, true};
    screen.cmdNameAs = {"Rename", "", true, false};
    screen.cmdEnvelopes = {"envelopes", "", false, true};
    screen.cmdOP236 = {"OP-236", "", false, true};
    screen.cmdPrintFList = {"  PRINT Field List", " print list of relevant fields ", true, false};
    screen.cmdSelect = {"Re-Select", "", true, paraPro};
}

}  // namespace

bool MainScreen::HasUnsavedChanges() const {
    return screen_.cmdOpen.caption == "SAVE" && screen_.cmdOpen.enabled;
}

bool MainScreen::AsksToSave() {
    if (!HasUnsavedChanges()) return false;
    return machine_.dialogs.Confirm(std::string(kUnsavedTitle), std::string(kUnsavedText));
}

void MainScreen::ResetSession() {
    // The user's own closing of the word processor is no fault here.
    try {
        if (run_) run_->session().WordApp.Quit();
    } catch (const word::AutomationError&) {
    }
    if (AsksToSave()) return Save();
    run_.reset();
    StartAnew();
}

void MainScreen::StartAnew() {
    const std::vector<std::string> catalogue = std::move(screen_.List1);
    Job job = std::move(screen_.job);
    job.Reset();
    screen_ = SelectionState{};
    screen_.job = std::move(job);
    screen_.List1 = catalogue;
    for (int n = 1; n <= kFields; ++n) screen_.job.SetField(n, "");
    ResetOptions(screen_);
    ResetButtons(screen_, settings_.paraPro && !client_.empty());
    editor_.Forget();
    List3_.clear();
    knownFile_.clear();
    browserOpen_ = false;
    addresses_.reset();
    calculator_.reset();
    lastDocument_.reset();
    FocusName();
}

void MainScreen::BeginFieldEntry() {
    if (!screen_.txtJobName.enabled) return;
    if (!screen_.FieldEntryStarted) screen_.txtJobName.enabled = false;
    for (JobListLine& line : screen_.List2) line.selected = false;
    screen_.List1Enabled = false;
    screen_.List2Enabled = false;
    for (OptionButton& option : screen_.options) option.enabled = false;
    if (screen_.ScreenMode == screen_mode::kJob) screen_.FieldEntryStarted = true;
    screen_.cmdTemplate.enabled = false;
}

void MainScreen::Edit() {
    for (JobListLine& line : screen_.List2) line.selected = false;
    screen_.List1Enabled = false;
    screen_.List2Enabled = false;
    for (OptionButton& option : screen_.options) option.enabled = true;
    screen_.options[LandMultiFamily].visible = true;
    screen_.ScreenMode = screen_mode::kEdit;
    Refresh();
    editor_.LoseFocus(ScreenFocus::Grid);
    screen_.cmdNameAs.enabled = false;
    screen_.picInfo = " Click an item for edit (Double-Click if locked)";
    screen_.cmdOpen = {"SAVE", " save changes ", false, true};
}

void MainScreen::End() {
    if (AsksToSave()) Save();
    ended_ = true;
}

}  // namespace quillmark
