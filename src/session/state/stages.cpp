#include "session/state/stages.h"

#include <optional>

#include "session/state/buttons.h"

namespace quillmark {

namespace {

enum class Options { AsTheyAre, AllEnabled, AllEnabledAndShown, NoneEnabled };

struct FirstButton {
    OpenDoes does;
    bool enabled;
};

struct StageRow {
    Stage stage;
    ScreenMode mode;
    std::optional<FirstButton> open;
    std::optional<bool> otherWaysIn;  ///< TEMPLATES, PACKAGES, CUSTOM
    Options options;
    bool landShown;  ///< option 13
};

// clang-format off
constexpr bool kEnabled = true;
constexpr bool kDisabled = false;
constexpr StageRow kStages[] = {
    // stage               mode                 cmdOpen                                      other ways  options                      option 13
    {Stage::Idle,         ScreenMode::Job,     FirstButton{OpenDoes::OpenJob, kEnabled},       kEnabled,     Options::NoneEnabled,        false},
    {Stage::Opened,       ScreenMode::Job,     FirstButton{OpenDoes::EditJob, kEnabled},       kDisabled,    Options::AsTheyAre,          false},
    {Stage::Editing,      ScreenMode::Edit,    FirstButton{OpenDoes::SaveChanges, kDisabled},  std::nullopt, Options::AllEnabled,         true},
    {Stage::FirmDefaults, ScreenMode::Presets, FirstButton{OpenDoes::SaveSettings, kEnabled},  kDisabled,    Options::AsTheyAre,          false},
    {Stage::Template,     ScreenMode::Presets, FirstButton{OpenDoes::SaveSettings, kDisabled}, std::nullopt, Options::AllEnabledAndShown, true},
    {Stage::Spawned,      ScreenMode::Job,     std::nullopt,                                   std::nullopt, Options::NoneEnabled,        false},
};
// clang-format on

void ShowOptions(const StageRow& row, ScreenState& screen) {
    if (row.options == Options::AsTheyAre) return;
    for (OptionButton& option : screen.options) {
        option.enabled = row.options != Options::NoneEnabled;
        if (row.options == Options::AllEnabledAndShown) option.visible = true;
    }
    screen.ButtonOf(LandMultiFamily).visible = row.landShown;
}

}  // namespace

void Enter(Stage stage, ScreenState& screen) {
    const StageRow& row = kStages[static_cast<std::size_t>(stage)];
    screen.mode = row.mode;
    if (row.open) ShowOpen(row.open->does, row.open->enabled, screen);
    if (row.otherWaysIn) EnableOtherWaysIn(*row.otherWaysIn, screen);
    ShowOptions(row, screen);
}

}  // namespace quillmark
