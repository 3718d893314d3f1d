#include "desktop/side_windows/browser_window.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/side_windows/address_window.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/recent_list.h"
#include "desktop/toolkit/side_window.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

BrowserWindow::BrowserWindow(MainScreen& screen, FileBrowser& browser, QWidget* parent)
    : SideWindow(parent, browser.State().title), screen_(screen), browser_(browser) {
    setObjectName(QStringLiteral("Browser"));
    Mnemonics keys;
    caption_ = new QLabel(keys.Mark("Search text"), this);
    search_ = new QLineEdit(this);
    search_->setClearButtonEnabled(true);
    caption_->setBuddy(search_);
    Describe(search_, QStringLiteral("Search text"), Shown(browser_.State().status));
    const char* name = browser_.ListsTemplates() ? "Client templates" : "Job files";
    list_ = new LinesView(browser_.State().List1, QString::fromLatin1(name), this);
    AddRecent();
    AddButtons(keys);
    Arrange();
    Connect();
    Refresh();
    search_->setFocus();
    ResizeTo(90, 32);
}

/// The jobs last worked on come first: one of them it is, more often than not.
void BrowserWindow::AddRecent() {
    constexpr std::size_t kMost = 6;
    recent_ = new RecentList(tr("Recent jobs"), this);
    if (!browser_.ListsTemplates()) recent_->Fill(screen_.RecentJobs(), kMost);
    recent_->setVisible(!recent_->IsEmpty());
    On(recent_, &RecentList::Opened, this, [this](const std::string& job) {
        screen_.LoadJob(job, false);
        LeaveAfter();
    });
}

void BrowserWindow::AddButtons(Mnemonics& keys) {
    const auto add = [&](const Button& button) {
        auto* widget = new QPushButton(this);
        widget->setAutoDefault(false);
        Caption(widget, button, keys);
        return widget;
    };
    cmdAttorneys_ = add(browser_.State().cmdAttorneys);
    cmdServicers_ = add(browser_.State().cmdServicers);
    cmdSpawn_ = add(browser_.State().cmdSpawn);
    lblCancel_ = add(browser_.State().lblCancel);
}

void BrowserWindow::Arrange() {
    auto* searching = new QHBoxLayout;
    searching->addWidget(caption_);
    searching->addWidget(search_);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdAttorneys_);
    buttons->addWidget(cmdServicers_);
    buttons->addStretch();
    buttons->addWidget(cmdSpawn_);
    buttons->addWidget(lblCancel_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(searching);
    layout->addWidget(recent_);
    layout->addWidget(list_, 1);
    layout->addLayout(buttons);
    layout->addWidget(NewGuidance(this, browser_.State().status));
}

void BrowserWindow::Connect() {
    search_->installEventFilter(this);
    list_->installEventFilter(this);
    On(search_, &QLineEdit::textChanged, this, [this](const QString& text) { Search(text); });
    On(list_, &LinesView::LineSelected, this, [this](int line) {
        browser_.Select(static_cast<std::size_t>(line));
        Refresh();
    });
    On(list_, &LinesView::LineOpened, this, [this] { Load(); });
    On(cmdSpawn_, &QPushButton::clicked, this, [this] { Spawn(); });
    On(cmdAttorneys_, &QPushButton::clicked, this,
       [this] { ShowAddressEditor(AddressBook::Attorneys, screen_, this); });
    On(cmdServicers_, &QPushButton::clicked, this,
       [this] { ShowAddressEditor(AddressBook::Servicers, screen_, this); });
    On(lblCancel_, &QPushButton::clicked, this, [this] { reject(); });
}

void BrowserWindow::Search(const QString& text) {
    list_->Update([&] { browser_.SearchFiles(Utf8(text)); });
    recent_->setVisible(text.isEmpty() && !recent_->IsEmpty());
    Refresh();
}

void BrowserWindow::Refresh() {
    const BrowserState& state = browser_.State();
    setWindowTitle(Shown(state.title));
    ShowButton(cmdAttorneys_, state.cmdAttorneys);
    ShowButton(cmdServicers_, state.cmdServicers);
    ShowButton(lblCancel_, state.lblCancel);
    ShowButton(cmdSpawn_, state.cmdSpawn);
    MarkUnusual(cmdSpawn_, state.cmdSpawn.enabled);
}

/// Enter without a selected line selects the first one, and takes it when it is the only one.
void BrowserWindow::Load() {
    const std::vector<std::string>& lines = browser_.State().List1;
    if (!browser_.State().entry && !lines.empty()) {
        list_->SelectLine(0);
        if (lines.size() > 1) return;
    }
    if (!browser_.State().entry) return;
    screen_.LoadJob(browser_.Selected(), browser_.ListsTemplates());
    LeaveAfter();
}

void BrowserWindow::Spawn() {
    screen_.Spawn(browser_.Selected());
    LeaveAfter();
}

void BrowserWindow::LeaveAfter() {
    if (!screen_.BrowserOpen()) accept();
}

void BrowserWindow::Delete() {
    list_->Update([this] { browser_.DeleteSelected(); });
    Refresh();
}

void BrowserWindow::reject() {
    Guarded(this, [this] {
        if (screen_.BrowserOpen()) screen_.CloseBrowser();
        if (browser_.ListsTemplates()) screen_.Click("cmdReset");
    });
    QDialog::reject();
}

bool BrowserWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return SideWindow::eventFilter(watched, event);
    bool taken = false;
    const bool done = Guarded(this, [&] { taken = TakeKey(watched, static_cast<QKeyEvent&>(*event)); });
    return taken || !done;
}

bool BrowserWindow::TakeKey(QObject* watched, QKeyEvent& key) {
    if (key.key() == Qt::Key_Delete && key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
        Delete();
        return true;
    }
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
        Load();
        return true;
    }
    if (watched == search_) {
        switch (key.key()) {
            case Qt::Key_Up:
            case Qt::Key_Down:
            case Qt::Key_PageUp:
            case Qt::Key_PageDown:
                list_->setFocus();
                if (!browser_.State().entry && key.key() == Qt::Key_Down) {
                    list_->SelectLine(0);
                    return true;
                }
                QCoreApplication::sendEvent(list_, &key);
                return true;
            default:
                return false;
        }
    }
    const bool typed = !key.text().isEmpty() && key.text().front().isPrint() &&
                       !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!typed && key.key() != Qt::Key_Backspace) return false;
    QCoreApplication::sendEvent(search_, &key);
    return true;
}

bool ShowBrowser(MainScreen& screen, QWidget* parent) {
    const bool templates = screen.State().mode == ScreenMode::Presets;
    FileBrowser browser(screen.FirmAround().folders, templates, screen.Person());
    if (!browser.IsOpen()) {
        screen.CloseBrowser();
        screen.TypeName("defaults");
        screen.EnterName();
        return false;
    }
    BrowserWindow(screen, browser, parent).exec();
    return true;
}

}  // namespace quillmark::desktop
