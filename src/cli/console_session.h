#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "cli/console_dialogs.h"
#include "cli/console_printers.h"
#include "platform/clock.h"
#include "platform/machine.h"
#include "session/main_screen.h"
#include "tools/browser/file_browser.h"

namespace quillmark::cli {

/// Opens nothing, as there may be no display: it tells on `err` what would have been opened. Programs are
/// started as asked.
class ConsoleShell final : public Shell {
 public:
    explicit ConsoleShell(std::ostream& err) : err_(err) {}
    std::filesystem::path FolderOf(SpecialFolder folder) override;
    void Open(const std::string& fileOrAddress) override;
    void Start(const std::filesystem::path& program, const std::vector<std::string>& arguments) override;

 private:
    std::ostream& err_;
    SystemShell system_;
};

/// Prints on `err`, under a line that names the job.
class ConsolePrinter final : public Printer {
 public:
    explicit ConsolePrinter(std::ostream& err) : err_(err) {}
    void Print(const PrintJob& job) override;

 private:
    std::ostream& err_;
};

/// The main screen with the windows that it opens, as one person at it uses them.
class ConsoleSession {
 public:
    /// Throws FileError if there is no such program folder.
    ConsoleSession(const ConsoleOrder& order, std::ostream& err);

    MainScreen& screen() { return *screen_; }
    const ScreenState& State() const { return screen_->State(); }
    ConsoleDialogs& dialogs() { return dialogs_; }

    /// The browser that stands open, null if there is none.
    FileBrowser* browser() { return browser_ ? &*browser_ : nullptr; }
    /// A click on a button; the browser then stands open if the button is one that opens it.
    void Click(std::string_view button);

    /// The browser, opened by its button unless it stands open: by TEMPLATES while a template is being set,
    /// else by OPEN. Throws NotAllowed, also where its folder cannot be read; the settings then show.
    FileBrowser& OpenBrowser();
    /// Selects that entry. Throws NotAllowed if it is not listed.
    void SelectEntry(std::string_view name);
    /// Closes the browser, if it is open, without any further effect.
    void CloseBrowser();
    /// Closes the browser as Escape does: RESET follows where it lists templates.
    void EscapeBrowser();
    /// Lets go of a browser that the main screen has closed.
    void ForgetClosedBrowser();

 private:
    void ShowBrowser();

    ConsoleDialogs dialogs_;
    ConsoleShell shell_;
    ConsolePrinter printer_;
    ConsolePrinters printers_;
    std::unique_ptr<Clock> clock_;
    std::optional<MainScreen> screen_;
    std::optional<FileBrowser> browser_;
};

}  // namespace quillmark::cli
