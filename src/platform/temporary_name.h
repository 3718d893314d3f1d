#pragma once

#include <fmt/format.h>

#include <random>
#include <string>

namespace quillmark {

/// A file name unlike every other in its folder, and short, since the name of the file that it will replace
/// may already be the longest that the system allows.
inline std::string TemporaryName() {
    std::random_device random;
    return fmt::format(".quillmark-{:08x}{:08x}.tmp", random(), random());
}

}  // namespace quillmark
