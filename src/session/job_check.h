#pragma once

#include <string>
#include <vector>

#include "selection/job_in_hand.h"

namespace quillmark {

/// Values of the job's relevant fields that cannot be what they stand for: an amount that is no number, a
/// place that is no town, a picture whose file is missing. One sentence each, in the order of the fields.
std::vector<std::string> DoubtfulValues(const JobInHand& hand);

/// Entries of the job list that name no document at all.
std::vector<std::string> UnknownDocuments(const JobInHand& hand);

}  // namespace quillmark
