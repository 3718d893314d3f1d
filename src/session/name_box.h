#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "platform/dialogs.h"
#include "session/grid/grid_editor.h"
#include "session/machine.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// What the name box asks of the screen around it.
struct NameSurroundings {
    std::function<void()> reset;         ///< RESET
    std::function<void()> showSettings;  ///< the firm's defaults are to be set
    std::function<bool()> isClosed;      ///< another choice stands before any name
    std::function<void()> openBackup;    ///< the backup tool
};

/// The name box. It changes the box, the ways in that a name closes, and the guidance.
class NameCommands {
 public:
    /// The arguments must outlive the object.
    NameCommands(ScreenState& screen, GridEditor& editor, const Machine& machine,
                 const std::filesystem::path& programFolder, NameSurroundings around);

    void Focus();
    void Type(std::string_view text);  ///< key by key, into the empty or selected box
    void Edit(std::string_view text);  ///< the box's present text, after any edit in it
    void Enter();                      ///< the Enter key

    /// The box's text is another now: special names act, other ways in open and close.
    void Changed();
    void ShowGuidance();

 private:
    void RequireOpen() const;
    void TellOfLength();
    void OfferUpgrade();

    ScreenState& screen_;
    GridEditor& editor_;
    const Machine& machine_;
    const std::filesystem::path& programFolder_;
    NameSurroundings around_;
};

}  // namespace quillmark
