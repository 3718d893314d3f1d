#include <fmt/chrono.h>

#include "platform/machine.h"
#include "platform/paths.h"
#include "session/main_screen.h"
#include "session/state/ready.h"

/// What was done to the job: taken back, done again, kept through a crash.
namespace quillmark {

namespace {

std::string TextOf(std::chrono::local_seconds time) {
    const auto seconds = static_cast<std::time_t>(time.time_since_epoch().count());
    return fmt::format("{:%B %d, %Y at %H:%M}", fmt::gmtime(seconds));
}

}  // namespace

void MainScreen::NoteAct(int hint) {
    if (history_.Note(hint)) Keep();
}

/// The journal as the history has it now.
void MainScreen::Keep() {
    if (!journal_) return;
    const std::size_t changes = changesBeforeHistory_ + history_.Done();
    changes > 0 ? journal_->Add(history_.Present(), changes, machine_.clock.Now()) : journal_->Clear();
}

/// Changes that are in no file yet stay in the journal.
void MainScreen::EndHistory() {
    changesBeforeHistory_ += history_.Done();
    if (!screen_.HasUnsavedChanges()) changesBeforeHistory_ = 0;
    history_.BeginAnew();
    Keep();
    const NameBox& box = screen_.txtJobName;
    const bool isFile = box.locked && box.IsSaveable() && screen_.mode != ScreenMode::Presets;
    if (recent_ && isFile && !screen_.HasUnsavedChanges()) recent_->Touch(box.text);
}

std::vector<RecentJob> MainScreen::RecentJobs() const {
    return recent_ ? recent_->Jobs(firm_.folders()) : std::vector<RecentJob>();
}

void MainScreen::OpenJob(std::string_view job) {
    RequireReady(screen_);
    Require(screen_.openDoes == OpenDoes::OpenJob && screen_.cmdOpen.enabled, "a job has been begun");
    OpenBrowser(false);
    const AfterCommand closes{[this] { CloseBrowser(); }};
    const std::filesystem::path file = PathOf(job);
    if (!file.has_parent_path()) return LoadJob(job, false);
    Anew([&] { files_.LoadFrom(FindJob(std::string(job), firm_.folders()), false); });
}

std::string MainScreen::Undo() {
    RequireReady(screen_);
    Act([this] { editor_.LoseFocus(ScreenFocus::Elsewhere); });
    const std::string name = history_.Undo();
    Keep();
    return name;
}

std::string MainScreen::Redo() {
    RequireReady(screen_);
    Act([this] { editor_.LoseFocus(ScreenFocus::Elsewhere); });
    const std::string name = history_.Redo();
    Keep();
    return name;
}

void MainScreen::OpenOwnState() {
    try {
        const auto folder = machine_.shell.FolderOf(SpecialFolder::State) / "quillmark";
        recent_.emplace(folder, firm_.ProgramFolder());
        journal_.emplace(folder / "journal", firm_.ProgramFolder());
    } catch (const MachineError&) {
        // A system without a place for it: the program works as well without.
    }
}

/// The newest of what programs left that did not end cleanly. Others are offered at the next starts.
void MainScreen::OfferWhatWasLeft() {
    if (!journal_) return;
    for (const Journal::Left& left : journal_->LeftByOthers()) {
        const std::string job = left.job.empty() ? "(without a name)" : left.job;
        if (!machine_.dialogs.Confirm("  CONTINUE",
                                      "Continue where you stopped ?\n\nJob:  " + job +
                                          "\nLast change:  " + TextOf(left.time) +
                                          "\nChanges that no file holds:  " + std::to_string(left.changes),
                                      DialogButton::Yes)) {
            journal_->Decline(left);
            continue;
        }
        editor_.Forget();
        left.state->PutBack(screen_, nullptr);
        screen_.job.name = screen_.txtJobName.IsSaveable() ? screen_.txtJobName.text : std::string();
        history_.BeginAnew();
        changesBeforeHistory_ = left.changes;
        files_.Resume(left.file);
        journal_->TakeOver(history_.Present(), left);
        return;
    }
}

}  // namespace quillmark
