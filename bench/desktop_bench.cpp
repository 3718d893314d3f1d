// The window's budgets: from the start of the program to a usable name box, one frame of the grid with all of
// its rows, one key in the editor until it is on the screen.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>
#include <filesystem>

#include "desktop/program.h"

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
        WriteFirmDefaults(folder / "defaults.fld", defaults);
    }
    ~Office() { fs::remove_all(folder); }

    LaunchOrder Order() const {
        return {.folder = folder, .job = {}, .upgrade = false, .shared = true, .lookForUpgrade = false};
    }

    const fs::path folder = fs::temp_directory_path() / "quillmark-desktop-bench";
};

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

}  // namespace
}  // namespace quillmark::desktop

int main(int count, char** arguments) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
