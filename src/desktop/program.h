#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desktop/machine/desktop_shell.h"
#include "desktop/machine/http_client.h"
#include "desktop/machine/qt_printer.h"
#include "desktop/machine/sheet_printer.h"
#include "desktop/machine/single_instance.h"
#include "desktop/main_window.h"
#include "desktop/toolkit/dialogs.h"

namespace quillmark::desktop {

/// What the command line asks for.
struct LaunchOrder {
    std::filesystem::path folder;  ///< the program folder; empty for the usual one
    std::string job;               ///< a job's name, or the path of its file; empty for none
    bool upgrade = false;          ///< run the upgrade tool and end
    bool shared = false;           ///< several copies may run
    bool lookForUpgrade = true;    ///< ask the network whether there is a newer release
};

/// Shows the state of the window before each box, so that what the box is about stands behind it.
class ShowingDialogs final : public Dialogs {
 public:
    explicit ShowingDialogs(Dialogs& shown) : shown_(shown) {}

    DialogButton Show(const MessageDialog& box) override;
    std::optional<std::string> Ask(const InputDialog& box) override;

    std::function<void()> beforeBox;

 private:
    Dialogs& shown_;
};

/// The program from its start to its end: the machine around the session, the session, its window.
class Program final : public QObject {
    Q_OBJECT

 public:
    explicit Program(LaunchOrder order);

    /// Shows the window with the name box ready, or the job that was asked for. False when the program is to
    /// end at once.
    bool Start();
    MainWindow& Window() { return *window_; }

 private:
    Machine MachineAround();
    /// True when the program folder is new; it holds the first files by then.
    bool SetUpFirstRun();
    void OpenJob();
    void LookForUpgrade();
    void KeepPlacement();
    void RestorePreview();
    void Raise();
    void TakeOver(const QString& job);

    LaunchOrder order_;
    SystemClock clock_;
    SystemShell system_;
    DesktopShell shell_{system_};
    QtHttpClient http_;
    QtPrinter printer_;
    QtPrinters printers_;
    QtSheetPrinter sheets_{shell_};
    QtDialogs boxes_;
    ShowingDialogs dialogs_{boxes_};
    std::unique_ptr<SingleInstance> instance_;
    std::unique_ptr<MainScreen> screen_;
    std::unique_ptr<MainWindow> window_;
};

/// The file of this program; empty where the system does not tell.
std::filesystem::path ProgramFile();

}  // namespace quillmark::desktop
