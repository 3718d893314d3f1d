#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "platform/dialogs.h"

namespace quillmark::cli {

/// What `make` was told to do.
struct MakeOrder {
    std::vector<std::string> jobs;                      ///< names in the job folder, or paths of .dat files
    std::filesystem::path folder = ".";                 ///< the program folder
    std::filesystem::path out = ".";                    ///< where the documents go; made if it is missing
    std::optional<std::vector<std::string>> documents;  ///< in place of the job's own list
    std::chrono::year_month_day today;
    ScriptedDialogs::Answers answers;  ///< to the questions, in the order in which they come
    std::optional<std::filesystem::path> trace;
    bool pdf = false;
    bool quiet = false;
};

/// Makes the documents of every job, going on after one fails, and gives the exit status. Each document's
/// path goes to `out` as a line; what failed, and why, to `err`.
int Make(const MakeOrder& order, const Streams& streams);

}  // namespace quillmark::cli
