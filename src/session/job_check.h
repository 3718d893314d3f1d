#pragma once

#include <string>
#include <vector>

#include "selection/job_in_hand.h"

namespace quillmark {

/// Values of the job's relevant fields that cannot be what they stand for: an amount that is no number, a
/// place that is no town; and the faults of pictures. One sentence each, in the order of the fields.
std::vector<std::string> DoubtfulValues(const JobInHand& hand);

/// Pictures of the job's relevant fields whose file is missing or cannot be read. One sentence each.
std::vector<std::string> PictureFaults(const JobInHand& hand);

/// Entries of the job list that name no document at all.
std::vector<std::string> UnknownDocuments(const JobInHand& hand);

}  // namespace quillmark
