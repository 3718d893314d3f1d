#include "session/job_files.h"

#include <fmt/format.h>

#include <utility>

#include "core/fields.h"
#include "core/job_file.h"
#include "core/job_saves.h"
#include "core/text_conversions.h"
#include "entry/address_book_fields.h"
#include "entry/field_listing.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "platform/shared_lock.h"
#include "selection/document_catalogue.h"
#include "session/grid/refresh.h"
#include "session/state/buttons.h"
#include "session/state/info_bar.h"
#include "session/state/ready.h"
#include "session/state/stages.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kOverwritten = " The existing file was overwritten";

bool IsDataFile(const fs::path& path) {
    return Lowered(TextOf(path.extension())) == ".dat";
}

bool IsThere(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

/// A job file that stands elsewhere may have its pictures with it.
JobSource SourceOf(const fs::path& file, const Folders& folders) {
    const fs::path beside = fs::absolute(file).parent_path() / "images";
    return {file, TextOf(file.stem()), IsThere(beside) ? beside : folders.ImagesFolder};
}

}  // namespace

JobSource FindJob(const std::string& text, const Folders& folders) {
    const fs::path path = PathOf(text);
    const bool isPath = path.has_parent_path() || IsDataFile(path);
    if (isPath && IsThere(path)) return SourceOf(path, folders);
    const fs::path inFolder = JobFilePath(folders, IsDataFile(path) ? TextOf(path.stem()) : text);
    if (!path.has_parent_path() && IsThere(inFolder)) return SourceOf(inFolder, folders);
    if (isPath) throw FileError(path, FileError::Kind::NotFound, "there is no such job file");
    throw FileError(inFolder, FileError::Kind::NotFound, "there is no such job");
}

JobSource JobInFolder(std::string_view name, const Folders& folders) {
    return {JobFilePath(folders, name), std::string(name), folders.ImagesFolder};
}

/// What may be replaced without a question: the file that this session last read or wrote.
bool JobFiles::IsOwn(const JobOnDisk& present) const {
    return !present.bytes || (knownName_ == screen_.txtJobName.text && known_ == present);
}

JobOnDisk JobFiles::Present() const {
    return RetriedWhileInUse(machine_.waitForFiles,
                             [&] { return LookAtJob(firm_.folders(), screen_.txtJobName.text); });
}

bool JobFiles::MayOverwrite() {
    allowed_ = Present();
    if (IsOwn(allowed_)) return true;
    const bool changedByOthers = screen_.txtJobName.locked;
    return ConfirmOverwrite(changedByOthers);
}

/// A file that is older than that session's last change is the one that it had read.
void JobFiles::Resume(const fs::path& since) {
    Forget();
    if (!screen_.txtJobName.locked) return;
    std::error_code error;
    const auto changed = fs::last_write_time(JobFilePath(firm_.folders(), screen_.txtJobName.text), error);
    if (error || changed > fs::last_write_time(since, error) || error) return;
    known_ = Present();
    knownName_ = screen_.txtJobName.text;
}

/// `tellsWho`: the file is not as the person last saw it.
bool JobFiles::ConfirmOverwrite(bool tellsWho) {
    NameBox& box = screen_.txtJobName;
    const InfoColour name = screen_.creating ? InfoColour::Red : InfoColour::Black;
    const InfoColour rest = screen_.creating ? InfoColour::Black : InfoColour::Red;
    ShowInfo({{" WARNING:  A file by the name  ", rest},
              {box.text, name},
              {"  already exists in the database!", rest}},
             screen_);
    std::string text = "About to overwrite an existing file, data will be lost.";
    if (tellsWho) text += "\n\nIt was " + LastSaveOf(firm_.folders(), box.text) + ".";
    const auto answer = machine_.dialogs.Show({"  ALERT",
                                               text,
                                               {DialogButton::OK, DialogButton::Cancel},
                                               DialogButton::Cancel,
                                               DialogIcon::Warning});
    if (answer == DialogButton::OK) {
        box.locked = true;
        screen_.picInfo = kOverwritten;
        return true;
    }
    box.enabled = true;
    nameBox_.Focus();
    screen_.picInfo = " Choose a different name for this file or click RESET to start over";
    screen_.cmdOpen.enabled = screen_.Saves();
    return false;
}

std::string JobFiles::FeedBooks() const {
    try {
        return fmt::format("{}", fmt::join(SaveToDatabases(screen_.job, firm_.Books()).leftOut, "\n"));
    } catch (const std::exception& failure) {
        return failure.what();
    }
}

void JobFiles::TellOfBooks(const std::string& notFed) {
    if (notFed.empty()) return;
    machine_.dialogs.Tell("  ALERT",
                          "Addresses of this job were not added to the address databases.\n\n" + notFed,
                          DialogIcon::Warning);
}

void JobFiles::Save() {
    NameBox& box = screen_.txtJobName;
    Require(box.IsSaveable(), "the job has no name to save it under");
    if (screen_.mode == ScreenMode::Presets && !IsTemplateName(box.text)) box.text = TemplateName(box.text);
    screen_.job.name = box.text;
    if (!MayOverwrite()) return;
    const std::string notFed = FeedBooks();
    if (!Write()) return;
    CountAsSaved();
    if (screen_.picInfo != kOverwritten) screen_.picInfo = " Saved:  " + box.text;
    TellOfBooks(notFed);
}

bool JobFiles::Write() {
    Job& job = screen_.job;
    const std::string& attorney = job.D(field::SellerAtty);
    const std::string& juris = job.D(field::Part(1, field::SellerAtty));
    if (attorney.find('/') == std::string::npos && !juris.empty())
        job.SetValue(field::SellerAtty, attorney + "/" + juris);
    const auto save = [&] { return SaveJobFiles(firm_.folders(), job, {&allowed_, machine_.waitForFiles}); };
    while (!RetriedWhileInUse(machine_.waitForFiles, save)) {
        allowed_ = Present();  // another has saved it since the person was asked
        if (!IsOwn(allowed_) && !ConfirmOverwrite(true)) return false;
    }
    known_ = allowed_;
    knownName_ = job.name;
    return true;
}

void JobFiles::CountAsSaved() {
    screen_.txtJobName.locked = true;
    screen_.cmdOpen.enabled = false;
    screen_.cmdPrintFList.visible = screen_.mode == ScreenMode::Job && !screen_.List2.empty();
    ShowNameAs(NameAsDoes::Rename, screen_);
    if (screen_.mode != ScreenMode::Edit) return;
    screen_.cmdNameAs.enabled = true;
    if (screen_.currentRow < 0 || screen_.currentRow >= static_cast<int>(screen_.grid.size())) return;
    SetLocked(screen_.grid[static_cast<std::size_t>(screen_.currentRow)], false, screen_);
}

void JobFiles::Load(std::string_view name, bool asTemplate) {
    if (name == kNewTemplateEntry) {
        screen_.txtJobName.text.clear();
        screen_.browserOpen = false;
        Refresh(screen_, firm_.Context(), editor_);
        return nameBox_.Focus();
    }
    const JobSource source = JobInFolder(name, firm_.folders());
    if (!fs::exists(source.file)) {
        machine_.dialogs.Tell("", "File No Longer Exists", DialogIcon::Warning);
        return;
    }
    LoadFrom(source, asTemplate);
}

void JobFiles::LoadFrom(const JobSource& source, bool asTemplate) {
    Job& job = screen_.job;
    const std::string former = std::exchange(job.name, source.name);
    JobFileRead read;
    doubts_.clear();
    try {
        Folders folders = firm_.folders();
        folders.ImagesFolder = source.ImagesFolder;
        read = RetriedWhileInUse(machine_.waitForFiles, [&] {
            return ReadJobFile(folders, source.file, job, asTemplate, machine_.waitForFiles);
        });
    } catch (...) {
        job.name = former;
        throw;
    }
    known_ = std::move(read.onDisk);
    knownName_ = source.file == JobFilePath(firm_.folders(), source.name) ? source.name : std::string();
    notices_ = std::move(read.notices);
    NameBox& box = screen_.txtJobName;
    box.locked = true;
    screen_.browserOpen = false;
    screen_.fromTemplate = IsTemplateName(source.name);
    if (asTemplate) {
        box.text = source.name;
        Refresh(screen_, firm_.Context(), editor_);
        screen_.currentRow = screen_.grid.empty() ? -1 : 0;
        return TellOfFile();
    }
    FillList2FromHistory();
    if (box.text.empty()) {
        box.text = source.name;
        ShowAsOpened();
    }
    Refresh(screen_, firm_.Context(), editor_);
    screen_.cmdCreate.enabled = !screen_.List2.empty();
    nameBox_.ShowGuidance();
    TellOfFile();
}

void JobFiles::TellOfFile() {
    for (const std::string& notice : notices_)
        machine_.dialogs.Tell("  ALERT", notice, DialogIcon::Information);
}

void JobFiles::ShowAsOpened() {
    Enter(Stage::Opened, screen_);
    screen_.cmdEnvelopes.enabled = screen_.cmdOP236.enabled = true;
    ShowNameAs(NameAsDoes::Rename, screen_);
    screen_.cmdNameAs.enabled = screen_.cmdNameAs.visible = true;
}

/// The documents once made for the job are its job list again.
void JobFiles::FillList2FromHistory() {
    screen_.List2.clear();
    for (std::string& name : DocumentsOf(screen_.job.JobDocuments))
        screen_.List2.push_back({std::move(name), false});
    screen_.List2Enabled = !screen_.List2.empty();
}

void JobFiles::Spawn(std::string_view entry) {
    constexpr std::size_t kBegin = 2;  // "{ "
    constexpr std::size_t kEnd = 11;   // "_template }"
    Require(IsTemplateName(entry) && entry.size() > kBegin + kEnd, "no template is selected");
    const JobSource source = JobInFolder(entry, firm_.folders());
    if (!fs::exists(source.file)) {
        machine_.dialogs.Tell("", "File No Longer Exists", DialogIcon::Warning);
        return;
    }
    screen_.List1Enabled = true;
    Enter(Stage::Spawned, screen_);
    screen_.templateBeingSet = false;
    NameBox& box = screen_.txtJobName;
    box.text = Lowered(entry.substr(kBegin, entry.size() - kBegin - kEnd)) + " - ";
    LoadFrom(source, false);
    screen_.job.name = box.text;
    screen_.job.JobDocuments.clear();
    screen_.List2.clear();
    box.locked = false;
    nameBox_.Changed();
    nameBox_.Focus();
}

std::optional<std::string> JobFiles::AskForName(bool rename) {
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

void JobFiles::NameJob() {
    NameBox& box = screen_.txtJobName;
    if (screen_.nameAsDoes == NameAsDoes::Rename) {
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

bool JobFiles::Rename(const std::string& name) {
    NameBox& box = screen_.txtJobName;
    const auto rename = [&] {
        return RenameJobFiles(firm_.folders(), box.text, name, machine_.waitForFiles);
    };
    if (!RetriedWhileInUse(machine_.waitForFiles, rename)) {
        machine_.dialogs.Tell("", "A file with this name already exists,\nplease try again.",
                              DialogIcon::Warning);
        return false;
    }
    if (knownName_ == box.text) knownName_ = name;
    box.text = name;
    screen_.job.name = name;
    return true;
}

}  // namespace quillmark
