#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "selection/job_in_hand.h"

namespace quillmark {

/// The markers of fields and derived values that stand in a finished document's text, in whatever case, while
/// no row of the grid asks for their field: nobody was told that they are open. Each once, as the registry
/// has them, in the order of the text. Brackets that a form prints are none.
std::vector<std::string> MarkersNobodyAsksFor(std::string_view documentText, const JobInHand& hand);

}  // namespace quillmark
