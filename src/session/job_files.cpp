#include "core/job_file.h"

#include <fmt/format.h>

#include <thread>
#include <utility>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "entry/address_book_fields.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "selection/document_catalogue.h"
#include "selection/field_listing.h"
#include "selection/option_buttons.h"
#include "session/info_bar.h"
#include "session/main_screen.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

/// Another computer holds a file for a moment only.
template <class Step>
auto RetriedWhileInUse(Step step) {
    for (;;) {
        try {
            return step();
        } catch (const FileError& failure) {
            if (failure.kind != FileError::Kind::InUse) throw;
        }
        std::this_thread::sleep_for(FileLock::kPause);
    }
}

}  // namespace

bool MainScreen::JobExists(std::string_view name) const {
    if (screen_.txtJobName.locked || screen_.cmdCreate.caption == "Re-Make") return false;
    return fs::exists(JobFilePath(folders_, name));
}

/// Another computer has saved the job since it was opened here.
bool MainScreen::ChangedByOthers() const {
    const fs::path file = JobFilePath(folders_, screen_.txtJobName.text);
    if (!screen_.txtJobName.locked || knownFile_.empty() || !fs::exists(file)) return false;
    return RetriedWhileInUse([&] { return ReadFile(file, kJobFileLimit); }) != knownFile_;
}

bool MainScreen::MayOverwrite() {
    NameBox& box = screen_.txtJobName;
    if (!JobExists(box.text) && !ChangedByOthers()) return true;
    const InfoColour name = creating_ ? InfoColour::Red : InfoColour::Black;
    const InfoColour rest = creating_ ? InfoColour::Black : InfoColour::Red;
    ShowInfo({{" WARNING:  A file by the name  ", rest},
              {box.text, name},
              {"  already exists in the database!", rest}},
             screen_);
    const auto answer = machine_.dialogs.Show({"  ALERT",
                                               "About to overwrite an existing file, data will be lost.",
                                               {DialogButton::OK, DialogButton::Cancel},
                                               DialogButton::Cancel,
                                               DialogIcon::Warning});
    if (answer == DialogButton::OK) {
        box.locked = true;
        screen_.picInfo = " The existing file was overwritten";
        return true;
    }
    box.enabled = true;
    FocusName();
    screen_.picInfo = " Choose a different name for this file or click RESET to start over";
    screen_.cmdOpen.enabled = screen_.cmdOpen.caption == "SAVE";
    return false;
}

AddressBooks MainScreen::Books() const {
    return {folders_.DatabasePath, machine_.clock, machine_.waitForBooks};
}

/// Adds the job's addresses to the books. Gives what kept any of them out, a line each: the books are a
/// convenience, and nothing about them may stand in the way of the job's own file.
std::string MainScreen::FeedBooks() const {
    try {
        return fmt::format("{}", fmt::join(SaveToDatabases(screen_.job, Books()).leftOut, "\n"));
    } catch (const std::exception& failure) {
        return failure.what();
    }
}

void MainScreen::TellOfBooks(const std::string& notFed) {
    if (notFed.empty()) return;
    machine_.dialogs.Tell("  ALERT",
                          "Addresses of this job were not added to the address databases.\n\n" + notFed,
                          DialogIcon::Warning);
}

void MainScreen::Save() {
    if (SettingsListShown()) return SaveSettings();
    Require(screen_.txtJobName.IsSaveable(), "the job has no name to save it under");
    SaveJob();
}

void MainScreen::SaveJob() {
    NameBox& box = screen_.txtJobName;
    if (screen_.ScreenMode == screen_mode::kPresets && !IsTemplateName(box.text))
        box.text = TemplateName(box.text);
    screen_.job.name = box.text;
    if (!MayOverwrite()) return;
    const std::string notFed = FeedBooks();
    WriteJob();
    CountAsSaved();
    TellOfBooks(notFed);
}

void MainScreen::WriteJob() {
    Job& job = screen_.job;
    const std::string& attorney = job.D(field::SellerAtty);
    const std::string& juris = job.D(field::Part(1, field::SellerAtty));
    if (attorney.find('/') == std::string::npos && !juris.empty())
        job.SetValue(field::SellerAtty, attorney + "/" + juris);
    RetriedWhileInUse([&] { SaveJobFiles(folders_, job); });
    knownFile_ = JobFileRecords(job);
}

/// After a save there is nothing more to save, and the name belongs to a file.
void MainScreen::CountAsSaved() {
    screen_.txtJobName.locked = true;
    screen_.cmdOpen.enabled = false;
    screen_.cmdPrintFList.visible = screen_.ScreenMode == screen_mode::kJob && !screen_.List2.empty();
    screen_.cmdNameAs.caption = "Rename";
    if (screen_.ScreenMode != screen_mode::kEdit) return;
    screen_.cmdNameAs.enabled = true;
    if (screen_.currentRow < 0 || screen_.currentRow >= static_cast<int>(screen_.grid.size())) return;
    SetRowState(screen_.grid[static_cast<std::size_t>(screen_.currentRow)], "OFF", screen_);
}

void MainScreen::LoadJob(std::string_view name, bool asTemplate) {
    if (name == kNewTemplateEntry) {
        screen_.txtJobName.text.clear();
        CloseBrowser();
        Refresh();
        return;
    }
    const fs::path file = JobFilePath(folders_, name);
    if (!fs::exists(file)) {
        machine_.dialogs.Tell("", "File No Longer Exists", DialogIcon::Warning);
        return;
    }
    Job& job = screen_.job;
    const std::string former = std::exchange(job.name, std::string(name));
    try {
        knownFile_ = RetriedWhileInUse([&] { return ReadFile(file, kJobFileLimit); });
        RetriedWhileInUse([&] { ReadJobFile(folders_, file, job, asTemplate); });
    } catch (...) {
        job.name = former;
        throw;
    }
    NameBox& box = screen_.txtJobName;
    box.locked = true;
    CloseBrowser();
    screen_.browsedFile = name;
    if (asTemplate) {
        box.text = name;
        Refresh();
        screen_.currentRow = screen_.grid.empty() ? -1 : 0;
        return;
    }
    FillList2FromHistory();
    if (box.text.empty()) {
        box.text = name;
        ShowAsOpened();
    }
    Refresh();
    screen_.cmdCreate.enabled = !screen_.List2.empty();
    ShowNameGuidance();
}

void MainScreen::ShowAsOpened() {
    screen_.cmdOpen = {"EDIT", " edit file data ", true, true};
    screen_.cmdEnvelopes.enabled = screen_.cmdOP236.enabled = true;
    screen_.cmdNameAs = {"Rename", "", true, true};
    screen_.cmdTemplate.enabled = screen_.cmdPackages.enabled = screen_.cmdCustom.enabled = false;
}

/// The documents once made for the job are its job list again.
void MainScreen::FillList2FromHistory() {
    screen_.List2.clear();
    for (std::string& name : DocumentsOf(screen_.job.JobDocuments))
        screen_.List2.push_back({std::move(name), false});
    screen_.List2Enabled = !screen_.List2.empty();
    screen_.List2Tooltip = screen_.List2.empty() ? "" : " Click to select doc(s) for legal size (8.5 x 14) ";
}

void MainScreen::Spawn(std::string_view entry) {
    constexpr std::size_t kBegin = 2;  // "{ "
    constexpr std::size_t kEnd = 11;   // "_template }"
    Require(screen_.templateBeingSet && browserOpen_, "the template browser is not open");
    Require(IsTemplateName(entry) && entry.size() > kBegin + kEnd, "no template is selected");
    if (!fs::exists(JobFilePath(folders_, entry))) {
        machine_.dialogs.Tell("", "File No Longer Exists", DialogIcon::Warning);
        return;
    }
    screen_.List1Enabled = true;
    for (OptionButton& option : screen_.options) option.enabled = false;
    screen_.options[LandMultiFamily].visible = false;
    screen_.templateBeingSet = false;
    screen_.ScreenMode = screen_mode::kJob;
    NameBox& box = screen_.txtJobName;
    box.text = Lowered(entry.substr(kBegin, entry.size() - kBegin - kEnd)) + " - ";
    LoadJob(entry, false);
    screen_.job.name = box.text;
    screen_.job.JobDocuments.clear();
    screen_.List2.clear();
    box.locked = false;
    NameChanged();
    FocusName();
}

std::optional<std::string> MainScreen::AskForName(bool rename) {
    InputDialog box{
        " NAME AS ...",
        "ENTER A NAME FOR THE NEW FILE\n\nNote:  This allows you to save the current session as\na new "
        "file, leaving the original file intact.",
        screen_.txtJobName.text};
    if (rename) box = {" RE-NAME ...", "ENTER A NEW NAME FOR THIS FILE", screen_.txtJobName.text};
    for (;;) {
        const auto answer = machine_.dialogs.Ask(box);
        if (!answer || answer->empty() || *answer == screen_.txtJobName.text) return std::nullopt;
        if (!HoldsIllegalNameCharacter(*answer)) return answer;
        machine_.dialogs.Tell("",
                              "The filename given contains one or more\nof these illegal characters ... "
                              "\\/:*?<>|{}\"",
                              DialogIcon::Warning);
        box.proposed = screen_.txtJobName.text;
    }
}

void MainScreen::NameJob() {
    NameBox& box = screen_.txtJobName;
    if (screen_.cmdNameAs.caption == "Rename") {
        while (const auto name = AskForName(true))
            if (Rename(*name)) return;
        return;
    }
    const auto name = AskForName(false);
    if (!name) return;
    box.text = *name;
    box.locked = false;
    box.enabled = true;
    screen_.job.name = *name;
    screen_.job.JobDocuments.clear();
}

bool MainScreen::Rename(const std::string& name) {
    NameBox& box = screen_.txtJobName;
    if (!RetriedWhileInUse([&] { return RenameJobFiles(folders_, box.text, name); })) {
        machine_.dialogs.Tell("", "A file with this name already exists,\nplease try again.",
                              DialogIcon::Warning);
        return false;
    }
    box.text = name;
    screen_.job.name = name;
    return true;
}

void MainScreen::OpenBrowser(bool templates) {
    screen_.templateBeingSet = templates;
    browserOpen_ = true;
}

void MainScreen::CloseBrowser() {
    browserOpen_ = false;
}

}  // namespace quillmark
