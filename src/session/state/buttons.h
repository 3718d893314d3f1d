#pragma once

#include <span>
#include <string>
#include <string_view>

#include "session/state/screen_state.h"

/// The captions and tool tips of the buttons: they follow from what a button does, and nobody else sets them.
namespace quillmark {

void ShowOpen(OpenDoes does, bool enabled, ScreenState& screen);
void ShowCreate(CreateDoes does, ScreenState& screen);
void ShowNameAs(NameAsDoes does, ScreenState& screen);
/// With the buyer's attorney's address at hand, EXIT writes to it.
void ShowExit(ScreenState& screen);

/// The other ways in: `cmdTemplate`, `cmdPackages`, `cmdCustom`.
void EnableOtherWaysIn(bool enabled, ScreenState& screen);

/// All buttons as they stand at the start and after RESET.
void ResetButtons(bool offersClients, ScreenState& screen);

/// A button under its control name, such as "cmdCreate".
struct NamedButton {
    std::string_view name;
    Button ScreenState::*button;
};
std::span<const NamedButton> Buttons();
/// Null if there is no button of that name.
const Button* FindButton(std::string_view name, const ScreenState& screen);

/// Whether the button belongs to the bar on top, where the document choice is.
bool IsInTopBar(std::string_view name);

/// A field has another value: in a job that can be saved, SAVE appears.
void CountFieldChange(ScreenState& screen);
/// The same for an option, in a job that has no file yet or is being edited.
void CountOptionChange(ScreenState& screen);

}  // namespace quillmark
