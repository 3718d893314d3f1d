#include "session/undo.h"

#include <algorithm>

namespace quillmark {

bool UndoHistory::Note(int hint) {
    auto now = Snapshot::Of(screen_, present_.get());
    const bool isAct = present_ && !now->HasSameJob(*present_);
    if (isAct) {
        acts_.resize(done_);
        acts_.push_back({now->ActSince(*present_, hint), present_, now});
        if (acts_.size() > kMost) acts_.erase(acts_.begin());
        done_ = acts_.size();
    }
    present_ = std::move(now);
    return isAct;
}

void UndoHistory::BeginAnew() {
    acts_.clear();
    done_ = 0;
    present_ = Snapshot::Of(screen_, present_.get());
}

std::string UndoHistory::Undo() {
    Require(CanUndo(), "there is nothing to undo");
    const Act& act = acts_[--done_];
    Show(act.before, *act.after);
    return act.name;
}

std::string UndoHistory::Redo() {
    Require(CanRedo(), "there is nothing to redo");
    const Act& act = acts_[done_++];
    Show(act.after, *act.before);
    return act.name;
}

/// No editor is open over the rows that come, and the grid stays where it was.
void UndoHistory::Show(const std::shared_ptr<const Snapshot>& wanted, const Snapshot& other) {
    const int top = editor_.State().topRow;
    editor_.Forget();
    wanted->PutBack(screen_, &other);
    const std::string guidance = screen_.picInfo;
    const InfoColours colours = screen_.picInfoColours;
    if (!screen_.grid.empty()) {
        editor_.ScrollTo(std::clamp(top, 0, static_cast<int>(screen_.grid.size()) - 1));
        screen_.picInfo = guidance;
        screen_.picInfoColours = colours;
    }
    present_ = Snapshot::Of(screen_, present_.get());
}

}  // namespace quillmark
