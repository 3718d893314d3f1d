#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "cli/console_request.h"
#include "cli/console_session.h"

namespace quillmark::cli {

/// One `do`: its arguments and what it gives as `result`.
struct Command {
    std::string_view name;
    std::vector<Argument> arguments;
    Json (*run)(ConsoleSession& session, const Request& request);
    /// The browser is a window that keeps the main screen waiting; few commands go with it.
    bool whileBrowsing = false;
    /// A side tool's window keeps it waiting too, but for the commands of that window.
    bool whileWindowOpen = false;
};

/// Every command, in the order in which the documentation has them.
std::span<const Command> Commands();

/// Carries out a request and gives its result. Throws BadRequest and NotAllowed, both with nothing changed,
/// and what the action itself throws.
Json RunCommand(ConsoleSession& session, const Request& request);

// The commands of the browser (console_browser.cpp).
Json Browse(ConsoleSession& session, const Request& request);
Json Load(ConsoleSession& session, const Request& request);
Json SpawnJob(ConsoleSession& session, const Request& request);
Json DeleteEntry(ConsoleSession& session, const Request& request);

// The commands of the package editor (console_packages.cpp).
Json SavePackageAs(ConsoleSession& session, const Request& request);
Json DeletePackageOf(ConsoleSession& session, const Request& request);

// The commands of the address editor and of the proration calculator (console_side_windows.cpp).
Json AddAddress(ConsoleSession& session, const Request& request);
Json RemoveAddress(ConsoleSession& session, const Request& request);
Json UseCalculator(ConsoleSession& session, const Request& request);

// The commands of a side tool's window (console_window.cpp), and the window itself.
Json ShowWindow(ConsoleSession& session, const Request& request);
Json SetInWindow(ConsoleSession& session, const Request& request);
Json ClickInWindow(ConsoleSession& session, const Request& request);
Json CloseWindow(ConsoleSession& session, const Request& request);
Json WindowOrNull(ConsoleSession& session);

// The closing statement's figures (console_statement.cpp).
Json FiguresOfStatement(ConsoleSession& session, const Request& request);

// The documents as CREATE would make them now (console_preview.cpp).
Json MakePreviewAt(ConsoleSession& session, const Request& request);
Json Blanks(ConsoleSession& session, const Request& request);

}  // namespace quillmark::cli
