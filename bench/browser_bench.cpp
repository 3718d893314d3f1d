// The file browser over a folder of 10,000 jobs: opening it, and each further letter of the search.

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <fstream>

#include "core/settings.h"
#include "tools/browser/file_browser.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;

constexpr int kJobs = 10'000;
constexpr const char* kNames[] = {"Smith", "Abbott", "Sørensen", "Whitcomb", "Pell Trust", "Harborline LLC"};
constexpr const char* kStreets[] = {"Beech Hill Road", "Columbus Avenue", "Ledge Road", "Any Street"};

/// A program folder whose jobs are gone with the program.
class JobFolder {
 public:
    JobFolder() : folder_(fs::temp_directory_path() / "quillmark-browser-bench") {
        fs::remove_all(folder_);
        fs::create_directories(folder_ / "data" / "images");
        for (int i = 0; i < kJobs; ++i)
            std::ofstream(folder_ / "data" /
                          fmt::format("{} - {} {}.dat", kNames[i % 6], i, kStreets[i % 4]));
    }
    ~JobFolder() { fs::remove_all(folder_); }

    Folders folders() const { return FoldersOf(folder_, Settings{}); }

 private:
    fs::path folder_;
};

const JobFolder& TheFolder() {
    static const JobFolder folder;
    return folder;
}

void Open(benchmark::State& state) {
    const Folders folders = TheFolder().folders();
    ScriptedDialogs dialogs;
    for (auto _ : state) {
        FileBrowser browser(folders, false, dialogs);
        benchmark::DoNotOptimize(browser.State().List1.data());
    }
}
BENCHMARK(Open)->Unit(benchmark::kMillisecond);

/// One key after the other: letter by letter to a search text, and back by Backspace.
void OneKey(benchmark::State& state) {
    const Folders folders = TheFolder().folders();
    ScriptedDialogs dialogs;
    FileBrowser browser(folders, false, dialogs);
    const std::string text = "smith - 9";
    std::size_t key = 0;
    for (auto _ : state) {
        if (key < text.size())
            browser.PressKey(text.substr(key, 1));
        else
            browser.PressBackspace();
        key = (key + 1) % (2 * text.size());
    }
}
BENCHMARK(OneKey)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmark

BENCHMARK_MAIN();
