#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "selection/job_in_hand.h"
#include "tools/controls.h"

/// The main screen as a plain value: every control under its own name, around the job in hand. A copy of it
/// is all that a person sees and may change, but for the editor that is open over the grid.
namespace quillmark {

/// What the first button of the top bar does; its caption and tool tip follow.
enum class OpenDoes {
    OpenJob,
    EditJob,
    SaveChanges,   ///< made in edit mode
    SaveData,      ///< after a change of option
    SaveFields,    ///< after a change of field in a job that is not being edited
    SaveSettings,  ///< the firm's defaults, or a template
};
enum class CreateDoes { Create, CreateAndSave, ReMake };
enum class NameAsDoes { Rename, NameAs };
enum class ExitDoes { End, Mail };

/// One of the fifteen option buttons; whether it is set is `Job::optConf`.
struct OptionButton {
    bool enabled = false;
    bool visible = true;
    std::string tooltip;
};

/// The name box. A job is saveable when it has a name that does not end in " - " and no unsaved mark.
struct NameBox {
    std::string text;
    bool locked = false;  ///< the job came from a file, or has been saved
    bool enabled = true;
    bool noSave = false;  ///< shows "<< NO SAVE >>", red and centred

    /// Typed and neither locked, empty nor incomplete.
    bool HoldsTypedName() const { return IsSaveable() && !locked; }
    bool IsSaveable() const { return !noSave && !text.empty() && !text.ends_with(" - "); }
};

/// Where the frame of options 9, 10 and 13 stands, so that option 13 can be reached when documents need it.
enum class PropertyTypeFrame {
    Start,        ///< as after a reset
    OverPayoffs,  ///< centred over the payoff frame, option 13 to the right of option 10
    Wide,
};

/// One of the six labels that lead to a group of the grid.
struct JumpLabel {
    bool enabled = false;
    bool current = false;   ///< drawn blue on grey
    bool complete = false;  ///< nothing left to fill in its group
};

enum class InfoColour { Black, Red, Blue };

/// The colours of the guidance bar's text; they hold only while the bar shows `text`.
struct InfoColours {
    struct Span {
        std::size_t begin = 0;  ///< bytes
        std::size_t length = 0;
        InfoColour colour = InfoColour::Black;
    };
    std::string text;
    std::vector<Span> spans;
};

/// The progress bar of CREATE.
struct ProgressBar {
    bool visible = false;
    double value = 0;
    double maximum = 1;
    std::size_t document = 0;  ///< in hand, from 1; past the last while the job is finished
    std::size_t documents = 0;
};

/// The controls around the job in hand.
struct ScreenControls {
    NameBox txtJobName;
    bool FieldEntryStarted = false;
    bool templateBeingSet = false;  ///< `cmdTemplate` has the colour 0xC0FFFF
    bool ended = false;             ///< the session is over
    bool testMode = false;          ///< custom forms are tried out: nothing of the job is kept
    bool creating = false;          ///< a run of CREATE is under way
    bool browserOpen = false;       ///< the list of jobs or templates (tools/browser) stands before it

    std::array<OptionButton, kOptions + 1> options;  ///< by number, entry 0 unused
    PropertyTypeFrame propertyTypeFrame = PropertyTypeFrame::Start;

    std::vector<std::string> List1;
    bool List1Enabled = true;
    bool List2Enabled = false;

    int currentRow = -1;   ///< of the grid
    int currentGroup = 0;  ///< whose jump label is marked; 0 for none

    // Captions and tool tips are set by session/state/buttons.h and are never asked what a button does.
    Button cmdOpen, cmdCreate, cmdReset, cmdExit, cmdTemplate, cmdPackages, cmdCustom, cmdNameAs,
        cmdEnvelopes, cmdOP236, cmdPrintFList, cmdSelect;
    OpenDoes openDoes = OpenDoes::OpenJob;
    CreateDoes createDoes = CreateDoes::Create;
    NameAsDoes nameAsDoes = NameAsDoes::Rename;
    ExitDoes exitDoes = ExitDoes::End;

    std::string picInfo;  ///< the guidance bar's text
    InfoColours picInfoColours;

    bool waiting = false;  ///< the wait form shows, the pointer is the busy one, the grid takes no click
    ProgressBar progress;
    std::string message;  ///< the message line under the progress bar

    OptionButton& ButtonOf(int n) { return options.at(static_cast<std::size_t>(n)); }
    const OptionButton& ButtonOf(int n) const { return options.at(static_cast<std::size_t>(n)); }

    /// The first button saves; enabled, it has something to save.
    bool Saves() const { return openDoes != OpenDoes::OpenJob && openDoes != OpenDoes::EditJob; }
    bool HasUnsavedChanges() const { return Saves() && cmdOpen.enabled; }
};

struct ScreenState : JobInHand, ScreenControls {
    /// The label of group g, 1 to 6.
    JumpLabel lblJump(std::size_t g) const {
        const GridGroup& group = groups.at(g);
        return {group.HasRows(), static_cast<int>(g) == currentGroup, group.complete};
    }
    const char* List2Tooltip() const {
        return List2.empty() ? "" : " Click to select doc(s) for legal size (8.5 x 14) ";
    }
};

}  // namespace quillmark
