// Eight programs in one folder, thousands of saves, renamings and deletions, and a ledger that accounts for
// each that was acknowledged.

#include <fmt/format.h>

#include <chrono>
#include <filesystem>

#include "../tests/core/job_ledger.h"

int main() {
    using namespace quillmark;
    const auto folder =
        std::filesystem::temp_directory_path() / ("quillmark-ledger-" + std::to_string(::getpid()));
    bool good = true;
    for (const int processes : {2, 4, 8}) {
        std::filesystem::remove_all(folder);
        const auto start = std::chrono::steady_clock::now();
        const test::LedgerResult result =
            test::JobLedger(folder, {.processes = processes, .actions = 500, .seed = 7}).Run();
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        fmt::print(
            "{} programs, {:.1f} s: {} saved, {} renamed, {} deleted, {} refused; {} failed, {} lost, "
            "{} came back, {} with another picture\n",
            processes, seconds, result.saved, result.renamed, result.deleted, result.refused, result.failed,
            result.lost.size(), result.revived.size(), result.mismatch.size());
        good &=
            result.failed == 0 && result.lost.empty() && result.revived.empty() && result.mismatch.empty();
    }
    std::filesystem::remove_all(folder);
    return good ? 0 : 1;
}
