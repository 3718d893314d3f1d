#pragma once

#include <string>

/// Controls as plain values, for every window of the program.
namespace quillmark {

/// A command button.
struct Button {
    std::string caption;
    std::string tooltip;
    bool enabled = true;
    bool visible = true;
};

}  // namespace quillmark
