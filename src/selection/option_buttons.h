#pragma once

#include <string_view>

#include "selection/selection_state.h"

/// The fifteen option buttons: captions, groups, and how one excludes another.
namespace quillmark {

/// "1 Seller" for 1; empty for a number that is no option.
std::string_view OptionCaption(int n);
bool IsOption(int n);

/// Sets the option and clears the others of its group.
void TurnOn(int n, Job& job);
/// Clears every option of the group that n belongs to.
void TurnGroupOff(int n, Job& job);
/// Whether none of the group need be set: payoffs, property type and seller capacity.
bool GroupMayBeOff(int n);

/// Gives all buttons their tool tips.
void ShowOptionTooltips(SelectionState& screen);
/// Those of "P.O.A." and "Estate / Trust" change with the number of sellers.
void ShowCapacityTooltips(SelectionState& screen);

/// Hides, in an opened job or a template, the buttons of what the present options exclude, and brings the
/// others of them back.
void ApplyInterlocks(SelectionState& screen);

/// Shows a button, and in an opened job or a template, where no document decides on it, enables it.
void BringBack(int n, SelectionState& screen);

}  // namespace quillmark
