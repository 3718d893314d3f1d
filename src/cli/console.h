#pragma once

#include <chrono>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <vector>

#include "cli/command_line.h"
#include "cli/console_printers.h"
#include "platform/dialogs.h"
#include "platform/drives.h"

namespace quillmark::cli {

/// What `console` was told to do.
struct ConsoleOrder {
    std::filesystem::path folder = ".";                ///< the program folder
    std::optional<std::chrono::year_month_day> today;  ///< the system's date if none is given
    ScriptedDialogs::Answers answers = {};             ///< to the boxes of the start itself
    std::vector<NamedPrinter> printers = {};           ///< that the side tools see, the current one first
    std::vector<Drive> drives = {};          ///< of the backup window; the system's own if there are none
    std::filesystem::path programFile = {};  ///< whose date the data's version marker is held against
};

/// One session of the main screen, driven by JSON lines: one reply a line, one more before the first request.
/// The end of the input ends the session without saving, EXIT ends it as on the screen. Gives the exit
/// status: kFailed only when the session could not be started, or nobody takes the replies any more.
int RunConsole(const ConsoleOrder& order, std::istream& in, const Streams& streams);

}  // namespace quillmark::cli
