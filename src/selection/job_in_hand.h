#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/job.h"

/// The job in hand: what the rules of document choice and field entry read and change. It is a plain value
/// and knows no screen: no control, caption or colour.
namespace quillmark {

/// `ScreenMode`: what is being done with the job.
enum class ScreenMode {
    Job,      ///< a new or opened job is worked on
    Presets,  ///< the firm's defaults or a template are being set
    Edit,     ///< an opened job is being changed
};
/// "", "presets mode", "edit mode".
constexpr std::string_view NameOf(ScreenMode mode) {
    if (mode == ScreenMode::Job) return "";
    return mode == ScreenMode::Presets ? "presets mode" : "edit mode";
}

/// A line of the job list; a selected line is made on legal-size paper.
struct JobListLine {
    std::string name;
    bool selected = false;
};

enum class RowKind { Field, User, Heading };

/// A row of the field grid `grdField`.
struct GridRow {
    RowKind kind = RowKind::Field;
    int n = 0;                                 ///< field number; 0 for user-defined rows and headings
    std::string label;                         ///< column 0
    std::string value;                         ///< column 1, empty while unfilled
    std::array<std::string, 2> notes;          ///< columns 2 and 3
    std::array<bool, 2> lit = {false, false};  ///< whether what a note cell says holds
    std::string key;                           ///< column 4, the sort key as text
    bool locked = false;                       ///< takes no entry until it is unlocked
};

/// A group of rows, 1 to 6, in the order of the jump labels.
struct GridGroup {
    int headingRow = -1;    ///< index into the grid; -1 for a group without rows
    bool complete = false;  ///< nothing left to fill in it

    bool HasRows() const { return headingRow >= 0; }
};

/// What belongs to a job beside its values and its rows.
struct JobAround {
    ScreenMode mode = ScreenMode::Job;
    bool fromTemplate = false;  ///< the file chosen in the browser is a template

    std::vector<JobListLine> List2;  ///< the job list
    std::string LegalList;           ///< names of the lines last selected, each followed by ","
    /// Documents that a choice took off the list: A by seller kind and property type, B by no payoffs.
    std::array<std::vector<std::string>, 2> ParkedDocuments;

    std::array<GridGroup, 7> groups;  ///< 1 to 6
    int relevantFieldCount = 0;
    int total = 0;                         ///< "total flds"
    int remaining = 0;                     ///< required fields that are open
    std::vector<std::string> userMarkers;  ///< markers of user-defined fields of the job's custom documents
};

struct JobInHand : JobAround {
    Job job;
    std::vector<GridRow> grid;  ///< without the fixed header row
};

}  // namespace quillmark
