// The window's budgets: from the start of the program to a usable name box, one frame of the grid with all of
// its rows, one key in the editor until it is on the screen.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "core/firm_defaults.h"
#include "desktop/program.h"
#include "platform/atomic_file.h"

namespace quillmark::desktop {
namespace {

namespace fs = std::filesystem;

/// An office in a folder of its own, gone with the object.
class Office {
 public:
    Office() {
        fs::remove_all(folder);
        fs::create_directories(folder / "data");
        FirmDefaults defaults;
        defaults.Set("[seller lawfirm]", "Hale & Hale");
        ReplaceFile(folder / "defaults.fld", FirmDefaultsRecords(defaults));
    }
    ~Office() { fs::remove_all(folder); }

    /// What the program remembers of its user stays out of the user's own folders.
    static void ComeFirst() {
        for (const char* name : {"XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
            qputenv(name, (fs::temp_directory_path() / "quillmark-desktop-bench-home").c_str());
    }

    LaunchOrder Order() const {
        return {.folder = folder, .job = {}, .upgrade = false, .shared = true, .lookForUpgrade = false};
    }

    const fs::path folder = fs::temp_directory_path() / "quillmark-desktop-bench";
};

/// Of a process on this computer; 0 where the system does not tell.
double ResidentMegabytes(qint64 process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;)
        if (double kilobytes = 0; word == "VmRSS:" && status >> kilobytes) return kilobytes / 1024;
    return 0;
}

/// What the toolkit itself takes before it comes to this is left out.
void StartToNameBox(benchmark::State& state) {
    const Office office;
    for (auto _ : state) {
        Program program(office.Order());
        program.Start();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(StartToNameBox)->Unit(benchmark::kMillisecond);

/// A template lists every field.
void OpenTemplate(Program& program) {
    program.Window().CommandDesk().Do([](MainScreen& screen) {
        screen.Click("cmdTemplate");
        screen.LoadJob(kNewTemplateEntry, true);
        screen.EditName("BENCH");
    });
}

void RepaintFullGrid(benchmark::State& state) {
    const Office office;
    Program program(office.Order());
    program.Start();
    OpenTemplate(program);
    for (auto _ : state) program.Window().grab();
    state.counters["rows"] = static_cast<double>(program.Window().CommandDesk().State().grid.size());
}
BENCHMARK(RepaintFullGrid)->Unit(benchmark::kMillisecond);

void KeyToScreen(benchmark::State& state) {
    const Office office;
    Program program(office.Order());
    program.Start();
    OpenTemplate(program);
    program.Window().CommandDesk().Do([](MainScreen& screen) { screen.KeyInGrid(EditorKey::Enter); });
    auto* edit = program.Window().findChild<QWidget*>(QStringLiteral("txtEdit"));
    for (auto _ : state) {
        QTest::keyClick(edit, Qt::Key_A);
        QTest::keyClick(edit, Qt::Key_Backspace);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(KeyToScreen)->Unit(benchmark::kMillisecond);

/// From a commit until the new page is on the screen, with the renderer warm; without one nothing is
/// measured.
void CommitToPage(benchmark::State& state) {
    const Office office;
    Program program(office.Order());
    program.Start();
    MainWindow& window = program.Window();
    window.resize(1500, 800);
    QTimer reader;  // of the boxes about companions
    QObject::connect(&reader, &QTimer::timeout, [] {
        if (QWidget* box = QApplication::activeModalWidget()) box->close();
    });
    reader.start(10);
    window.CommandDesk().Do([&](MainScreen& screen) {
        screen.TypeName("Bench");
        screen.EnterName();
        screen.PickDocument(state.range(0) == 0 ? "Deed / Warranty" : "Contract / Regional Bar");
    });
    window.ShowPreview(true);
    PreviewPane& pane = window.Preview();
    bool drawn = false;
    QObject::connect(&pane, &PreviewPane::Drawn, &pane, [&] { drawn = true; });
    const auto wait = [&] {
        return QTest::qWaitFor([&] { return drawn || pane.Renderer().IsGivenUp(); }, 60'000) &&
               !pane.Renderer().IsGivenUp();
    };
    if (!wait()) return state.SkipWithError("there is no renderer that answers");
    int n = 0;
    for (auto _ : state) {
        drawn = false;
        window.CommandDesk().Do([&](MainScreen& screen) {
            screen.EnterField(59, "Priya Castellan " + std::to_string(++n), EntryWay::Paste);
        });
        if (!wait()) return state.SkipWithError("the page did not come");
    }
    state.SetLabel(state.range(0) == 0 ? "a deed" : "a contract");
    state.counters["renderer MB"] = ResidentMegabytes(pane.Renderer().Pid());
}
BENCHMARK(CommitToPage)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

}  // namespace
}  // namespace quillmark::desktop

int main(int count, char** arguments) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    quillmark::desktop::Office::ComeFirst();
    QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
