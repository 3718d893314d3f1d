#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <vector>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"
#include "tools/backup/backup_window.h"

class QBoxLayout;
class QComboBox;
class QProgressBar;
class QPushButton;

namespace quillmark {
class MainScreen;
}

namespace quillmark::desktop {

class LinesView;

/// Backup and restore as a person sees them. The copying goes on beside the window, which shows how far it is
/// and can be told to give up.
class BackupDialog final : public SideWindow {
 public:
    /// `model` must outlive the window.
    BackupDialog(BackupWindow& model, QWidget* parent);

    /// Gives up the copying that goes on; else closes.
    void reject() override;

 private:
    void AddDrive(QBoxLayout& layout, Mnemonics& keys);
    void AddLists(QBoxLayout& layout, Mnemonics& keys);
    void AddProgress(QBoxLayout& layout, Mnemonics& keys);
    void AddButtons(QBoxLayout& layout, Mnemonics& keys);
    QPushButton* NewButton(const char* name, Mnemonics& keys);
    template <class Act>
    void Do(Act act);
    void Refresh();
    void ShowDrives(const WindowControl& control);

    /// Runs a copying in a thread of its own and lets the window live until it is over.
    void Carry(const BackupWindow::Copying& copying);
    void ShowProgress();

    BackupWindow& model_;
    QWidget* controls_;
    QComboBox* Drive1_;
    QLabel* path_;
    QLabel* there_;
    std::vector<std::string> backups_;
    LinesView* List1_;
    QLabel* missing_;
    QWidget* progress_;
    QLabel* stage_;
    QProgressBar* bar_;
    QPushButton* cancel_;
    std::vector<QPushButton*> buttons_;
    bool showing_ = false;
    bool acting_ = false;  ///< an act of the person is being carried out
    bool copying_ = false;
    std::atomic<bool> canceled_ = false;
    std::mutex guard_;
    CopyProgress now_;  ///< of the copying, written by its thread
};

/// Shows the backup window that the main screen has opened, until it is left.
void ShowBackup(MainScreen& screen, QWidget* parent);

}  // namespace quillmark::desktop
