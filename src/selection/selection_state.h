#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "core/job.h"
#include "core/settings.h"
#include "platform/clock.h"
#include "platform/dialogs.h"

/// The part of the main screen's state that the rules of document choice and field listing read and change:
/// every control as a plain value under its own name. The screen shows it; rules never see a window.
namespace quillmark {

/// What the main screen is doing: a new or opened job, defaults or a template being set, a job being edited.
namespace screen_mode {
inline constexpr std::string_view kJob = "";
inline constexpr std::string_view kPresets = "presets mode";
inline constexpr std::string_view kEdit = "edit mode";
}  // namespace screen_mode

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
    bool HoldsTypedName() const { return !noSave && !locked && !text.empty() && !text.ends_with(" - "); }
    bool IsSaveable() const { return !noSave && !text.empty() && !text.ends_with(" - "); }
};

/// A line of the job list; a selected line is made on legal-size paper.
struct JobListLine {
    std::string name;
    bool selected = false;
};

/// Where the frame of options 9, 10 and 13 stands, so that option 13 can be reached when documents need it.
enum class PropertyTypeFrame {
    Start,        ///< as after a reset
    OverPayoffs,  ///< centred over the payoff frame, option 13 to the right of option 10
    Wide,
};

enum class RowKind { Field, User, Heading };

/// A row of the field grid `grdField`.
struct GridRow {
    RowKind kind = RowKind::Field;
    int n = 0;                                 ///< field number; 0 for user-defined rows and headings
    std::string label;                         ///< column 0
    std::string value;                         ///< column 1, empty while unfilled
    std::array<std::string, 2> notes;          ///< columns 2 and 3
    std::array<bool, 2> lit = {false, false};  ///< whether a note cell is yellow
    std::string key;                           ///< column 4, the sort key as text
    bool locked = false;                       ///< drawn grey until it is unlocked
};

/// One of the six labels that lead to a group of the grid.
struct JumpLabel {
    bool enabled = false;
    bool current = false;   ///< drawn blue on grey
    bool complete = false;  ///< nothing left to fill in its group
    int headingRow = -1;    ///< index into the grid
};

/// A command button.
struct Button {
    std::string caption;
    std::string tooltip;
    bool enabled = true;
    bool visible = true;
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
};

struct SelectionState {
    Job job;
    NameBox txtJobName;
    std::string ScreenMode;
    bool FieldEntryStarted = false;
    bool templateBeingSet = false;  ///< `cmdTemplate` has the colour 0xC0FFFF
    std::string browsedFile;        ///< the file name chosen in the browser, without extension

    std::array<OptionButton, kOptions + 1> options;  ///< by number, entry 0 unused
    bool optionChangesSuppressed = false;
    PropertyTypeFrame propertyTypeFrame = PropertyTypeFrame::Start;

    std::vector<std::string> List1;
    bool List1Enabled = true;
    std::vector<JobListLine> List2;
    bool List2Enabled = false;
    std::string List2Tooltip;
    std::string LegalList;  ///< names of selected lines, each followed by ","
    /// Documents that a choice took off the list: A by seller kind and property type, B by no payoffs.
    std::array<std::vector<std::string>, 2> ParkedDocuments;

    std::vector<GridRow> grid;  ///< without the fixed header row
    int currentRow = -1;
    std::array<JumpLabel, 7> lblJump;  ///< 1 to 6
    int relevantFieldCount = 0;
    int total = 0;                         ///< the label "total flds"
    int remaining = 0;                     ///< the label "remaining"
    std::vector<std::string> userMarkers;  ///< markers of user-defined fields of the job's custom documents

    Button cmdOpen, cmdCreate, cmdReset, cmdExit, cmdTemplate, cmdPackages, cmdCustom, cmdNameAs,
        cmdEnvelopes, cmdOP236, cmdPrintFList, cmdSelect;
    std::string picInfo;  ///< the guidance bar's text
    InfoColours picInfoColours;

    bool waiting = false;  ///< the wait form shows, the pointer is the busy one, the grid takes no click
    ProgressBar progress;
    std::string message;  ///< the message line under the progress bar
};

}  // namespace quillmark
