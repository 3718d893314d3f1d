#pragma once

#include <string_view>

#include "selection/office.h"
#include "selection/selection_state.h"

/// Documents that must accompany another one.
namespace quillmark {

/// Adds what must accompany the document just picked, unless it is on the list, or the user took it off an
/// already saved job; tells the user where document alerts are on.
void AddAccompanying(std::string_view picked, SelectionState& screen, const Office& office);

/// "A ... has been automatically added to the job list.", where document alerts are on.
void AlertAdded(std::string_view reason, const Office& office);

}  // namespace quillmark
