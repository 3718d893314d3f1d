#pragma once

#include <filesystem>

#include "cli/command_line.h"

namespace quillmark::cli {

struct FormsOrder {
    std::filesystem::path folder = ".";  ///< the program folder
    bool check = false;
};

/// Lists the firm's own forms, each with its markers, or with `check` what is wrong with them, one finding a
/// line. kFailed when a marker is wrong or a form cannot be read.
int Forms(const FormsOrder& order, const Streams& streams);

}  // namespace quillmark::cli
