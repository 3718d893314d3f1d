#pragma once

#include <optional>
#include <string_view>

#include "selection/office.h"
#include "selection/selection_state.h"

/// A capacity picked for the fiduciary that says too little by itself: an executor needs a decedent.
namespace quillmark {

struct Companion {
    int n;
    std::string_view name;  ///< as the question has it, such as "DECEDENT"
};

/// The field that goes with a pick of [fiduciary type], if the job needs that field.
std::optional<Companion> CompanionOf(std::string_view fiduciaryType, const Job& job);

/// Asks for the companion of the pick and stores it. False if the pick may not be completed: there was no
/// answer. The empty answer also makes the companion unfilled; a cancelled box leaves it as it was, and so
/// does one with a character that data files cannot hold, which a box tells.
bool AskForCompanion(std::string_view fiduciaryType, SelectionState& screen, const Office& office);

}  // namespace quillmark
