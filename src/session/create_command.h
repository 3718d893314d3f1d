#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "production/run/create.h"
#include "session/finish.h"
#include "session/firm.h"
#include "session/job_files.h"
#include "session/machine.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// Where a run puts what it makes.
struct CreateTarget {
    std::filesystem::path to = {};  ///< a .docx path or an existing folder; empty for the person's documents
    std::filesystem::path trace = {};  ///< of every word-processor operation; empty for none
    bool replaces = false;             ///< a document that is there already; otherwise one of another name
    bool keepsJob = true;              ///< the job's file is written and the address books are fed
};

/// The question of a run whose job is not complete.
inline constexpr std::string_view kProceedAnyway =
    "You have not completed all the required fields.\nProceed anyway ???";

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

    /// For the runs from now on.
    void SetTarget(CreateTarget target) { target_ = std::move(target); }
    /// The document that the last run made; nothing when it left early, the empty path while the word
    /// processor alone has it.
    const std::optional<std::filesystem::path>& LastDocument() const { return lastDocument_; }

    /// What the last run that made documents made; nothing before one and after RESET.
    const std::optional<Finish>& Made() const { return made_; }
    /// How many runs have left early because required fields are open.
    std::size_t LeftForOpenFields() const { return leftForOpenFields_; }

    /// Ends the word processor of the last run. The user's own closing of it is no fault here.
    void QuitWord();
    void Forget();

 private:
    void EndFormerRun();
    void LookForGaps(CreateRun& run);
    bool MayCreate();
    CreateOrder OrderOfRun(const std::shared_ptr<std::string>& trace);
    void MakeDocuments();
    std::filesystem::path SaveDocument(CreateRun& run);
    void KeepMadeJob();
    void ShowNotices(const std::string& letters);
    void TellNotice(const char* title, const std::string& text);
    void ShowAsMade();
    void OpenDocument(const std::filesystem::path& document);
    void EndFailedRun(const CreateError& failure);

    ScreenState& screen_;
    JobFiles& files_;
    Firm& firm_;
    Machine& machine_;
    std::function<void()> reset_;
    std::unique_ptr<CreateRun> run_;
    CreateTarget target_;
    std::optional<std::filesystem::path> lastDocument_;
    std::optional<Finish> made_;
    Finish making_;
    std::size_t runs_ = 0;
    std::size_t leftForOpenFields_ = 0;
};

}  // namespace quillmark
