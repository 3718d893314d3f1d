// The main screen's budgets: start to the name box with 10,000 jobs in the folder, RefreshFields of a full
// job list, one keystroke and one commit in the grid with every rule (1 ms each).

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "selection/document_catalogue.h"
#include "selection/relevant_fields.h"
#include "session/main_screen.h"
#include "session/preview_command.h"
#include "word/start.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;

constexpr int kJobs = 10'000;

class NoShell final : public Shell {
 public:
    fs::path FolderOf(SpecialFolder) override { return fs::temp_directory_path(); }
    void Open(const std::string&) override {}
    void Start(const fs::path&, const std::vector<std::string>&) override {}
};

/// An office with many jobs, gone with the object.
class BusyOffice {
 public:
    BusyOffice() {
        fs::remove_all(folder);
        fs::create_directories(folder / "data");
        for (int i = 0; i < kJobs; ++i)
            std::ofstream(folder / "data" / ("Job " + std::to_string(i) + ".dat"))
                << "\"021\",\"Anna Abbott\"\r\n";
    }
    ~BusyOffice() { fs::remove_all(folder); }

    Machine NewMachine() {
        return {.clock = clock, .dialogs = dialogs, .shell = shell, .startWord = [] {
                    return word::StartWordProcessor(word::WordProcessor::Embedded);
                }};
    }

    const fs::path folder = fs::temp_directory_path() / "quillmark-session-bench";
    FixedClock clock{std::chrono::year(2026) / 3 / 9};
    ScriptedDialogs dialogs;
    NoShell shell;
};

BusyOffice& Office() {
    static BusyOffice office;
    return office;
}

void StartToNameBox(benchmark::State& state) {
    Office();  // its ten thousand jobs are there before the start that is measured
    for (auto _ : state) {
        MainScreen screen(Office().folder, Office().NewMachine());
        benchmark::DoNotOptimize(screen.Start());
    }
}
BENCHMARK(StartToNameBox)->Unit(benchmark::kMillisecond);

void RefreshFieldsOfFullJobList(benchmark::State& state) {
    MainScreen screen(Office().folder, Office().NewMachine());
    screen.Start();
    ScreenState full = screen.State();
    for (const std::string_view name : DocumentCatalogue()) full.List2.push_back({std::string(name), false});
    Settings settings;
    Folders folders;
    FirmDefaults defaults;
    const FirmContext firm{settings, folders, defaults, Office().clock};
    for (auto _ : state) RefreshFields(full, firm);
    state.counters["rows"] = static_cast<double>(full.grid.size());
}
BENCHMARK(RefreshFieldsOfFullJobList)->Unit(benchmark::kMicrosecond);

/// A named job with every document of the catalogue on its list.
MainScreen& FullGrid() {
    static MainScreen screen(Office().folder, Office().NewMachine());
    if (screen.State().List2.empty()) {
        screen.Start();
        screen.TypeName("Abbott");
        screen.EnterName();
        for (const std::string_view name : DocumentCatalogue()) screen.PickDocument(name);
    }
    return screen;
}

int RowOf(int n, const MainScreen& screen) {
    const auto& grid = screen.State().grid;
    const auto row = std::find_if(grid.begin(), grid.end(), [&](const GridRow& r) { return r.n == n; });
    return static_cast<int>(row - grid.begin());
}

void KeystrokeInFullGrid(benchmark::State& state) {
    MainScreen& screen = FullGrid();
    screen.ClickGrid(RowOf(72, screen), 1);
    for (auto _ : state) {
        screen.KeyInEditor("G");
        screen.KeyInEditor(kBackspace);
    }
    screen.KeyInEditor(EditorKey::Escape);
}
BENCHMARK(KeystrokeInFullGrid)->Unit(benchmark::kMicrosecond);

/// From the click on a row to the editor on the next one.
void CommitInFullGrid(benchmark::State& state) {
    MainScreen& screen = FullGrid();
    const int row = RowOf(72, screen);
    bool first = false;
    for (auto _ : state) {
        first = !first;
        screen.ClickGrid(row, 1);
        screen.SetEditorText({first ? "Guilford, CT 06437" : "Hamden, CT 06517", 0, 0});
        screen.KeyInEditor(EditorKey::Enter);
        screen.KeyInEditor(EditorKey::Escape);
    }
    state.counters["rows"] = static_cast<double>(screen.State().grid.size());
    if (screen.State().job.D(2072) != "New Haven") state.SkipWithError("nothing was committed");
}
BENCHMARK(CommitInFullGrid)->Unit(benchmark::kMicrosecond);

/// One act taken back and done again, with every document on the list.
void UndoAndRedo(benchmark::State& state) {
    MainScreen& screen = FullGrid();
    screen.EnterField(21, "Anna Abbott", EntryWay::Paste);
    screen.EnterField(21, "Anna Abbot", EntryWay::Paste);
    for (auto _ : state) {
        screen.Undo();
        screen.Redo();
    }
}
BENCHMARK(UndoAndRedo)->Unit(benchmark::kMicrosecond);

void BlanksOfAllDocuments(benchmark::State& state) {
    MainScreen& screen = FullGrid();
    for (auto _ : state) benchmark::DoNotOptimize(OpenNow(screen));
}
BENCHMARK(BlanksOfAllDocuments)->Unit(benchmark::kMillisecond);

/// What the live page asks of the engine: one deed, and all documents.
void PreviewOfDeed(benchmark::State& state) {
    const PreviewOrder order = OrderOfPreview(FullGrid(), "Deed / Warranty");
    for (auto _ : state) benchmark::DoNotOptimize(MakePreview(order, Office().folder / "page.docx"));
}
BENCHMARK(PreviewOfDeed)->Unit(benchmark::kMillisecond);

void PreviewOfAllDocuments(benchmark::State& state) {
    const PreviewOrder order = OrderOfPreview(FullGrid());
    for (auto _ : state) benchmark::DoNotOptimize(MakePreview(order, Office().folder / "page.docx"));
}
BENCHMARK(PreviewOfAllDocuments)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmark

BENCHMARK_MAIN();
