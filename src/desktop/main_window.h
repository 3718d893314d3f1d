#pragma once

#include <QStackedWidget>
#include <QWidget>

#include "desktop/appearance.h"
#include "desktop/companion_flow.h"
#include "desktop/companions/settings_view.h"
#include "desktop/desk.h"
#include "desktop/document_panel.h"
#include "desktop/grid_editors.h"
#include "desktop/grid_view.h"
#include "desktop/guidance_bar.h"
#include "desktop/jump_bar.h"
#include "desktop/main_buttons.h"
#include "desktop/name_panel.h"
#include "desktop/option_panel.h"
#include "desktop/progress_panel.h"
#include "desktop/view_controls.h"
#include "session/window_placement.h"

namespace quillmark::desktop {

/// The main screen: shows the session's state after every command, and passes clicks and keys to it.
class MainWindow final : public QWidget {
    Q_OBJECT

 public:
    /// Both must outlive the window.
    MainWindow(MainScreen& screen, DocumentOpener& opener);

    /// Every panel as the state has it now.
    void ShowState();
    /// In the middle of a command: shows the state at once, while the command goes on.
    void ShowProgress();

    void Restore(const WindowPlacement& placement);
    WindowPlacement Placement() const;

    Desk& CommandDesk() { return desk_; }
    Appearance& Look() { return appearance_; }

 Q_SIGNALS:
    void Closed();

 protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void Arrange();
    QWidget* MakeLeft();
    QWidget* MakeRight();
    QLayout* MakeButtonRow(QWidget* parent);
    QWidget* MakeWelcome();
    QLayout* MakeFooter(QWidget* parent);
    QWidget* MakeMore(QWidget* parent);
    void SetTabOrder();
    void Connect();
    void AddShortcuts();
    void ShowTitle();
    void ShowPage();
    void ShowCounters();
    void ShowFocus();
    void FocusMoved(QWidget* from, QWidget* to);
    ScreenFocus FocusOf(const QWidget* widget) const;
    QWidget* WidgetOf(ScreenFocus focus) const;
    void FitToFont();

    Appearance appearance_;
    Desk desk_;
    MainButtons buttons_;
    CompanionFlow flow_;
    NamePanel* name_;
    OptionPanel* options_;
    DocumentPanel* documents_;
    JumpBar* jump_;
    GuidanceBar* guidance_;
    QStackedWidget* pages_;
    GridView* grid_;
    SettingsView* List3_;
    QWidget* welcome_;
    GridEditors* editors_;
    ProgressPanel* progress_;
    ViewControls* view_;
    QLabel* counters_;
    QWidget* left_ = nullptr;
    std::vector<QPushButton*> topButtons_;
    bool showing_ = false;
};

}  // namespace quillmark::desktop
