#pragma once

#ifdef _WIN32

#include <chrono>

#include "word/seam/automation.h"

namespace quillmark::word {

/// How long a server may keep an operation waiting.
struct ComPatience {
    std::chrono::milliseconds busy = std::chrono::seconds(10);  ///< while it says that it is busy
    std::chrono::milliseconds call = std::chrono::minutes(2);   ///< within one call, unseen by the user
};

/// An object of an automation server on this machine, by its class name ("Word.Application"). It and the
/// objects reached from it are for the thread that called. A member's id is asked for once for all objects
/// that were reached in the same way: under one name they must give objects of one kind, as Word's members
/// do.
///
/// The server's refusals keep its number; one that was closed or has crashed since answers kServerGone, a
/// file that is open elsewhere kPermissionDenied. While the server is busy (a dialog of the user's is open in
/// it) an operation waits, and is refused in the end. A server in a process of its own that does not come
/// back from a call is ended, which answers kServerGone, unless `Visible` was set to True: from then on it is
/// the user's.
/// Throws AutomationError kCannotCreate where there is no such server, or it does not start.
ObjectPtr CreateComObject(std::string_view className, ComPatience patience = {});

/// Starts a Word of its own, out of sight, and gives its application object.
inline ObjectPtr StartWord() {
    return CreateComObject("Word.Application");
}

}  // namespace quillmark::word

#endif
