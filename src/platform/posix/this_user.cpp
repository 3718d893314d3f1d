#ifndef _WIN32

#include "platform/this_user.h"

#include <pwd.h>
#include <unistd.h>

#include <array>

namespace quillmark {

ComputerUser ThisUser() {
    ComputerUser user;
    std::array<char, 4096> texts;
    passwd entry = {};
    passwd* found = nullptr;
    if (::getpwuid_r(::geteuid(), &entry, texts.data(), texts.size(), &found) == 0 && found)
        user.user = found->pw_name;
    std::array<char, 256> name = {};
    if (::gethostname(name.data(), name.size() - 1) == 0) user.computer = name.data();
    return user;
}

}  // namespace quillmark

#endif
