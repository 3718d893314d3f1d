#include "session/main_screen.h"

#include <algorithm>
#include <iterator>

#include "entry/smart_fields.h"
#include "selection/field_defaults.h"
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

}  // namespace

MainScreen::MainScreen(std::filesystem::path programFolder, Machine machine)
    : programFolder_(std::move(programFolder)),
      machine_(std::move(machine)),
      office_{settings_, folders_, firmDefaults_, machine_.clock, machine_.dialogs} {
    AttachSmartFields(screen_.job, [this](int n) {
        const std::string choices = FieldDefault(FieldMarker(n), screen_, office_);
        return IsChoiceList(choices) ? choices : std::string();
    });
}

void MainScreen::Click(std::string_view name) {
    const Button* button = FindButton(screen_, name);
    Require(button != nullptr, "there is no button \"" + std::string(name) + "\"");
    Require(button->enabled && button->visible,
            std::string(name) + " is " + (button->visible ? "disabled" : "hidden"));
    if (name == "cmdReset") return ResetSession();
    if (name == "cmdExit") return screen_.cmdExit.caption == "EMAIL" ? Mail() : End();
    if (name == "cmdCreate") return Create();
    if (name == "cmdNameAs") return NameJob();
    if (name == "cmdTemplate") return Templates();
    if (name == "cmdSelect") return AskForClient();
    if (name == "cmdOpen") {
        if (screen_.cmdOpen.caption == "OPEN") return OpenBrowser(false);
        return screen_.cmdOpen.caption == "EDIT" ? Edit() : Save();
    }
    throw NotAllowed(std::string(name) + " leads to a screen of its own");
}

void MainScreen::Close() {
    End();
}

void MainScreen::PickDocument(std::string_view line) {
    Require(screen_.List1Enabled, "the choice of documents is closed");
    Require(std::find(screen_.List1.begin(), screen_.List1.end(), line) != screen_.List1.end(),
            "List1 has no line \"" + std::string(line) + "\"");
    AddPickedLine(line, screen_, office_);
}

void MainScreen::Require(bool condition, const std::string& otherwise) const {
    if (ended_) throw NotAllowed("the session has ended");
    if (!condition) throw NotAllowed(otherwise);
}

void MainScreen::Refresh(bool headingsOnly) {
    RefreshFields(screen_, office_, headingsOnly);
}

}  // namespace quillmark
