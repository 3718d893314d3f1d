#include "cli/console_session.h"

#include <ostream>

#include "platform/atomic_file.h"
#include "word/start.h"

namespace quillmark::cli {

namespace fs = std::filesystem;

namespace {

/// Longer than any use of the address books takes, and no longer than a program that waits for a reply
/// should.
constexpr std::chrono::seconds kPatience{10};

std::unique_ptr<Clock> ClockFor(const ConsoleOrder& order) {
    if (order.today) return std::make_unique<FixedClock>(*order.today);
    return std::make_unique<SystemClock>();
}

std::function<std::vector<Drive>()> DrivesFor(const ConsoleOrder& order) {
    if (order.drives.empty()) return MountedDrives;
    return [drives = order.drives] { return drives; };
}

}  // namespace

fs::path ConsoleShell::FolderOf(SpecialFolder folder) {
    return system_.FolderOf(folder);
}

void ConsoleShell::Open(const std::string& fileOrAddress) {
    err_ << "quillmark-cli: open " << fileOrAddress << std::endl;
}

void ConsoleShell::Start(const fs::path& program, const std::vector<std::string>& arguments) {
    system_.Start(program, arguments);
}

void ConsolePrinter::Print(const PrintJob& job) {
    err_ << "quillmark-cli: print " << job.name << '\n';
    for (const std::string& line : job.lines) err_ << line << '\n';
    err_ << std::flush;
}

ConsoleSession::ConsoleSession(const ConsoleOrder& order, std::ostream& err)
    : shell_(err), printer_(err), printers_(order.printers), clock_(ClockFor(order)) {
    if (!fs::is_directory(order.folder))
        throw FileError(order.folder, FileError::Kind::NotFound, "there is no such folder");
    screen_.emplace(
        fs::absolute(order.folder),
        Machine{.clock = *clock_,
                .dialogs = dialogs_,
                .shell = shell_,
                .http = nullptr,
                .printer = &printer_,
                .printers = &printers_,
                .sheets = &printers_,
                .startWord = [] { return word::StartWordProcessor(word::WordProcessor::Embedded); },
                .handOver = {},
                .programFile = order.programFile,
                .waitForFiles = [](const FileInUse& use) { return use.waited < kPatience; },
                .drives = DrivesFor(order)});
}

void ConsoleSession::Click(std::string_view button) {
    screen_->Click(button);
    if (screen_->BrowserOpen() && !browser_) ShowBrowser();
}

void ConsoleSession::ShowBrowser() {
    const bool templates = State().mode == ScreenMode::Presets;
    browser_.emplace(screen_->FirmAround().folders, templates, dialogs_);
    if (browser_->IsOpen()) return;
    CloseBrowser();
    screen_->TypeName("defaults");
    screen_->EnterName();
}

FileBrowser& ConsoleSession::OpenBrowser() {
    if (browser_) return *browser_;
    if (!State().templateBeingSet && State().openDoes != OpenDoes::OpenJob)
        throw NotAllowed("a job is on the screen, cmdOpen reads " + State().cmdOpen.caption);
    Click(State().templateBeingSet ? "cmdTemplate" : "cmdOpen");
    if (!browser_) throw NotAllowed("the job folder cannot be read, the settings show its path");
    return *browser_;
}

void ConsoleSession::SelectEntry(std::string_view name) {
    if (!browser_->Select(name)) throw NotAllowed("the browser lists no entry \"" + std::string(name) + "\"");
}

void ConsoleSession::CloseBrowser() {
    browser_.reset();
    if (screen_->BrowserOpen()) screen_->CloseBrowser();
}

void ConsoleSession::EscapeBrowser() {
    const bool templates = browser_ && browser_->ListsTemplates();
    CloseBrowser();
    if (templates) screen_->Click("cmdReset");
}

void ConsoleSession::ForgetClosedBrowser() {
    if (!screen_->BrowserOpen()) browser_.reset();
}

}  // namespace quillmark::cli
