#pragma once

#ifdef _WIN32

#include <windows.h>
// The automation header needs the one above.
#include <oleauto.h>

#include <chrono>
#include <string>
#include <string_view>
#include <thread>

/// What an automation server refuses, as the AutomationError of the seam.
namespace quillmark::word {

/// Throws for a call to `member` that ended with this result.
[[noreturn]] void Refuse(HRESULT result, std::string_view member);

/// The same with the server's own number and words (DISP_E_EXCEPTION), and frees them. A server may put its
/// words off until they are asked for; that can be done only where `object` lives in this program: of
/// another's the way to them is an address over there, and its words stay unsaid.
[[noreturn]] void Refuse(EXCEPINFO& exception, IDispatch& object, std::string_view member);

/// Repeats an operation while the server says that it is busy (a dialog of the user's is open in it), for up
/// to `patience`; then it is refused.
template <class Operation>
HRESULT WhileBusy(std::chrono::milliseconds patience, Operation operation) {
    using std::chrono::steady_clock;
    const auto limit = steady_clock::now() + patience;
    while (true) {
        const HRESULT result = operation();
        const bool busy = result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
        if (!busy || steady_clock::now() > limit) return result;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

}  // namespace quillmark::word

#endif
