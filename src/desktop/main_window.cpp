#include "desktop/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>

#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr double kTwipsPerPixel = 15;
constexpr std::size_t kPathRow = 11;  ///< of List3
constexpr QSize kFirstSize(1240, 680);
constexpr QSize kLargestFirstSize(1680, 1000);

/// Most of the screen, unless that is a large one.
QSize FirstSizeOn(const QScreen& screen) {
    const QSize available = screen.availableSize();
    return (available * 9 / 10).boundedTo(kLargestFirstSize).expandedTo(kFirstSize).boundedTo(available);
}

/// The one job's file or form that is dragged; empty for anything else.
QString DraggedFile(const QMimeData* data) {
    if (!data->hasUrls() || data->urls().size() != 1) return {};
    const QString file = data->urls().front().toLocalFile();
    for (const char* ending : {".dat", ".docx", ".docm", ".dotx", ".doc"})
        if (file.endsWith(QLatin1String(ending), Qt::CaseInsensitive)) return file;
    return {};
}

bool IsWithin(const QWidget* widget, const QWidget* part) {
    return part && (widget == part || part->isAncestorOf(widget));
}

}  // namespace

MainWindow::MainWindow(MainScreen& screen)
    : appearance_(*this), desk_(screen, *this), buttons_(desk_, appearance_, this), flow_(desk_, *this) {
    setObjectName(QStringLiteral("Form1"));
    Arrange();
    editors_ = new GridEditors(desk_, *grid_, *this);
    progress_ = new ProgressPanel(desk_, this);
    reasons_ = new GreyReasons(desk_, *this);
    finishFlow_ = new FinishFlow(desk_, *finish_, *preview_, *this);
    Connect();
    AddShortcuts();
    setAcceptDrops(true);
    SetTabOrder();
    resize(FirstSizeOn(*QWidget::screen()));
    ShowState();
}

void MainWindow::Connect() {
    connect(&desk_, &Desk::Changed, this, [this] {
        ShowState();
        flow_.Follow();
        finishFlow_->Follow();
    });
    connect(&desk_, &Desk::Refused, guidance_, &GuidanceBar::ShowRefusal);
    connect(reasons_, &GreyReasons::Asked, guidance_, &GuidanceBar::ShowRefusal);
    connect(&buttons_, &MainButtons::Pressed, &flow_, &SideWindowFlow::Press);
    connect(name_, &NamePanel::LedElsewhere, &flow_, &SideWindowFlow::ShowBackupIfOpen);
    connect(&flow_, &SideWindowFlow::PathWanted, this, [this] { List3_->SelectRow(kPathRow); });
    connect(List3_, &SettingsView::RowSelected, this, [this](std::size_t row) {
        if (!showing_) desk_.DoQuietly([row](MainScreen& screen) { screen.SelectSetting(row); });
    });
    connect(List3_, &SettingsView::RowOpened, this,
            [this](std::size_t row) { desk_.Do([row](MainScreen& screen) { screen.EditSetting(row); }); });
    connect(preview_, &PreviewPane::RowWanted, this, &MainWindow::GoToField);
    connect(preview_, &PreviewPane::CloseWanted, this, [this] { ShowPreview(false); });
    connect(finishFlow_, &FinishFlow::RowWanted, this, &MainWindow::GoToBlank);
    connect(find_, &FindBar::RowWanted, this, &MainWindow::GoToRow);
    connect(find_, &FindBar::Left, this, [this] { grid_->setFocus(); });
    connect(recent_, &RecentList::Opened, this,
            [this](const std::string& job) { desk_.Do([&](MainScreen& screen) { screen.OpenJob(job); }); });
    connect(view_, &ViewControls::Dimmed, this, &MainWindow::ShowState);
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::FocusMoved);
}

void MainWindow::AddShortcuts() {
    const auto add = [this](QKeySequence key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    const auto control = [](Qt::Key key) { return QKeySequence(QKeyCombination(Qt::ControlModifier, key)); };
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal}) add(control(key), [this] { view_->Resize(1); });
    add(control(Qt::Key_Minus), [this] { view_->Resize(-1); });
    add(control(Qt::Key_0), [this] { view_->Resize(0); });
    add(control(Qt::Key_Return), [this] { flow_.Press("cmdCreate"); });
    add(control(Qt::Key_O), [this] { flow_.Press("cmdOpen"); });
    add(QKeySequence::Save, [this] {
        if (desk_.State().Saves()) flow_.Press("cmdOpen");
    });
    add(Qt::Key_F9, [this] { flow_.OpenCalculator(); });
    add(QKeySequence::Undo, [this] { desk_.Do([](MainScreen& screen) { screen.Undo(); }); });
    add(control(Qt::Key_Y), [this] { desk_.Do([](MainScreen& screen) { screen.Redo(); }); });
    add(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
        [this] { desk_.Do([](MainScreen& screen) { screen.Redo(); }); });
    add(QKeySequence::Find, [this] { find_->Open(); });
    add(control(Qt::Key_L), [this] {
        if (documents_->Filter()->isEnabled()) documents_->Filter()->setFocus(Qt::ShortcutFocusReason);
    });
    add(control(Qt::Key_B), [this] { finishFlow_->ShowBlanks(); });
    add(Qt::Key_F6, [this] { ShowPreview(!PreviewShown()); });
}

void MainWindow::ShowState() {
    if (showing_) return;
    showing_ = true;
    name_->Show();
    options_->Show();
    documents_->Show();
    buttons_.Show();
    jump_->Show();
    guidance_->Show();
    finish_->Show();
    find_->Show();
    ShowPage();
    editors_->Show();
    ShowCounters();
    progress_->Show();
    ShowTitle();
    ShowFocus();
    ShowHistory();
    reasons_->Show();
    preview_->Show();
    showing_ = false;
    if (desk_.Screen().HasEnded()) close();
}

void MainWindow::ShowProgress() {
    ShowState();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindow::ShowTitle() {
    QString title =
        QStringLiteral("Quillmark - v 3.78 ct - Real Estate Document Generator for Microsoft Word");
    const std::string& client = desk_.Screen().Client();
    if (!client.empty()) title += QStringLiteral("   servicing\\   ") + Shown(client);
    if (desk_.State().testMode) title = QStringLiteral("Quillmark - CUSTOM FORMS TEST MODE");
    if (windowTitle() != title) setWindowTitle(title);
}

void MainWindow::ShowPage() {
    const ScreenState& state = desk_.State();
    if (desk_.Screen().SettingsListShown()) List3_->ShowRows(desk_.Screen().List3());
    grid_->Show();
    QWidget* page = state.grid.empty() ? welcome_ : grid_;
    if (desk_.Screen().SettingsListShown()) page = List3_;
    pages_->setCurrentWidget(page);
    ShowRecent();
    grid_->setEnabled(!state.waiting);
}

/// While no job has been begun. Read when the first screen comes, not at every key.
void MainWindow::ShowRecent() {
    const ScreenState& state = desk_.State();
    const bool isFirst = pages_->currentWidget() == welcome_ && state.openDoes == OpenDoes::OpenJob &&
                         state.cmdOpen.enabled && state.txtJobName.text.empty();
    if (isFirst == recentJobs_->isVisibleTo(welcome_) && !recent_->IsEmpty()) return;
    constexpr std::size_t kMost = 6;
    if (isFirst) recent_->Fill(desk_.Screen().RecentJobs(), kMost);
    recentJobs_->setVisible(isFirst && !recent_->IsEmpty());
}

void MainWindow::ShowCounters() {
    const ScreenState& state = desk_.State();
    const bool counts = !state.grid.empty() && state.mode == ScreenMode::Job;
    counters_->setText(counts ? tr("total flds %1   remaining %2").arg(state.total).arg(state.remaining)
                              : QString());
}

void MainWindow::ShowPreview(bool shown) {
    panes_->PreferPage(shown);
    panes_->WantPage(shown);
}

void MainWindow::GoToField(int n) {
    const auto& rows = desk_.State().grid;
    const auto found = std::ranges::find_if(
        rows, [n](const GridRow& row) { return row.kind == RowKind::Field && row.n == n; });
    if (found == rows.end())
        return Tell(tr("No row asks for this value: it follows from others, or CREATE asks for it"));
    GoToRow(static_cast<std::size_t>(found - rows.begin()));
}

void MainWindow::GoToBlank(const Blank& blank) {
    activateWindow();
    if (blank.n > 0) return GoToField(blank.n);
    const auto& rows = desk_.State().grid;
    const auto found = std::ranges::find_if(rows, [&](const GridRow& row) {
        return row.kind == RowKind::User && row.label.starts_with(blank.marker);
    });
    if (found != rows.end()) GoToRow(static_cast<std::size_t>(found - rows.begin()));
}

/// As a click on the row does, which first has to be in sight.
void MainWindow::GoToRow(std::size_t index) {
    const auto row = static_cast<int>(index);
    desk_.Do([row](MainScreen& screen) {
        screen.LoseFocus(ScreenFocus::Grid);
        const GridEditorState& editor = screen.Editor();
        if (row < editor.topRow || row >= editor.topRow + editor.rowsOnScreen)
            screen.ScrollTo(std::max(0, row - editor.rowsOnScreen / 2));
        screen.ClickGrid(row, GridModel::kValue);
    });
}

QWidget* MainWindow::WidgetOf(ScreenFocus focus) const {
    switch (focus) {
        case ScreenFocus::NameBox:
            if (desk_.Screen().SettingsListShown()) return List3_;
            return name_->Box();
        case ScreenFocus::Documents:
            return documents_->Catalogue();
        case ScreenFocus::Grid:
            return pages_->currentWidget() == grid_ ? grid_ : nullptr;
        case ScreenFocus::Editor:
            return editors_->Editor();
        case ScreenFocus::Calendar:
            return editors_->Calendar();
        case ScreenFocus::Choices:
            return editors_->Choices();
        case ScreenFocus::AddressBook:
            return editors_->Records();
        case ScreenFocus::Buttons:
        case ScreenFocus::Elsewhere:
            return nullptr;
    }
    return nullptr;
}

ScreenFocus MainWindow::FocusOf(const QWidget* widget) const {
    if (IsWithin(widget, editors_->Editor())) return ScreenFocus::Editor;
    if (IsWithin(widget, editors_->Calendar())) return ScreenFocus::Calendar;
    if (IsWithin(widget, editors_->Choices())) return ScreenFocus::Choices;
    if (IsWithin(widget, editors_->Records())) return ScreenFocus::AddressBook;
    if (IsWithin(widget, grid_)) return ScreenFocus::Grid;
    if (widget == name_->Box()) return ScreenFocus::NameBox;
    if (IsWithin(widget, documents_) || IsWithin(widget, options_)) return ScreenFocus::Documents;
    const bool isButton = std::find(topButtons_.begin(), topButtons_.end(), widget) != topButtons_.end();
    return isButton ? ScreenFocus::Buttons : ScreenFocus::Elsewhere;
}

/// The keyboard goes where the session has it.
void MainWindow::ShowFocus() {
    const ScreenFocus focus = desk_.Editor().focus;
    const QWidget* now = focusWidget();
    QWidget* wanted = WidgetOf(focus);
    const bool hasIt = now && now->isEnabled() && now->isVisible() && FocusOf(now) == focus;
    if (focus == ScreenFocus::Documents) panes_->PreferPage(false);
    if (!wanted || !wanted->isEnabled() || hasIt) return;
    wanted->setFocus(Qt::OtherFocusReason);
}

/// The session hears of every move of the keyboard that the person makes.
void MainWindow::FocusMoved(QWidget*, QWidget* to) {
    if (showing_ || desk_.IsBusy() || !to || !isAncestorOf(to)) return;
    const ScreenFocus focus = FocusOf(to);
    if (focus != desk_.Editor().focus)
        desk_.DoQuietly([focus](MainScreen& screen) { screen.LoseFocus(focus); });
    if (to == name_->Box()) {
        desk_.DoQuietly([](MainScreen& screen) { screen.FocusName(); });
        if (!name_->Box()->isReadOnly()) name_->Box()->selectAll();
    }
    if (to == documents_->Catalogue() || to == documents_->Filter())
        desk_.DoQuietly([](MainScreen& screen) { screen.FocusList1(); });
    if (to == documents_->Documents()) desk_.DoQuietly([](MainScreen& screen) { screen.FocusList2(); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!desk_.Screen().HasEnded()) desk_.Do([](MainScreen& screen) { screen.Close(); });
    if (!desk_.Screen().HasEnded()) return event->ignore();
    event->accept();
    Q_EMIT Closed();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!DraggedFile(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString file = DraggedFile(event->mimeData());
    if (file.isEmpty()) return;
    event->acceptProposedAction();
    // When the program that the file comes from has its pointer back: a box may follow.
    QMetaObject::invokeMethod(
        this, [this, file] { Q_EMIT Dropped(file); }, Qt::QueuedConnection);
}

void MainWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && left_) FitToFont();
    if (event->type() == QEvent::ThemeChange) SetTheme(theme_);
}

void MainWindow::SetTheme(ThemeChoice choice) {
    theme_ = choice;
    ApplyTheme(choice);
    appearance_.TakePalette();
    themes_->actions().at(static_cast<int>(choice))->setChecked(true);
    ShowState();
}

void MainWindow::Restore(const WindowPlacement& placement) {
    view_->Dim(static_cast<int>(placement.slider));
    appearance_.SetScale(static_cast<int>(placement.scale * 100 + 0.5));
    view_->ShowScale();
    const QRect wanted(static_cast<int>(placement.left / kTwipsPerPixel),
                       static_cast<int>(placement.top / kTwipsPerPixel),
                       static_cast<int>(placement.width / kTwipsPerPixel),
                       static_cast<int>(placement.height / kTwipsPerPixel));
    const QScreen* on = QApplication::screenAt(wanted.center());
    const QRect available = (on ? on : QWidget::screen())->availableGeometry();
    resize(wanted.size().expandedTo(minimumSizeHint()).boundedTo(available.size()));
    move(std::clamp(wanted.left(), available.left(), std::max(available.left(), available.right() - width())),
         std::clamp(wanted.top(), available.top(), std::max(available.top(), available.bottom() - height())));
}

WindowPlacement MainWindow::Placement() const {
    const QRect place(isMaximized() ? normalGeometry() : QRect(pos(), size()));
    return {.height = place.height() * kTwipsPerPixel,
            .left = place.left() * kTwipsPerPixel,
            .top = place.top() * kTwipsPerPixel,
            .width = place.width() * kTwipsPerPixel,
            .scale = appearance_.Scale() / 100.0,
            .slider = static_cast<double>(appearance_.Dimming())};
}

}  // namespace quillmark::desktop
