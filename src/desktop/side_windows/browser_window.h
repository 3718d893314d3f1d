#pragma once

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"
#include "session/main_screen.h"
#include "tools/browser/file_browser.h"

class QLineEdit;
class QPushButton;

namespace quillmark::desktop {

class LinesView;
class RecentList;

/// The window that lists jobs or client templates, over the main screen that has opened it. What is typed
/// narrows the list wherever the focus is; the arrow keys go to the list.
class BrowserWindow final : public SideWindow {
 public:
    /// Both must outlive the window.
    BrowserWindow(MainScreen& screen, FileBrowser& browser, QWidget* parent);

    /// Escape and the close box: a window of templates leaves the template that was being set.
    void reject() override;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void AddButtons(Mnemonics& keys);
    void Arrange();
    void Connect();
    void Search(const QString& text);
    void Refresh();
    void AddRecent();
    void Load();
    void Spawn();
    void Delete();
    void LeaveAfter();
    bool TakeKey(QObject* watched, QKeyEvent& key);

    MainScreen& screen_;
    FileBrowser& browser_;
    QLabel* caption_;
    QLineEdit* search_;
    RecentList* recent_;  ///< until something is sought
    LinesView* list_;
    QPushButton* cmdAttorneys_;
    QPushButton* cmdServicers_;
    QPushButton* cmdSpawn_;
    QPushButton* lblCancel_;
};

/// Shows the browser that the main screen has just opened, until it is closed. False where the job folder
/// cannot be read: the settings then show, and the row of the data path is the one to be selected.
bool ShowBrowser(MainScreen& screen, QWidget* parent);

}  // namespace quillmark::desktop
