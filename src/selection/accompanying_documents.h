#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "selection/job_in_hand.h"

/// Documents that must accompany another one.
namespace quillmark {

/// Appends what must accompany the document just picked, unless it is on the list, or the user took it off an
/// already saved job. Gives the notice of each.
std::vector<std::string> AddAccompanying(std::string_view picked, std::chrono::year_month_day today,
                                         JobInHand& hand);

/// "`reason` and has been automatically added to the job list.", for where document alerts are on.
std::string AddedNotice(std::string_view reason);

}  // namespace quillmark
