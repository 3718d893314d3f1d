#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "production/run/create.h"
#include "session/firm.h"
#include "session/job_files.h"
#include "session/machine.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// CREATE and Re-Make: the checks before a run, the run, the file of the document, the notices. It changes
/// what shows that documents are being made or have been, and by way of JobFiles the job's file.
class CreateCommand {
 public:
    /// The arguments must outlive the object. `reset`: RESET, after a run that failed.
    CreateCommand(ScreenState& screen, JobFiles& files, Firm& firm, Machine& machine,
                  std::function<void()> reset)
        : screen_(screen), files_(files), firm_(firm), machine_(machine), reset_(std::move(reset)) {}

    /// Throws CreateError for a run that fails; the user has been told by then.
    void Run();

    /// Where the next run puts its document (a .docx path or an existing folder) and its trace.
    void SetTarget(std::filesystem::path to, std::filesystem::path trace);
    /// The document that the last run made; nothing when it left early, the empty path while the word
    /// processor alone has it.
    const std::optional<std::filesystem::path>& LastDocument() const { return lastDocument_; }

    /// Ends the word processor of the last run. The user's own closing of it is no fault here.
    void QuitWord();
    void Forget();

 private:
    void EndFormerRun();
    bool MayCreate();
    CreateOrder OrderOfRun(const std::shared_ptr<std::string>& trace);
    void MakeDocuments();
    std::filesystem::path SaveDocument(CreateRun& run);
    void KeepMadeJob();
    void ShowNotices(const std::string& letters);
    void ShowAsMade();
    void OpenDocument(const std::filesystem::path& document);
    void EndFailedRun(const CreateError& failure);

    ScreenState& screen_;
    JobFiles& files_;
    Firm& firm_;
    Machine& machine_;
    std::function<void()> reset_;
    std::unique_ptr<CreateRun> run_;
    std::filesystem::path to_;
    std::filesystem::path trace_;
    std::optional<std::filesystem::path> lastDocument_;
};

}  // namespace quillmark
