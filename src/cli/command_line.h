#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillmark::cli {

/// Exit statuses, fixed for the programs that drive this one.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;  ///< the work failed; standard error tells what
inline constexpr int kWrongCommandLine = 2;

/// Where results and messages go.
struct Streams {
    std::ostream& out;           ///< results only
    std::ostream& err;           ///< everything else
    bool errIsTerminal = false;  ///< progress shows only there
};

/// Carries out a command line (UTF-8, without the program's name) and gives the exit status.
int RunCommandLine(const std::vector<std::string>& words, const Streams& streams);

}  // namespace quillmark::cli
