#include "session/create_command.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/fields.h"
#include "platform/atomic_file.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "production/run/create_checks.h"
#include "production/run/create_notices.h"
#include "production/run/dispatch.h"
#include "selection/relevant_fields.h"
#include "session/blanks.h"
#include "session/job_check.h"
#include "session/state/buttons.h"
#include "session/state/info_bar.h"
#include "session/state/ready.h"
#include "word/trace.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

fs::path DocumentPath(const CreateTarget& target, const std::string& name, Shell& shell) {
    const auto unused = [&](const fs::path& wanted) {
        return target.replaces ? wanted : ClaimedName(wanted);
    };
    if (target.to.extension() == ".docx") return unused(target.to);
    const fs::path folder = target.to.empty() ? shell.FolderOf(SpecialFolder::Documents) : target.to;
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw FileError(folder, error);
    return unused(folder / PathOf((name.empty() ? "Untitled" : name) + "_QMF.docx"));
}

void ShowProgress(const CreateProgress& progress, ScreenState& screen) {
    screen.progress = {true, progress.value, progress.maximum, progress.document, progress.documents};
    if (progress.document > progress.documents) screen.message = " Finalizing Job Please Wait";
}

void EndWaiting(ScreenState& screen) {
    screen.waiting = false;
    screen.progress = {};
    screen.message.clear();
}

/// Read behind the trace's back, which holds what makes the document.
std::string TextOfDocument(CreateRun& run) {
    return word::Document(word::Untraced(run.session().WordDoc.Reach())).Content.Text;
}

/// What the guidance bar adds where the document is not whole; empty where it is.
std::string Gaps(const std::vector<std::string>& holes, const std::vector<std::string>& documents,
                 const std::vector<std::string>& pictureFaults) {
    std::string text;
    for (const std::string& fault : pictureFaults) text += ".  " + fault;
    if (!documents.empty()) text += fmt::format(".  No text yet for:  {}", fmt::join(documents, "; "));
    if (!holes.empty()) text += fmt::format(".  Nothing fills:  {}", fmt::join(holes, ", "));
    return text;
}

/// One line, as the guidance bar has no more.
std::string InOneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c == '\n')
            line += " - ";
        else if (c != '\r')
            line += c;
    }
    return line;
}

}  // namespace

void CreateCommand::Run() {
    RequireReady(screen_);
    Require(!screen_.List2.empty(), "the job list is empty");
    lastDocument_.reset();
    making_ = {};
    screen_.creating = true;
    try {
        EndFormerRun();
        if (MayCreate()) MakeDocuments();
        screen_.creating = false;
    } catch (...) {
        screen_.creating = false;
        const CreateError failure = CreateError::OfPresentException();
        EndFailedRun(failure);
        throw CreateError(failure.number(), failure.Message() + ": " + failure.what());
    }
}

/// Of the document of the run before, Re-Make makes another one.
void CreateCommand::EndFormerRun() {
    if (!run_) return;
    const std::unique_ptr<CreateRun> former = std::move(run_);
    try {
        former->session().WordApp.Quit();
    } catch (const word::AutomationError& failure) {
        // The user may have closed it already.
        if (failure.number() != word::error::kServerGone) throw;
    }
    machine_.LetRepaint();
}

bool CreateCommand::MayCreate() {
    if (screen_.createDoes != CreateDoes::ReMake && !OpenFieldsOf(screen_).required.empty() &&
        !machine_.dialogs.Confirm("  ALERT", std::string(kProceedAnyway), DialogButton::No)) {
        ++leftForOpenFields_;
        return false;
    }
    if (const auto obstacle = WhyNotCreate(screen_.job)) {
        machine_.dialogs.Show(*obstacle);
        return false;
    }
    screen_.cmdOpen.enabled = false;
    return !target_.keepsJob || files_.MayOverwrite();
}

CreateOrder CreateCommand::OrderOfRun(const std::shared_ptr<std::string>& trace) {
    CreateOrder order;
    for (const JobListLine& line : screen_.List2) order.DocumentNames.push_back(line.name);
    order.LegalList = screen_.LegalList;
    order.settings = firm_.settings();
    order.today = machine_.clock.Today();
    order.CustomFormsFolder = firm_.folders().CustomFormsFolder;
    order.nameUsable = screen_.txtJobName.IsSaveable();
    order.dialogs = &machine_.dialogs;
    // The word processor outlives this run, and so must the trace that it writes to.
    order.startWord = [this, trace] {
        word::StartedWordProcessor started = machine_.startWord();
        if (trace && !target_.trace.empty())
            started.application = word::Trace(
                started.application, [trace](std::string_view line) { trace->append(line).append("\n"); });
        return started;
    };
    order.onProgress = [this](const CreateProgress& progress) {
        ShowProgress(progress, screen_);
        machine_.LetRepaint();
    };
    return order;
}

void CreateCommand::MakeDocuments() {
    const NameBox& box = screen_.txtJobName;
    screen_.job.name = box.IsSaveable() ? box.text : std::string();
    const auto trace = std::make_shared<std::string>();
    auto run = std::make_unique<CreateRun>(screen_.job, OrderOfRun(trace));
    screen_.waiting = true;
    run->Produce();
    const std::string notFed = target_.keepsJob && !screen_.testMode ? files_.FeedBooks() : std::string();
    run->PutValuesBack();
    LookForGaps(*run);
    fs::path document;
    run->Attempt([&] {
        document = SaveDocument(*run);
        if (box.IsSaveable() && target_.keepsJob) KeepMadeJob();
        ShowNotices(run->CreateNotices());
        files_.TellOfBooks(notFed);
        run->RestoreCheckers();
        ShowAsMade();
    });
    run->Show();
    run->Attempt([&] {
        if (!target_.trace.empty()) ReplaceFile(target_.trace, *trace);
    });
    const bool opens = run->IsEmbedded() && target_.to.empty();
    making_.shownByWordProcessor = !run->IsEmbedded();
    making_.document = document;
    making_.number = ++runs_;
    made_ = std::move(making_);
    run_ = std::move(run);
    lastDocument_ = document;
    if (opens) OpenDocument(document);
}

/// The file that the document is in now; empty while the word processor alone has it.
fs::path CreateCommand::SaveDocument(CreateRun& run) {
    const std::string& name = screen_.job.name;
    const bool keeps =
        run.IsEmbedded() || !target_.to.empty() || (firm_.settings().wordAutoSave && !name.empty());
    if (!keeps) return {};
    fs::path file = DocumentPath(target_, name, machine_.shell);
    try {
        run.session().WordDoc.SaveAs(TextOf(file));
    } catch (const word::AutomationError& failure) {
        GiveUpClaim(file);
        // The user has that file open, and the new document on the screen.
        if (run.IsEmbedded() || failure.number() != word::error::kPermissionDenied) throw;
        return {};
    }
    return file;
}

/// The job's file with what has been made for it.
void CreateCommand::KeepMadeJob() {
    std::string& history = screen_.job.JobDocuments;
    const std::string former = history;
    for (const JobListLine& line : screen_.List2)
        if (history.find(line.name) == history.npos) history += line.name + ":";
    try {
        making_.jobSaved = files_.Write();
        if (!making_.jobSaved) history = former;
    } catch (...) {
        history = former;
        throw;
    }
    if (making_.jobSaved) files_.CountAsSaved();
}

void CreateCommand::ShowNotices(const std::string& letters) {
    if (firm_.settings().documentAlerts)
        TellNotice("  IMPORTANT NOTICES ABOUT THE DOCUMENTS YOU JUST CREATED", TextOfNotices(letters));
    if (!screen_.job.optConf(Letterhead)) return;
    std::vector<std::string> documents;
    for (const JobListLine& line : screen_.List2) documents.push_back(line.name);
    TellNotice("  REMINDER", LetterheadReminder(documents));
}

void CreateCommand::TellNotice(const char* title, const std::string& text) {
    if (text.empty()) return;
    making_.notices.push_back(text);
    machine_.dialogs.Tell(title, text, DialogIcon::Information);
}

void CreateCommand::ShowAsMade() {
    EndWaiting(screen_);
    ShowCreate(CreateDoes::ReMake, screen_);
    screen_.cmdEnvelopes.enabled = screen_.cmdOP236.enabled = !screen_.testMode;
    ShowInfo({{" Edit fields and Re-Make/Save OR click 'RESET' to clear & start over", InfoColour::Blue},
              {Gaps(making_.holes, making_.withoutText, making_.pictureFaults), InfoColour::Red}},
             screen_);
    machine_.LetRepaint();
}

void CreateCommand::OpenDocument(const fs::path& document) {
    try {
        machine_.shell.Open(TextOf(document));
    } catch (const MachineError& failure) {
        machine_.dialogs.Tell("  ALERT", "The document is " + TextOf(document) + "\n\n" + failure.what(),
                              DialogIcon::Warning);
    }
}

/// The word processor has gone by now. The job's own changes can be saved before the screen is empty.
void CreateCommand::EndFailedRun(const CreateError& failure) {
    screen_.waiting = false;
    machine_.dialogs.Tell(" FAILED !!!", failure.Message(), DialogIcon::Stop);
    EndWaiting(screen_);
    const auto showError = [&] {
        ShowInfo({{" ERROR:  ", InfoColour::Black}, {InOneLine(failure.what()), InfoColour::Red}}, screen_);
    };
    showError();
    if (screen_.Saves()) screen_.cmdOpen.enabled = true;
    try {
        reset_();
    } catch (const std::exception& unsaved) {
        machine_.dialogs.Tell("  ALERT", unsaved.what(), DialogIcon::Stop);
    }
    showError();
    machine_.LetRepaint();
}

void CreateCommand::LookForGaps(CreateRun& run) {
    run.Attempt([&] { making_.holes = MarkersNobodyAsksFor(TextOfDocument(run), screen_); });
    making_.pictureFaults = PictureFaults(screen_);
    for (const JobListLine& line : screen_.List2) {
        making_.entries.push_back(line.name);
        if (StaysEmpty(line.name)) making_.withoutText.push_back(line.name);
    }
}

void CreateCommand::QuitWord() {
    try {
        if (run_) run_->session().WordApp.Quit();
    } catch (const word::AutomationError&) {
    }
}

void CreateCommand::Forget() {
    run_.reset();
    lastDocument_.reset();
    made_.reset();
}

}  // namespace quillmark
