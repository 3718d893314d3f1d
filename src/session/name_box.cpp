#include "session/name_box.h"

#include "core/job_file.h"
#include "platform/code_page.h"
#include "session/state/buttons.h"
#include "session/state/ready.h"
#include "session/upkeep.h"

namespace quillmark {

namespace {

constexpr std::string_view kDefaultsName = "DEFAULTS";

bool IsOneOf(std::string_view text, std::string_view capitals) {
    return UpperCase(text) == capitals;
}

/// The largest number of bytes, up to `most`, that ends with a whole character.
std::size_t WholeCharacters(std::string_view utf8, std::size_t most) {
    while (most > 0 && (static_cast<unsigned char>(utf8[most]) & 0xC0) == 0x80) --most;
    return most;
}

}  // namespace

NameCommands::NameCommands(ScreenState& screen, GridEditor& editor, const Machine& machine,
                           const std::filesystem::path& programFolder, NameSurroundings around)
    : screen_(screen),
      editor_(editor),
      machine_(machine),
      programFolder_(programFolder),
      around_(std::move(around)) {}

void NameCommands::RequireOpen() const {
    RequireReady(screen_);
    Require(screen_.txtJobName.enabled && !around_.isClosed(), "the name box is disabled");
}

void NameCommands::Focus() {
    editor_.LoseFocus(ScreenFocus::NameBox);
    NameBox& box = screen_.txtJobName;
    if (box.noSave) {
        box.noSave = false;
        box.text.clear();
        screen_.job.name.clear();
    }
    ShowGuidance();
}

void NameCommands::ShowGuidance() {
    const NameBox& box = screen_.txtJobName;
    if (screen_.templateBeingSet) {
        screen_.picInfo =
            " Enter the Client or Project/Development name for which you are setting defaults (e.g.  "
            "Regency Estates)";
    } else if (screen_.List1Enabled && box.locked) {
        screen_.picInfo = " Select document(s) from available forms and packages";
        if (!box.text.empty() && screen_.cmdOpen.enabled)
            screen_.picInfo += ", or click 'EDIT' button to edit file information";
    } else if (!box.locked) {
        screen_.picInfo = " Enter name for new file (e.g.  Smith - 101 Any Street)";
        screen_.picInfo += screen_.cmdOpen.enabled ? ", or click 'OPEN' button for existing one"
                                                   : ", or click 'RESET' to start over";
    }
}

void NameCommands::Type(std::string_view text) {
    NameBox& box = screen_.txtJobName;
    RequireOpen();
    Require(!box.locked, "the name box is locked");
    Focus();
    // The focus has selected an earlier name, which the first key replaces; an incomplete one is completed.
    const bool completes = box.text.ends_with(" - ") && !text.starts_with(box.text);
    std::string typed = completes ? box.text : std::string();
    for (const char key : text) {
        if (HoldsIllegalNameCharacter({&key, 1})) continue;
        if (typed.size() >= kLongestJobName) {
            box.text.resize(WholeCharacters(typed + key, typed.size()));
            Changed();
            return TellOfLength();
        }
        typed += key;
        box.text = typed;
        Changed();
        if (box.text != typed || screen_.ended) return;
    }
    if (text.empty() && !box.text.empty()) {
        box.text.clear();
        Changed();
    }
}

void NameCommands::Edit(std::string_view text) {
    NameBox& box = screen_.txtJobName;
    RequireOpen();
    Require(!box.locked, "the name box is locked");
    if (box.noSave) Focus();
    box.text.clear();
    for (const char key : text)
        if (!HoldsIllegalNameCharacter({&key, 1})) box.text += key;
    const bool isTooLong = box.text.size() > kLongestJobName;
    if (isTooLong) box.text.resize(WholeCharacters(box.text, kLongestJobName));
    Changed();
    if (isTooLong) TellOfLength();
}

/// What is longer could not be the name of a file.
void NameCommands::TellOfLength() {
    screen_.picInfo = " A name has " + std::to_string(kLongestJobName) + " characters at most";
}

void NameCommands::Changed() {
    const std::string& name = screen_.txtJobName.text;
    screen_.job.name = name;
    if (name == "upgrade") return OfferUpgrade();
    if (IsOneOf(name, "BACKUP")) {
        screen_.txtJobName.text.clear();
        around_.reset();
        return around_.openBackup();
    }
    if (screen_.testMode) return;
    if (screen_.mode == ScreenMode::Presets) {
        screen_.cmdOpen.enabled = !name.empty() && !name.starts_with('{');
        return;
    }
    const bool idle = name.empty() && screen_.List2.empty();
    if (idle || screen_.openDoes == OpenDoes::OpenJob)
        screen_.cmdOpen.enabled = idle;
    else
        screen_.cmdOpen.enabled = !name.empty() && !name.ends_with(" - ");
    EnableOtherWaysIn(idle, screen_);
}

void NameCommands::OfferUpgrade() {
    const bool upgrades = machine_.dialogs.Show({"  UPGRADE SCRIPT",
                                                 "Run upgrade script ???",
                                                 {DialogButton::OK, DialogButton::Cancel},
                                                 DialogButton::OK,
                                                 DialogIcon::Question}) == DialogButton::OK;
    screen_.txtJobName.text.clear();
    Changed();
    if (!upgrades) return;
    try {
        StartUpgrade(programFolder_, machine_.shell);
        screen_.ended = true;
    } catch (const MachineError& failure) {
        machine_.dialogs.Tell("  UPGRADE SCRIPT", failure.what(), DialogIcon::Warning);
    }
}

void NameCommands::Enter() {
    RequireOpen();
    const NameBox& box = screen_.txtJobName;
    if (IsOneOf(box.text, kDefaultsName)) {
        around_.reset();
        screen_.txtJobName.text = kDefaultsName;
        screen_.job.name = kDefaultsName;
        around_.showSettings();
    } else if (screen_.templateBeingSet && !box.text.empty()) {
        editor_.LoseFocus(ScreenFocus::Grid);
        screen_.picInfo = " Set option buttons & default field-values for this template";
    } else if (screen_.List1Enabled) {
        editor_.LoseFocus(ScreenFocus::Documents);
        screen_.picInfo = " Double-Click documents to add them to the job list";
    }
}

}  // namespace quillmark
