#pragma once

#ifdef _WIN32

#include "word/seam/automation.h"

namespace quillmark::word {

/// An object of an automation server on this machine, by its class name ("Word.Application"). It and the
/// objects reached from it are for the thread that called. The server's refusals keep its number; one that
/// was closed or has crashed since answers kServerGone, a file that is open elsewhere kPermissionDenied.
/// While the server is busy (a dialog of the user's is open in it) an operation waits for up to ten seconds.
/// Throws AutomationError kCannotCreate where there is no such server, or it does not start.
ObjectPtr CreateComObject(std::string_view className);

/// Starts a Word of its own, out of sight, and gives its application object.
inline ObjectPtr StartWord() {
    return CreateComObject("Word.Application");
}

}  // namespace quillmark::word

#endif
