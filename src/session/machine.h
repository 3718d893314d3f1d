#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/drives.h"
#include "platform/file_holder.h"
#include "platform/machine.h"
#include "word/start.h"

namespace quillmark {

/// What lies outside the program. `http` may be null: then no upgrade is looked for.
struct Machine {
    const Clock& clock;
    Dialogs& dialogs;
    Shell& shell;
    HttpClient* http = nullptr;
    Printer* printer = nullptr;      ///< null: no lines can be printed
    Printers* printers = nullptr;    ///< null: there are none to choose from
    SheetPrinter* sheets = nullptr;  ///< null: no form and no envelope can be printed
    /// The fonts to print envelopes in; at least those that documents use.
    std::vector<std::string> fonts = {"Arial",          "Courier", "Courier New",
                                      "Lucida Console", "Tahoma",  "Times New Roman"};
    std::function<word::StartedWordProcessor()> startWord = {};
    /// Whether another copy of the program runs on this computer and has been brought to the front; null
    /// where several may run.
    std::function<bool()> handOver = {};
    std::filesystem::path programFile = {};  ///< whose date upgrades are measured by; empty for none
    /// While another user holds a shared file: shows the wait and gives way to Cancel. Null waits for ever.
    WaitForFile waitForFiles = {};
    /// Called at each step of CREATE, so that a window can show the state as it is then. Null where none
    /// shows.
    std::function<void()> onProgress = {};

    /// The drives that backups go to, at the moment of the call.
    std::function<std::vector<Drive>()> drives = MountedDrives;

    /// Puts a text on the clipboard. Null where there is none.
    std::function<void(const std::string&)> copyText = {};

    void LetRepaint() const {
        if (onProgress) onProgress();
    }
};

}  // namespace quillmark
