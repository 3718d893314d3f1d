#pragma once

#include <memory>
#include <string>
#include <vector>

#include "session/grid/grid_editor.h"
#include "session/undo_snapshot.h"

namespace quillmark {

/// What has been done to the job in hand, act by act, back to its beginning: a new job, or the last load,
/// reset or save.
class UndoHistory {
 public:
    /// Both must outlive the object.
    UndoHistory(ScreenState& screen, GridEditor& editor) : screen_(screen), editor_(editor) {}

    /// After any command that may have changed the job: what it changed is one act. `hint` is the field that
    /// was being entered, 0 for none. True if it was an act.
    bool Note(int hint);
    /// The history ends here: what was done before cannot be taken back.
    void BeginAnew();

    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < acts_.size(); }
    /// The act's name, as a tool tip shows it: the field, document or option. Empty for none.
    std::string UndoName() const { return CanUndo() ? acts_[done_ - 1].name : std::string(); }
    std::string RedoName() const { return CanRedo() ? acts_[done_].name : std::string(); }

    /// Gives the act's name. Throws NotAllowed when there is none.
    std::string Undo();
    std::string Redo();
    /// The job as the last command left it.
    const std::shared_ptr<const Snapshot>& Present() const { return present_; }
    /// Acts since the history began that stand now.
    std::size_t Done() const { return done_; }

 private:
    struct Act {
        std::string name;
        std::shared_ptr<const Snapshot> before;
        std::shared_ptr<const Snapshot> after;
    };

    void Show(const std::shared_ptr<const Snapshot>& wanted, const Snapshot& other);

    static constexpr std::size_t kMost = 2000;  ///< acts kept

    ScreenState& screen_;
    GridEditor& editor_;
    std::shared_ptr<const Snapshot> present_;
    std::vector<Act> acts_;
    std::size_t done_ = 0;
};

}  // namespace quillmark
