#pragma once

#include <QActionGroup>
#include <QStackedWidget>
#include <QToolButton>
#include <QWidget>

#include "desktop/finish_flow.h"
#include "desktop/grid/grid_editors.h"
#include "desktop/grid/grid_view.h"
#include "desktop/panels/document_panel.h"
#include "desktop/panels/find_bar.h"
#include "desktop/panels/finish_panel.h"
#include "desktop/panels/grey_reasons.h"
#include "desktop/panels/guidance_bar.h"
#include "desktop/panels/jump_bar.h"
#include "desktop/panels/main_buttons.h"
#include "desktop/panels/name_panel.h"
#include "desktop/panels/option_panel.h"
#include "desktop/panels/progress_panel.h"
#include "desktop/panels/settings_view.h"
#include "desktop/panels/view_controls.h"
#include "desktop/panes.h"
#include "desktop/preview/preview_pane.h"
#include "desktop/side_window_flow.h"
#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/desk.h"
#include "desktop/toolkit/recent_list.h"
#include "session/window_placement.h"

class QSplitter;

namespace quillmark::desktop {

/// The main screen: shows the session's state after every command, and passes clicks and keys to it.
class MainWindow final : public QWidget {
    Q_OBJECT

 public:
    /// `screen` must outlive the window.
    explicit MainWindow(MainScreen& screen);

    /// Every panel as the state has it now.
    void ShowState();
    /// In the middle of a command: shows the state at once, while the command goes on.
    void ShowProgress();

    /// A notice on the guidance bar, until the next command.
    void Tell(const QString& notice) { guidance_->ShowRefusal(notice); }

    void Restore(const WindowPlacement& placement);
    WindowPlacement Placement() const;

    /// Light or dark, or as the desktop is.
    void SetTheme(ThemeChoice choice);
    ThemeChoice Theme() const { return theme_; }

    /// The live page beside the grid; in a narrow window it takes the place of the documents.
    void ShowPreview(bool shown);
    bool PreviewShown() const { return !preview_->isHidden(); }
    PreviewPane& Preview() { return *preview_; }
    Panes& PaneWidths() { return *panes_; }

    /// The custom forms manager with this document as what is to be imported.
    void ImportForm(const QString& document) { flow_.ImportForm(document); }

    Desk& CommandDesk() { return desk_; }
    Appearance& Look() { return appearance_; }

 Q_SIGNALS:
    void Closed();
    /// A job's file or a form was dropped onto the window.
    void Dropped(const QString& file);

 protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    void Arrange();
    QWidget* MakeLeft();
    QWidget* MakeRight(QSplitter* beside);
    QWidget* MakeWork(QWidget* parent);
    QLayout* MakeButtonRow(QWidget* parent);
    QWidget* MakeWelcome();
    QWidget* MakeRecent(QWidget* page);
    QLayout* MakeFooter(QWidget* parent);
    QWidget* MakeMore(QWidget* parent);
    void AddThemes(QMenu& menu);
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
    void GoToField(int n);
    void GoToBlank(const Blank& blank);
    void GoToRow(std::size_t row);
    QToolButton* MakeHistoryButton(const QString& name, const QString& sign, QWidget* parent,
                                   Desk::Command command);
    void ShowHistory();
    void ShowRecent();

    Appearance appearance_;
    Desk desk_;
    MainButtons buttons_;
    SideWindowFlow flow_;
    NamePanel* name_;
    OptionPanel* options_;
    DocumentPanel* documents_;
    JumpBar* jump_;
    GuidanceBar* guidance_;
    FinishPanel* finish_;
    FindBar* find_;
    QWidget* recentJobs_ = nullptr;
    RecentList* recent_ = nullptr;
    FinishFlow* finishFlow_ = nullptr;
    QStackedWidget* pages_;
    GridView* grid_;
    SettingsView* List3_;
    QWidget* welcome_;
    GridEditors* editors_;
    ProgressPanel* progress_;
    GreyReasons* reasons_;
    ViewControls* view_;
    QActionGroup* themes_ = nullptr;
    QToolButton* undo_ = nullptr;
    QToolButton* redo_ = nullptr;
    Panes* panes_ = nullptr;
    PreviewPane* preview_ = nullptr;
    ThemeChoice theme_ = ThemeChoice::System;
    QLabel* counters_;
    QWidget* left_ = nullptr;
    std::vector<QPushButton*> topButtons_;
    bool showing_ = false;
};

}  // namespace quillmark::desktop
