#pragma once

#include <stdexcept>
#include <string>

namespace quillmark {

/// What the screen would not allow in its present state: a disabled button, a hidden option, a line that is
/// not in the list. Nothing has changed.
class NotAllowed : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Throws NotAllowed with this text.
inline void Require(bool condition, const std::string& otherwise) {
    if (!condition) throw NotAllowed(otherwise);
}

}  // namespace quillmark
