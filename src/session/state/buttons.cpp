#include "session/state/buttons.h"

#include <algorithm>
#include <iterator>

#include "core/fields.h"

namespace quillmark {

namespace {

struct Text {
    const char* caption;
    const char* tooltip;
};

// clang-format off
constexpr Text kOpenTexts[] = {
    {"OPEN", " open existing job file "},
    {"EDIT", " edit file data "},
    {"SAVE", " save changes "},
    {"SAVE", " save data only "},
    {"SAVE", " save data only (no docs) "},
    {"SAVE", " save settings "},
};
constexpr const char* kCreateCaptions[] = {"CREATE", "CREATE\n+save", "Re-Make"};
constexpr const char* kNameAsCaptions[] = {"Rename", "Name As"};
constexpr Text kExitTexts[] = {
    {"EXIT",  " shutdown Quillmark "},
    {"EMAIL", " email buyer attorney "},
};

constexpr NamedButton kButtons[] = {
    {"cmdOpen",       &ScreenState::cmdOpen},
    {"cmdCreate",     &ScreenState::cmdCreate},
    {"cmdReset",      &ScreenState::cmdReset},
    {"cmdExit",       &ScreenState::cmdExit},
    {"cmdTemplate",   &ScreenState::cmdTemplate},
    {"cmdPackages",   &ScreenState::cmdPackages},
    {"cmdCustom",     &ScreenState::cmdCustom},
    {"cmdNameAs",     &ScreenState::cmdNameAs},
    {"cmdEnvelopes",  &ScreenState::cmdEnvelopes},
    {"cmdOP236",      &ScreenState::cmdOP236},
    {"cmdPrintFList", &ScreenState::cmdPrintFList},
    {"cmdSelect",     &ScreenState::cmdSelect},
};
// clang-format on

}  // namespace

void ShowOpen(OpenDoes does, bool enabled, ScreenState& screen) {
    const Text& text = kOpenTexts[static_cast<std::size_t>(does)];
    screen.openDoes = does;
    screen.cmdOpen = {text.caption, text.tooltip, enabled, true};
}

void ShowCreate(CreateDoes does, ScreenState& screen) {
    screen.createDoes = does;
    screen.cmdCreate.caption = kCreateCaptions[static_cast<std::size_t>(does)];
}

void ShowNameAs(NameAsDoes does, ScreenState& screen) {
    screen.nameAsDoes = does;
    screen.cmdNameAs.caption = kNameAsCaptions[static_cast<std::size_t>(does)];
}

void ShowExit(ScreenState& screen) {
    screen.exitDoes = screen.job.IsFilled(field::BuyerAttyEmail) ? ExitDoes::Mail : ExitDoes::End;
    const Text& text = kExitTexts[static_cast<std::size_t>(screen.exitDoes)];
    screen.cmdExit = {text.caption, text.tooltip, true, true};
}

void EnableOtherWaysIn(bool enabled, ScreenState& screen) {
    for (Button* button : {&screen.cmdTemplate, &screen.cmdPackages, &screen.cmdCustom})
        button->enabled = enabled;
}

void ResetButtons(bool offersClients, ScreenState& screen) {
    ShowOpen(OpenDoes::OpenJob, true, screen);
    screen.cmdCreate = {"", " process current job ", false, true};
    ShowCreate(CreateDoes::Create, screen);
    screen.cmdReset = {"RESET", " restart the session ", true, true};
    ShowExit(screen);
    screen.cmdTemplate = {"TEMPLATES", " set/edit client defaults ", true, true};
    screen.cmdPackages = {"PACKAGES", " create/edit package definitions ", true, true};
    screen.cmdCustom = {"CUSTOM", " import/edit custom documents ", true, true};
    screen.cmdNameAs = {"", "", true, false};
    ShowNameAs(NameAsDoes::Rename, screen);
    screen.cmdEnvelopes = {"envelopes", " print envelopes ", false, true};
    screen.cmdOP236 = {"OP-236", "", false, true};
    screen.cmdPrintFList = {"  PRINT Field List", " print list of relevant fields ", true, false};
    screen.cmdSelect = {"Re-Select", "", true, offersClients};
}

std::span<const NamedButton> Buttons() {
    return kButtons;
}

const Button* FindButton(std::string_view name, const ScreenState& screen) {
    const auto found = std::find_if(std::begin(kButtons), std::end(kButtons),
                                    [&](const NamedButton& button) { return button.name == name; });
    return found == std::end(kButtons) ? nullptr : &(screen.*(found->button));
}

bool IsInTopBar(std::string_view name) {
    constexpr std::string_view kTopBar[] = {"cmdOpen",     "cmdCreate",   "cmdReset", "cmdExit",
                                            "cmdTemplate", "cmdPackages", "cmdCustom"};
    return std::find(std::begin(kTopBar), std::end(kTopBar), name) != std::end(kTopBar);
}

void CountFieldChange(ScreenState& screen) {
    if (!screen.txtJobName.IsSaveable()) return;
    if (screen.createDoes != CreateDoes::ReMake) ShowCreate(CreateDoes::CreateAndSave, screen);
    const bool edits = screen.mode == ScreenMode::Edit;
    ShowOpen(edits ? OpenDoes::SaveChanges : OpenDoes::SaveFields, true, screen);
    screen.cmdPrintFList.visible = false;
    if (!screen.txtJobName.locked) return;
    ShowNameAs(NameAsDoes::NameAs, screen);
    screen.cmdNameAs.enabled = screen.cmdNameAs.visible = true;
}

void CountOptionChange(ScreenState& screen) {
    if (screen.cmdOpen.enabled || !screen.txtJobName.HoldsTypedName()) return;
    ShowOpen(OpenDoes::SaveData, true, screen);
    if (screen.createDoes != CreateDoes::ReMake) ShowCreate(CreateDoes::CreateAndSave, screen);
    screen.cmdPrintFList.visible = false;
    ShowNameAs(NameAsDoes::NameAs, screen);
}

}  // namespace quillmark
