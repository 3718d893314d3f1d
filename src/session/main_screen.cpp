#include "session/main_screen.h"

#include <algorithm>
#include <iterator>

#include "core/field_registry.h"
#include "entry/note_cells.h"
#include "entry/smart_fields.h"
#include "selection/field_defaults.h"
#include "selection/job_list.h"
#include "selection/relevant_fields.h"

namespace quillmark {

namespace {

struct NamedButton {
    std::string_view name;
    Button SelectionState::*button;
};

// clang-format off
constexpr NamedButton kButtons[] = {
    {"cmdOpen",       &SelectionState::cmdOpen},
    {"cmdCreate",     &SelectionState::cmdCreate},
    {"cmdReset",      &SelectionState::cmdReset},
    {"cmdExit",       &SelectionState::cmdExit},
    {"cmdTemplate",   &SelectionState::cmdTemplate},
    {"cmdPackages",   &SelectionState::cmdPackages},
    {"cmdCustom",     &SelectionState::cmdCustom},
    {"cmdNameAs",     &SelectionState::cmdNameAs},
    {"cmdEnvelopes",  &SelectionState::cmdEnvelopes},
    {"cmdOP236",      &SelectionState::cmdOP236},
    {"cmdPrintFList", &SelectionState::cmdPrintFList},
    {"cmdSelect",     &SelectionState::cmdSelect},
};
// clang-format on

const Button* FindButton(const SelectionState& screen, std::string_view name) {
    const auto found = std::find_if(std::begin(kButtons), std::end(kButtons),
                                    [&](const NamedButton& button) { return button.name == name; });
    return found == std::end(kButtons) ? nullptr : &(screen.*(found->button));
}

bool IsInTopBar(std::string_view button) {
    constexpr std::string_view kTopBar[] = {"cmdOpen",     "cmdCreate",   "cmdReset", "cmdExit",
                                            "cmdTemplate", "cmdPackages", "cmdCustom"};
    return std::find(std::begin(kTopBar), std::end(kTopBar), button) != std::end(kTopBar);
}

bool Lists(const std::vector<std::string>& lines, std::string_view line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

}  // namespace

MainScreen::MainScreen(std::filesystem::path programFolder, Machine machine)
    : programFolder_(std::move(programFolder)),
      machine_(std::move(machine)),
      office_{settings_, folders_, firmDefaults_, machine_.clock, machine_.dialogs},
      editor_(screen_, office_, AroundGrid()) {
    const auto choices = [this](int n) {
        const std::string value = FieldDefault(FieldMarker(n), screen_, office_);
        return IsChoiceList(value) ? value : std::string();
    };
    AttachSmartFields(screen_.job, {.choices = choices,
                                    .templateBeingSet = [this] { return screen_.templateBeingSet; },
                                    .refused = [this](const BadFieldInput& bad) { TellBadInput(bad); }});
}

void MainScreen::TellBadInput(const BadFieldInput& bad) {
    const std::string_view marker = FieldMarker(bad.field());
    machine_.dialogs.Tell(std::string(marker.substr(1, marker.size() - 2)),
                          "BAD INPUT\nPlease try a different format.", DialogIcon::Warning);
}

void MainScreen::Click(std::string_view name) {
    const Button* button = FindButton(screen_, name);
    Require(button != nullptr, "there is no button \"" + std::string(name) + "\"");
    Require(button->enabled && button->visible,
            std::string(name) + " is " + (button->visible ? "disabled" : "hidden"));
    editor_.LoseFocus(IsInTopBar(name) ? ScreenFocus::Buttons : ScreenFocus::Elsewhere);
    if (name == "cmdReset") return ResetSession();
    if (name == "cmdExit") return screen_.cmdExit.caption == "EMAIL" ? Mail() : End();
    if (name == "cmdCreate") return Create();
    if (name == "cmdNameAs") return NameJob();
    if (name == "cmdTemplate") return Templates();
    if (name == "cmdSelect") return AskForClient();
    if (name == "cmdPrintFList") return PrintFieldList();
    if (name == "cmdOpen") {
        if (screen_.cmdOpen.caption == "OPEN") return OpenBrowser(false);
        return screen_.cmdOpen.caption == "EDIT" ? Edit() : Save();
    }
    throw NotAllowed(std::string(name) + " leads to a screen of its own");
}

void MainScreen::Close() {
    editor_.LoseFocus(ScreenFocus::Elsewhere);
    End();
}

void MainScreen::FocusList1() {
    Require(screen_.List1Enabled, "the choice of documents is closed");
    editor_.LoseFocus(ScreenFocus::Documents);
    screen_.picInfo = " Double-Click documents to add them to the job list";
}

void MainScreen::FocusList2() {
    Require(screen_.List2Enabled, "the job list is closed");
    editor_.LoseFocus(ScreenFocus::Documents);
    screen_.picInfo = " Double-Click an item to remove it from the job list";
}

void MainScreen::PickDocument(std::string_view line) {
    Require(screen_.List1Enabled, "the choice of documents is closed");
    Require(Lists(screen_.List1, line), "List1 has no line \"" + std::string(line) + "\"");
    editor_.LoseFocus(ScreenFocus::Documents);
    PickLine(line, screen_, office_);
    RowsHaveChanged();
}

void MainScreen::DropDocument(std::string_view line) {
    Require(screen_.List2Enabled, "the job list is closed");
    const auto found = std::find_if(screen_.List2.begin(), screen_.List2.end(),
                                    [&](const JobListLine& listed) { return listed.name == line; });
    Require(found != screen_.List2.end(), "List2 has no line \"" + std::string(line) + "\"");
    editor_.LoseFocus(ScreenFocus::Documents);
    DropLine(static_cast<std::size_t>(found - screen_.List2.begin()), screen_, office_);
    RowsHaveChanged();
}

void MainScreen::SelectLegal(const std::vector<std::string>& lines) {
    const ListAction action = SelectLegalSize(lines, screen_);
    Require(action != ListAction::ListDisabled, "the job list is closed");
    Require(action != ListAction::NoSuchLine, "the job list does not hold all of these lines");
}

void MainScreen::ClickOption(int n) {
    RequireOption(n, quillmark::ClickOption(n, screen_, office_));
    RowsHaveChanged();
}

void MainScreen::DoubleClickOption(int n) {
    RequireOption(n, quillmark::DoubleClickOption(n, screen_, office_));
    RowsHaveChanged();
}

void MainScreen::RequireOption(int n, OptionAction action) const {
    Require(action != OptionAction::NoSuchOption, "there is no option " + std::to_string(n));
    Require(action != OptionAction::Disabled, "option " + std::to_string(n) + " is disabled");
    Require(action != OptionAction::Hidden, "option " + std::to_string(n) + " is hidden");
}

void MainScreen::Require(bool condition, const std::string& otherwise) const {
    if (ended_) throw NotAllowed("the session has ended");
    if (creating_) throw NotAllowed("documents are being made");
    if (!condition) throw NotAllowed(otherwise);
}

void MainScreen::Refresh(bool headingsOnly) {
    RefreshFields(screen_, office_, headingsOnly);
    RowsHaveChanged();
}

/// Values that came from outside show their tags as if they had been typed here.
void MainScreen::RowsHaveChanged() {
    ShowAllFieldNotes(screen_);
    editor_.Forget();
    ShowExit();
}

}  // namespace quillmark
