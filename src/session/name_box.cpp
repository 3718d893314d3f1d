#include <algorithm>

#include "core/job_file.h"
#include "core/text_conversions.h"
#include "platform/code_page.h"
#include "platform/paths.h"
#include "session/main_screen.h"
#include "session/upkeep.h"

namespace quillmark {

namespace {

constexpr std::string_view kDefaultsName = "DEFAULTS";

bool IsOneOf(std::string_view text, std::string_view capitals) {
    return UpperCase(text) == capitals;
}

}  // namespace

void MainScreen::FocusName() {
    editor_.LoseFocus(ScreenFocus::NameBox);
    NameBox& box = screen_.txtJobName;
    if (box.noSave) {
        box.noSave = false;
        box.text.clear();
        screen_.job.name.clear();
    }
    ShowNameGuidance();
}

void MainScreen::ShowNameGuidance() {
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

void MainScreen::TypeName(std::string_view text) {
    NameBox& box = screen_.txtJobName;
    Require(box.enabled && !choosingClient_, "the name box is disabled");
    Require(!box.locked, "the name box is locked");
    FocusName();
    // The focus has selected an earlier name, which the first key replaces; an incomplete one is completed.
    const bool completes = box.text.ends_with(" - ") && !text.starts_with(box.text);
    std::string typed = completes ? box.text : std::string();
    for (const char key : text) {
        if (HoldsIllegalNameCharacter({&key, 1})) continue;
        typed += key;
        box.text = typed;
        NameChanged();
        if (box.text != typed || ended_) return;
    }
    if (text.empty() && !box.text.empty()) {
        box.text.clear();
        NameChanged();
    }
}

void MainScreen::EditName(std::string_view text) {
    NameBox& box = screen_.txtJobName;
    Require(box.enabled && !choosingClient_, "the name box is disabled");
    Require(!box.locked, "the name box is locked");
    if (box.noSave) FocusName();
    box.text.clear();
    for (const char key : text)
        if (!HoldsIllegalNameCharacter({&key, 1})) box.text += key;
    NameChanged();
}

void MainScreen::NameChanged() {
    const std::string& name = screen_.txtJobName.text;
    screen_.job.name = name;
    if (name == "upgrade") return OfferUpgrade();
    if (IsOneOf(name, "BACKUP")) {
        screen_.txtJobName.text.clear();
        ResetSession();
        machine_.dialogs.Tell("  BACKUP", "The backup tool is not part of this version.",
                              DialogIcon::Information);
        return;
    }
    if (screen_.ScreenMode == screen_mode::kPresets) {
        screen_.cmdOpen.enabled = !name.empty() && !name.starts_with('{');
        return;
    }
    const bool idle = name.empty() && screen_.List2.empty();
    if (idle || screen_.cmdOpen.caption == "OPEN")
        screen_.cmdOpen.enabled = idle;
    else
        screen_.cmdOpen.enabled = !name.empty() && !name.ends_with(" - ");
    screen_.cmdTemplate.enabled = screen_.cmdPackages.enabled = screen_.cmdCustom.enabled = idle;
}

void MainScreen::OfferUpgrade() {
    const bool upgrades = machine_.dialogs.Show({"  UPGRADE SCRIPT",
                                                 "Run upgrade script ???",
                                                 {DialogButton::OK, DialogButton::Cancel},
                                                 DialogButton::OK,
                                                 DialogIcon::Question}) == DialogButton::OK;
    screen_.txtJobName.text.clear();
    NameChanged();
    if (!upgrades) return;
    try {
        StartUpgrade(programFolder_, machine_.shell);
        ended_ = true;
    } catch (const MachineError& failure) {
        machine_.dialogs.Tell("  UPGRADE SCRIPT", failure.what(), DialogIcon::Warning);
    }
}

void MainScreen::EnterName() {
    NameBox& box = screen_.txtJobName;
    Require(box.enabled && !choosingClient_, "the name box is disabled");
    if (IsOneOf(box.text, kDefaultsName)) {
        ResetSession();
        screen_.txtJobName.text = kDefaultsName;
        screen_.job.name = kDefaultsName;
        ShowSettings();
    } else if (screen_.templateBeingSet && !box.text.empty()) {
        editor_.LoseFocus(ScreenFocus::Grid);
        screen_.picInfo = " Set option buttons & default field-values for this template";
    } else if (screen_.List1Enabled) {
        editor_.LoseFocus(ScreenFocus::Documents);
        screen_.picInfo = " Double-Click documents to add them to the job list";
    }
}

}  // namespace quillmark
