#pragma once

#include <string_view>

#include "platform/machine.h"
#include "selection/job_in_hand.h"

namespace quillmark {

/// The paper form on which a job's data are collected by hand: its documents, its name, and a line for every
/// relevant field and user-defined row, with its value or a rule to write on, and an asterisk where it is
/// required. Without a document on the job list there is nothing to collect below the name. `fileName` is
/// empty for a job that is not kept under a name.
PrintJob FieldList(const JobInHand& hand, std::string_view fileName);

}  // namespace quillmark
