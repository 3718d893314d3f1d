#include "desktop/program.h"

#include <QApplication>
#include <QFontDatabase>
#include <QSettings>
#include <QTimer>
#include <algorithm>

#include "desktop/guide/first_run_window.h"
#include "desktop/side_windows/file_wait.h"
#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/text.h"
#include "platform/paths.h"
#include "session/program_folder.h"
#include "session/upkeep.h"
#include "word/start.h"

namespace quillmark::desktop {

namespace fs = std::filesystem;

namespace {

/// The job that a word of the command line means: a file that is there by its whole path, whatever folder
/// another copy of the program stands in, or a name in the job folder.
std::string JobOf(const std::string& word) {
    const fs::path file = PathOf(word);
    if (Lowered(TextOf(file.extension())) != ".dat") return word;
    std::error_code none;
    return fs::is_regular_file(file, none) ? TextOf(fs::absolute(file)) : TextOf(file.stem());
}

std::chrono::year_month_day DateOfFile(const fs::path& file) {
    const auto written = std::chrono::file_clock::to_sys(fs::last_write_time(file));
    return std::chrono::floor<std::chrono::days>(written);
}

/// What one user likes, whatever the program folder.
QSettings OwnSettings() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("quillmark"),
                     QStringLiteral("desktop"));
}

std::vector<std::string> WithFontsOfTheSystem(std::vector<std::string> fonts) {
    for (const QString& family : QFontDatabase::families())
        if (!QFontDatabase::isPrivateFamily(family)) fonts.push_back(Utf8(family));
    std::ranges::sort(fonts);
    const auto twice = std::ranges::unique(fonts);
    fonts.erase(twice.begin(), twice.end());
    return fonts;
}

const QString kPreviewShown = QStringLiteral("preview/shown");
const QString kPreviewWidth = QStringLiteral("preview/width");
const QString kDocumentsWidth = QStringLiteral("documents/width");
const QString kTheme = QStringLiteral("look/theme");
const QStringList kThemes = {QStringLiteral("system"), QStringLiteral("light"), QStringLiteral("dark")};

ThemeChoice OwnTheme() {
    const auto at = kThemes.indexOf(OwnSettings().value(kTheme).toString());
    return at < 0 ? ThemeChoice::System : static_cast<ThemeChoice>(at);
}

}  // namespace

fs::path ProgramFile() {
    return PathOf(Utf8(QCoreApplication::applicationFilePath()));
}

DialogButton ShowingDialogs::Show(const MessageDialog& box) {
    if (beforeBox) beforeBox();
    return shown_.Show(box);
}

std::optional<std::string> ShowingDialogs::Ask(const InputDialog& box) {
    if (beforeBox) beforeBox();
    return shown_.Ask(box);
}

Program::Program(LaunchOrder order) : order_(std::move(order)) {
    if (order_.folder.empty())
        order_.folder = DefaultProgramFolder(fs::current_path(), ProgramFile(), shell_);
    order_.folder = fs::absolute(order_.folder);
    ApplyTheme(OwnTheme());
    order_.job = JobOf(order_.job);
    instance_ = std::make_unique<SingleInstance>(SingleInstance::NameFor(order_.folder));
    screen_ = std::make_unique<MainScreen>(order_.folder, MachineAround());
    window_ = std::make_unique<MainWindow>(*screen_);
    window_->SetTheme(OwnTheme());
    boxes_.SetParent(window_.get());
    printer_.SetParent(window_.get());
    sheets_.SetParent(window_.get());
    shell_.SetParent(window_.get());
    dialogs_.beforeBox = [this] {
        window_->ShowState();
        window_->show();
    };
    connect(instance_.get(), &SingleInstance::Called, this, &Program::TakeOver);
    connect(window_.get(), &MainWindow::Dropped, this, [this](const QString& file) {
        file.endsWith(QLatin1String(".dat"), Qt::CaseInsensitive) ? TakeOver(file)
                                                                  : window_->ImportForm(file);
    });
    connect(window_.get(), &MainWindow::Closed, this, &Program::KeepPlacement);
}

/// Upgrades are looked for when the window is up (LookForUpgrade), not while the person waits for it.
Machine Program::MachineAround() {
    Machine machine{.clock = clock_, .dialogs = dialogs_, .shell = shell_};
    machine.startWord = [] { return word::StartWordProcessor(word::WordProcessor::Automatic); };
    if (!order_.shared) machine.handOver = [this] { return instance_->HandOver(Shown(order_.job)); };
    machine.printer = &printer_;
    machine.printers = &printers_;
    machine.sheets = &sheets_;
    machine.fonts = WithFontsOfTheSystem(std::move(machine.fonts));
    machine.programFile = ProgramFile();
    machine.waitForFiles = [this, wait = WaitForFile()](const FileInUse& use) mutable {
        if (!wait) wait = WaitingForFiles(window_.get());
        return wait(use);
    };
    machine.onProgress = [this] { window_->ShowProgress(); };
    return machine;
}

bool Program::Start() {
    if (order_.upgrade) {
        StartUpgrade(order_.folder, shell_);
        return false;
    }
    // A newcomer is welcomed first, and only then told what has not been set up.
    std::optional<FirstStep> first;
    if (SetUpFirstRun() && order_.job.empty()) first = Welcome();
    if (!screen_->Start()) return false;
    if (const auto placement = ReadWindowPlacement(order_.folder)) window_->Restore(*placement);
    window_->ShowState();
    window_->show();
    RestorePreview();
    if (!order_.job.empty()) OpenJob();
    if (first) window_->CommandDesk().Do([&](MainScreen& screen) { TakeFirstStep(screen, *first); });
    QTimer::singleShot(0, this, [this] {
        if (order_.lookForUpgrade) LookForUpgrade();
    });
    return true;
}

bool Program::SetUpFirstRun() {
    const bool isFirst = IsFirstRun(order_.folder);
    if (isFirst) SetUpProgramFolder(order_.folder, SeedFiles());
    return isFirst;
}

void Program::OpenJob() {
    window_->CommandDesk().Do([this](MainScreen& screen) { screen.OpenJob(order_.job); });
}

void Program::LookForUpgrade() {
    Guarded(window_.get(), [this] {
        const fs::path file = ProgramFile();
        if (!fs::exists(file) || !OffersUpgrade(order_.folder, DateOfFile(file), http_, shell_, dialogs_))
            return;
        window_->close();
    });
}

void Program::KeepPlacement() {
    Guarded(window_.get(), [this] {
        if (!window_->isMinimized()) WriteWindowPlacement(order_.folder, window_->Placement());
        QSettings own = OwnSettings();
        const Panes& panes = window_->PaneWidths();
        own.setValue(kPreviewShown, panes.PageWanted());
        own.setValue(kPreviewWidth, panes.PageWidth());
        own.setValue(kDocumentsWidth, panes.DocumentsWidth());
        own.setValue(kTheme, kThemes.at(static_cast<int>(window_->Theme())));
    });
    QCoreApplication::quit();
}

/// The job of another copy comes after the one on the screen has been left, as by RESET; while a box or a
/// side window stands open it cannot be left.
void Program::TakeOver(const QString& job) {
    Raise();
    if (job.isEmpty()) return;
    Desk& desk = window_->CommandDesk();
    if (desk.IsBusy() || QApplication::activeModalWidget())
        return window_->Tell(tr("\"%1\" can be opened when this window is closed").arg(job));
    const auto reset = [](MainScreen& screen) { screen.Click("cmdReset"); };
    desk.Do(reset);
    const bool savedInstead = !desk.State().txtJobName.text.empty() && !desk.State().HasUnsavedChanges();
    if (savedInstead) desk.Do(reset);
    if (!desk.State().txtJobName.text.empty()) return;
    order_.job = Utf8(job);
    OpenJob();
}

/// Where there is no word of it yet, a window with room for the page has it.
void Program::RestorePreview() {
    constexpr int kRoomy = 1260;
    const QSettings own = OwnSettings();
    Panes& panes = window_->PaneWidths();
    panes.SetWidths(own.value(kDocumentsWidth, 0).toInt(), own.value(kPreviewWidth, 0).toInt());
    panes.WantPage(own.value(kPreviewShown, window_->width() >= kRoomy).toBool());
}

void Program::Raise() {
    if (window_->isMinimized()) window_->showNormal();
    window_->raise();
    window_->activateWindow();
}

}  // namespace quillmark::desktop
