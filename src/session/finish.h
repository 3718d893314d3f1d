#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace quillmark {

/// What a run of CREATE made, as the person is told at its end. It says what happened and no more.
struct Finish {
    std::size_t number = 0;                ///< counts the runs of a session, from 1
    std::filesystem::path document;        ///< empty while the word processor alone has it
    bool shownByWordProcessor = false;     ///< the program that typed the document shows it
    std::vector<std::string> entries;      ///< of the job list, as they were made
    std::vector<std::string> withoutText;  ///< those that have no text yet
    /// Markers that stand in the document though no row of the grid asks for them.
    std::vector<std::string> holes;
    std::vector<std::string> pictureFaults;  ///< pictures that could not be put in, one sentence each
    bool jobSaved = false;                   ///< the job's file was written
    std::vector<std::string> notices;        ///< that were shown, to be read again
};

}  // namespace quillmark
