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
    std::vector<std::string> legal;           ///< documents on legal paper
    std::optional<std::string> documentDate;  ///< of [document date], today without it
    ScriptedDialogs::Answers answers;         ///< to the questions, in the order in which they come
    bool anyway = false;                      ///< jobs with open fields are made, too
    bool force = false;                       ///< documents that are there already are replaced
    bool check = false;                       ///< nothing is made, what is wrong is told
    std::optional<std::filesystem::path> trace;
    bool pdf = false;
    bool quiet = false;
};

/// Makes the documents of every job by way of the main screen, going on after one fails, and gives the exit
/// status. Each document's path goes to `out` as a line; notices, and what failed and why, to `err`. The jobs
/// themselves and the address books stay as they are.
int Make(const MakeOrder& order, const Streams& streams);

}  // namespace quillmark::cli
