#ifdef _WIN32

#include <windows.h>

#include <array>

#include "platform/paths.h"
#include "platform/this_user.h"

namespace quillmark {

ComputerUser ThisUser() {
    ComputerUser user;
    std::array<wchar_t, 260> text = {};
    DWORD size = static_cast<DWORD>(text.size());
    if (GetUserNameW(text.data(), &size)) user.user = TextOf(text.data());
    size = static_cast<DWORD>(text.size());
    if (GetComputerNameW(text.data(), &size)) user.computer = TextOf(text.data());
    return user;
}

}  // namespace quillmark

#endif
