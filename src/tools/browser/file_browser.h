#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/folders.h"
#include "platform/dialogs.h"
#include "tools/controls.h"

/// The window `Form3` without its toolkit: it lists the jobs or the client templates of `JobFolder`, narrows
/// the list as one types, deletes files, and hands over what was chosen; the main screen acts on it.
namespace quillmark {

/// Every control as a plain value under its own name.
struct BrowserState {
    std::string title;                 ///< ends with the search text in capitals
    std::string status;                ///< what the guidance bar says while the window is open
    std::vector<std::string> List1;    ///< file names without their extension, in order of name
    std::optional<std::size_t> entry;  ///< the selected line of `List1`
    Button cmdAttorneys, cmdServicers, lblCancel;
    Button cmdSpawn;  ///< its background is 0xC0FFFF while it is enabled, else the button face
};

class FileBrowser {
 public:
    /// The first line for templates: one that is yet to be made.
    static constexpr std::string_view kNewTemplate = "* NEW CLIENT-INFO TEMPLATE *";

    /// Opens the window on the folder as it is now. Where the folder cannot be read, "Data Path Not Found"
    /// is shown and the window does not open. `folders` and `dialogs` must outlive the window.
    FileBrowser(const Folders& folders, bool templates, Dialogs& dialogs);

    /// False where the folder could not be read: the user is then to be led to the path in the settings.
    bool IsOpen() const { return open_; }
    /// Whether it lists templates. Closing such a window with Escape presses RESET on the main screen.
    bool ListsTemplates() const { return templates_; }
    const BrowserState& State() const { return state_; }

    /// Lists the entries that hold the text, in any case; all of them for an empty text. Entries and search
    /// text are compared over the letters that file names can have in data files. The folder is not read
    /// again, so a file that has vanished is still listed.
    void SearchFiles(std::string_view text);

    /// A key in the list: its characters are added to the search text; control characters do nothing.
    void PressKey(std::string_view characters);
    void PressBackspace();
    /// Control+Shift+Delete: deletes the selected entry's file and pictures without a question and reads the
    /// folder again. The line for a new template cannot be deleted; what the system refuses is shown, and the
    /// list stays. True if the entry is gone.
    bool DeleteSelected();

    /// A click on a line; false if there is no such line.
    bool Select(std::size_t line);
    /// A click on the line of that name; false if it is not listed.
    bool Select(std::string_view name);
    /// The selected line; empty if there is none.
    std::string Selected() const;

 private:
    struct File {
        std::string name;
        std::string capitals;
    };

    bool ReadFolder();
    bool DeleteAsSeen(const std::string& name);
    std::optional<std::filesystem::file_time_type> TimeOf(const std::string& name) const;
    void SetControls();
    void SetSelection(std::optional<std::size_t> line);
    void SetSearchText(std::string_view capitals);

    const Folders& folders_;
    Dialogs& dialogs_;
    bool templates_;
    bool open_ = false;
    std::vector<File> files_;  ///< `File1`, of the kind that is listed
    std::string search_;       ///< in capitals
    std::optional<std::filesystem::file_time_type>
        selectedTime_;  ///< when the selected file was last changed
    BrowserState state_;
};

}  // namespace quillmark
