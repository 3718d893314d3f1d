#pragma once

#include <string>

namespace quillmark {

/// A person at a computer, by the names that the system knows them by; empty where it tells none.
struct ComputerUser {
    std::string user;
    std::string computer;
};

/// The person and the computer that the program runs for.
ComputerUser ThisUser();

}  // namespace quillmark
