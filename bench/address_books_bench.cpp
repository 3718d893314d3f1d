#include <fmt/format.h>

#include <cstdlib>

#include "../tests/entry/address_stress.h"

// Writes one address book from many programs at once, some of them killed at random moments, in a folder of
// its own below the folder given (the system's temporary folder by default), and prints what came of it:
//   address_books_bench [PROCESSES [RECORDS [KILLS [FOLDER]]]]
namespace {

int Argument(int count, char** words, int i, int otherwise) {
    return i < count ? std::atoi(words[i]) : otherwise;
}

void PrintAll(const char* what, const std::vector<std::string>& lines) {
    fmt::print("{:<28}{}\n", what, lines.size());
    for (std::size_t i = 0; i < lines.size() && i < 5; ++i) fmt::print("    {}\n", lines[i]);
}

}  // namespace

int main(int count, char** words) {
    namespace fs = std::filesystem;
    quillmark::test::StressPlan plan;
    plan.processes = Argument(count, words, 1, plan.processes);
    plan.records = Argument(count, words, 2, plan.records);
    plan.kills = Argument(count, words, 3, plan.kills);
    const fs::path folder = (count > 4 ? fs::path(words[4]) : fs::temp_directory_path()) /
                            fmt::format("address-books-{}", ::getpid());
    fs::create_directories(folder);
    const auto result = quillmark::test::StressRun(folder, plan).Run();

    fmt::print("{} programs, {} records each\n", plan.processes, plan.records);
    fmt::print("{:<28}{}\n", "finished writes", result.finished);
    fmt::print("{:<28}{} ({} started again)\n", "killed", result.killed, result.restarted);
    fmt::print("{:<28}{}\n", "lines in the list", result.records);
    PrintAll("finished but missing", result.missing);
    PrintAll("torn lines", result.torn);
    PrintAll("duplicates", result.duplicate);
    fmt::print("{:<28}{}\n", "programs that failed", result.failed);
    fmt::print("{:<28}{}\n", "files left by the killed", result.leftFiles);
    fmt::print("{:<28}{:.1f}\n", "seconds", result.seconds);
    fmt::print("{:<28}{:.0f}\n", "records per second", result.finished / result.seconds);
    fmt::print("{:<28}{:.2f}\n", "longest write, seconds", result.longestWrite);
    fs::remove_all(folder);
    const bool sound = result.missing.empty() && result.torn.empty() && result.duplicate.empty();
    return sound && result.failed == 0 ? 0 : 1;
}
