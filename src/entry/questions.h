#pragma once

#include "selection/field_listing.h"
#include "selection/office.h"
#include "selection/selection_state.h"

/// What the closing has to know about an amount beside its size, asked when it is first entered: whether it
/// has been paid, who is credited, whether a payoff holds the charge for recording the release, whether a
/// loan is an equity line.
namespace quillmark {

/// No second edit can begin while a question stands: `EditRow` is -1 meanwhile. Null for none.
class StandingQuestion {
 public:
    explicit StandingQuestion(int* EditRow);
    ~StandingQuestion();
    StandingQuestion(const StandingQuestion&) = delete;
    StandingQuestion& operator=(const StandingQuestion&) = delete;

 private:
    int* EditRow_;
    int row_;
};

/// How a value comes to its field.
struct EntryPoint {
    int column = 1;          ///< the grid's current column; a value put in by way of a note cell asks nothing
    bool force = false;      ///< asks also where the field has a value
    int* EditRow = nullptr;  ///< the row under the editor, -1 while a question stands; null for none
};

/// The dialogue of `UpdateListing`: asks the field's questions when a first amount without a tag comes, and
/// gives the value with the tag that answers or, asked or not, the row's lit note cells give it. The field
/// holds the value without the tag while it asks. `screen` and what `office` refers to must outlive it.
FieldDialogue FieldQuestions(SelectionState& screen, const Office& office, EntryPoint from = {});

}  // namespace quillmark
