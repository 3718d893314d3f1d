#include "desktop/side_windows/clients_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/lines_model.h"
#include "desktop/toolkit/side_window.h"
#include "desktop/toolkit/text.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

constexpr std::string_view kTitle = "SELECT A LAWFIRM / CLIENT ...";

ClientsWindow::ClientsWindow(MainScreen& screen, QWidget* parent)
    : SideWindow(parent, kTitle), screen_(screen) {
    setObjectName(QStringLiteral("Clients"));
    Mnemonics keys;
    auto* caption = new QLabel(keys.Mark(kTitle), this);
    Combo3_ = new LinesView(screen_.Clients(), Shown(kTitle), this);
    caption->setBuddy(Combo3_);
    choose_ = NewButton("OK", "work for this client", keys);
    delete_ = NewButton("Delete", "delete this client and all associated data", keys);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(delete_);
    buttons->addStretch();
    buttons->addWidget(choose_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(Combo3_, 1);
    layout->addLayout(buttons);
    layout->addWidget(
        NewGuidance(this, "Double-Click the law firm to work for, or press DEL to delete the selected one"));
    On(Combo3_, &LinesView::LineSelected, this, [this] { Refresh(); });
    On(Combo3_, &LinesView::LineOpened, this, [this] { Choose(); });
    On(choose_, &QPushButton::clicked, this, [this] { Choose(); });
    On(delete_, &QPushButton::clicked, this, [this] { Delete(); });
    Combo3_->installEventFilter(this);
    Refresh();
    Combo3_->setFocus();
    ResizeTo(60, 24);
}

QPushButton* ClientsWindow::NewButton(std::string_view caption, std::string_view tip, Mnemonics& keys) {
    auto* button = new QPushButton(keys.Mark(caption), this);
    button->setAutoDefault(false);
    button->setToolTip(Shown(tip));
    Describe(button, Shown(caption), Shown(tip));
    return button;
}

std::string ClientsWindow::Client() const {
    const int line = Combo3_->Line();
    return line < 0 ? std::string() : screen_.Clients()[static_cast<std::size_t>(line)];
}

void ClientsWindow::Choose() {
    const std::string client = Client();
    if (client.empty()) return;
    Combo3_->Update([&] { screen_.SelectClient(client); });
    Refresh();
    if (!screen_.ChoosingClient()) accept();
}

void ClientsWindow::Delete() {
    const std::string client = Client();
    if (Combo3_->Line() < 1) return;
    Combo3_->Update([&] { screen_.DeleteClient(client); });
    Refresh();
}

void ClientsWindow::Refresh() {
    choose_->setEnabled(Combo3_->Line() >= 0);
    delete_->setEnabled(Combo3_->Line() >= 1);
}

bool ClientsWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool deletes =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete;
    if (watched != Combo3_ || !deletes) return SideWindow::eventFilter(watched, event);
    Guarded(this, [this] { Delete(); });
    return true;
}

bool ShowClients(MainScreen& screen, QWidget* parent) {
    return ClientsWindow(screen, parent).exec() == QDialog::Accepted;
}

}  // namespace quillmark::desktop
