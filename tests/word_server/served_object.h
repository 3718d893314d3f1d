#pragma once

#include <windows.h>
// The automation header needs the one above.
#include <oleauto.h>

#include <memory>

#include "word/seam/automation.h"
#include "word/seam/clipboard.h"

namespace quillmark::test {

/// What the server shall do instead of what it is asked, for the calls from the one numbered `at` (the next
/// is 1) on, as often as `times`.
struct Misbehaviour {
    enum class Kind { None, Reject, Refuse, RefuseLate, Pause, Hang, Die } kind = Kind::None;
    int at = 0;
    int times = 0;
};

/// What the whole server counts and does.
struct ServerState {
    int objects = 0;    ///< references by the client
    int questions = 0;  ///< for ids of members
    int calls = 0;
    Misbehaviour plan;
    DWORD clipboardSeen = GetClipboardSequenceNumber();  ///< as it was last taken over
    std::shared_ptr<word::MemoryClipboard> clipboard = std::make_shared<word::MemoryClipboard>();
    void (*end)() = nullptr;  ///< called when nobody holds anything any more, and at Quit
};
ServerState& State();

/// An object of the seam as an automation object, which keeps itself until it is released. Beside the
/// object's own members every one has those for tests: the properties `QuestionsAsked` and `CallsServed`,
/// and `Misbehave kind, at, times`, with the kinds by their names above.
IDispatch* Serve(word::ObjectPtr object);

}  // namespace quillmark::test
