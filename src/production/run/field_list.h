#pragma once

#include "platform/machine.h"
#include "selection/selection_state.h"

namespace quillmark {

/// The paper form on which a job's data are collected by hand: its documents, its name, and a line for every
/// relevant field and user-defined row, with its value or a rule to write on, and an asterisk where it is
/// required. Without a document on the job list there is nothing to collect below the name.
PrintJob FieldList(const SelectionState& screen);

}  // namespace quillmark
