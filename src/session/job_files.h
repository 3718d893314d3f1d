#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_folder.h"
#include "session/firm.h"
#include "session/grid/grid_editor.h"
#include "session/name_box.h"
#include "session/state/screen_state.h"
#include "tools/browser/file_browser.h"

namespace quillmark {

/// The first entry of the template browser: a template that is yet to be made.
inline constexpr std::string_view kNewTemplateEntry = FileBrowser::kNewTemplate;

/// Where a job's file and its pictures are kept.
struct JobSource {
    std::filesystem::path file;
    std::string name;  ///< the file's, without its extension
    std::filesystem::path ImagesFolder;
};

/// The job that a text means: the path of a .dat file, or a name in the job folder. A file that stands
/// elsewhere may have a folder "images" beside it. Throws FileError if there is no such file.
JobSource FindJob(const std::string& text, const Folders& folders);
/// The job of that name in the job folder; the file need not be there.
JobSource JobInFolder(std::string_view name, const Folders& folders);

/// The job's file: load, save, rename, name as, spawn. It changes the job, the name box and what shows that a
/// job is open or saved. What the disk refuses reaches the caller as FileError, RecordError and JobFileError,
/// with the job on the screen as it was.
class JobFiles {
 public:
    /// The arguments must outlive the object.
    JobFiles(ScreenState& screen, GridEditor& editor, NameCommands& nameBox, Firm& firm, Machine& machine)
        : screen_(screen), editor_(editor), nameBox_(nameBox), firm_(firm), machine_(machine) {}

    /// A job or, from the template browser, a template. A file that has gone is told of.
    void Load(std::string_view name, bool asTemplate);
    void LoadFrom(const JobSource& source, bool asTemplate);
    /// A new job from a template. A file that has gone is told of, and nothing changes.
    void Spawn(std::string_view entry);
    void Save();
    void NameJob();  ///< `cmdNameAs`

    // What CREATE does with the file.
    /// Asks before another file is replaced. False if the user would rather not.
    bool MayOverwrite();
    /// Writes the file if what stands there is still what MayOverwrite saw, and asks again otherwise. False
    /// if the user would rather not.
    bool Write();
    /// After a save there is nothing more to save, and the name belongs to a file.
    void CountAsSaved();
    /// Adds the job's addresses to the books. Gives what kept any of them out, a line each: the books are a
    /// convenience, and nothing about them may stand in the way of the job's own file.
    std::string FeedBooks() const;
    void TellOfBooks(const std::string& notFed);

    /// The job was taken over from a session that did not end cleanly; `since` was written at its last
    /// change.
    void Resume(const std::filesystem::path& since);
    void Forget() {
        known_ = {};
        knownName_.clear();
        doubts_.clear();
    }

    /// What a value of the job's file could not be taken for, since it was loaded; the fields are unfilled.
    const std::vector<std::string>& Doubts() const { return doubts_; }
    /// What the user was told about the file itself.
    const std::vector<std::string>& Notices() const { return notices_; }
    void NoteDoubt(std::string doubt) { doubts_.push_back(std::move(doubt)); }

 private:
    bool IsOwn(const JobOnDisk& present) const;
    JobOnDisk Present() const;
    bool ConfirmOverwrite(bool tellsWho);
    std::optional<std::string> AskForName(bool rename);
    bool Rename(const std::string& name);
    void FillList2FromHistory();
    void ShowAsOpened();
    void TellOfFile();

    ScreenState& screen_;
    GridEditor& editor_;
    NameCommands& nameBox_;
    Firm& firm_;
    Machine& machine_;
    JobOnDisk known_;        ///< the job's file and pictures as this session last read or wrote them
    std::string knownName_;  ///< the name that they had; empty for a file that stands elsewhere
    JobOnDisk allowed_;      ///< what the next writing may replace
    std::vector<std::string> doubts_;
    std::vector<std::string> notices_;
};

}  // namespace quillmark
