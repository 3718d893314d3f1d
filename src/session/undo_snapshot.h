#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "session/state/screen_state.h"

namespace quillmark {

/// All of a job that a person can change, and the screen around it, at one moment. A snapshot shares with the
/// one before it whatever is the same in both, so that a long history is small.
class Snapshot {
 public:
    /// `before` may be null. The screen is as it was when this returns.
    static std::shared_ptr<const Snapshot> Of(ScreenState& screen, const Snapshot* before);

    /// Puts job and screen back, without running any rule. The name in the name box stays unless `other`, the
    /// snapshot at the other end of the act, has another one; without `other` it is put back too. Lists of
    /// the firm and what is going on stay.
    void PutBack(ScreenState& screen, const Snapshot* other) const;

    /// Whether a person would call it the same job.
    bool HasSameJob(const Snapshot& other) const;
    /// What was done between the two, as a tool tip says it: the field, the document, the option. `hint` is
    /// the field that was being entered, 0 for none.
    std::string ActSince(const Snapshot& before, int hint) const;

    const std::string& JobName() const { return controls_.txtJobName.text; }

    // For the journal: the snapshot as named texts, without those that are the same in `before`, which may be
    // null.
    using Cells = std::map<std::string, std::string>;
    Cells CellsSince(const Snapshot* before) const;
    /// Throws std::runtime_error for texts that are no snapshot.
    static std::shared_ptr<const Snapshot> FromCells(const Cells& cells);

 private:
    struct Field {
        FieldHolder holder;
        std::array<std::string, 5> values;  ///< `D(n)` and its derived values
    };
    static constexpr std::size_t kBlock = 4;  ///< what is copied when one of them changes
    using Fields = std::array<Field, kBlock>;
    using Rows = std::vector<GridRow>;  ///< at most kBlock
    using Pictures = std::array<std::string, kFields + 1>;
    using UserFields = std::vector<std::pair<std::string, std::string>>;
    using JobList = std::vector<JobListLine>;
    static constexpr std::size_t kFieldBlocks = (kFields + kBlock) / kBlock;

    static bool IsSame(const Field& field, const Job& job, int n);
    static Field Read(const Job& job, int n);
    std::shared_ptr<const Fields> FieldsOf(const Job& job, std::size_t block, const Snapshot* before) const;
    std::shared_ptr<const Rows> RowsOf(const ScreenState& screen, std::size_t begin,
                                       const Snapshot* before) const;
    const Field& At(int n) const;

    std::array<std::shared_ptr<const Fields>, kFieldBlocks> fields_;
    std::vector<std::shared_ptr<const Rows>> rows_;
    std::shared_ptr<const Pictures> pictures_;
    std::shared_ptr<const UserFields> userFields_;
    std::shared_ptr<const JobList> list_;
    std::array<bool, kOptions + 1> options_ = {};
    JobAround around_;         ///< without the job list
    ScreenControls controls_;  ///< without the firm's list of documents
    std::string history_;      ///< `JobDocuments`
};

}  // namespace quillmark
