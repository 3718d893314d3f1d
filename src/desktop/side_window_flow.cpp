#include "desktop/side_window_flow.h"

#include "desktop/side_windows/address_window.h"
#include "desktop/side_windows/backup_dialog.h"
#include "desktop/side_windows/browser_window.h"
#include "desktop/side_windows/clients_window.h"
#include "desktop/side_windows/custom_forms_dialog.h"
#include "desktop/side_windows/envelope_dialog.h"
#include "desktop/side_windows/op236_dialog.h"
#include "desktop/side_windows/packages_window.h"
#include "desktop/toolkit/text.h"
#include "session/state/reasons.h"

namespace quillmark::desktop {

SideWindowFlow::SideWindowFlow(Desk& desk, QWidget& window)
    : QObject(&window), desk_(desk), window_(window) {}

void SideWindowFlow::Press(std::string_view name) {
    const std::string reason = WhyDisabled(name, desk_.State());
    if (!reason.empty()) return desk_.Refuse(Shown(reason));
    if (name == "cmdPackages") return EditPackages();
    if (name == "cmdCustom") return PressCustom({});
    if (!desk_.Do([name](MainScreen& screen) { screen.Click(name); })) return;
    ShowBrowserIfOpen();
    if (name == "cmdOP236") desk_.Do([this](MainScreen& screen) { ShowReturn(screen, &window_); });
    if (name == "cmdEnvelopes") desk_.Do([this](MainScreen& screen) { ShowEnvelopes(screen, &window_); });
}

void SideWindowFlow::ImportForm(const QString& document) {
    const std::string reason = WhyDisabled("cmdCustom", desk_.State());
    reason.empty() ? PressCustom(document) : desk_.Refuse(Shown(reason));
}

void SideWindowFlow::PressCustom(const QString& source) {
    if (desk_.Do([](MainScreen& screen) { screen.Click("cmdCustom"); }))
        desk_.Do([&](MainScreen& screen) { ShowCustomForms(screen, &window_, source); });
}

void SideWindowFlow::ShowBrowserIfOpen() {
    if (!desk_.Screen().BrowserOpen()) return;
    bool listed = true;
    desk_.Do([&](MainScreen& screen) { listed = ShowBrowser(screen, &window_); });
    if (!listed) Q_EMIT PathWanted();
}

void SideWindowFlow::OpenBackup() {
    if (!desk_.State().txtJobName.text.empty() || !desk_.State().List2.empty())
        return desk_.Refuse(tr("A job is on the screen: press RESET before a backup"));
    desk_.Do([](MainScreen& screen) { screen.TypeName("BACKUP"); });
    ShowBackupIfOpen();
}

void SideWindowFlow::ShowBackupIfOpen() {
    desk_.Do([this](MainScreen& screen) { ShowBackup(screen, &window_); });
}

void SideWindowFlow::EditPackages() {
    bool toCustomDocuments = false;
    desk_.Do([&](MainScreen& screen) { toCustomDocuments = ShowPackageEditor(screen, &window_); });
    if (toCustomDocuments) Press("cmdCustom");
}

void SideWindowFlow::OpenAddresses(AddressBook book) {
    desk_.Do([&](MainScreen& screen) { ShowAddressEditor(book, screen, &window_); });
}

void SideWindowFlow::OpenCalculator() {
    if (calculator_) return calculator_->activateWindow();
    desk_.Do([&](MainScreen& screen) { calculator_ = ShowCalculator(screen, &window_); });
    if (!calculator_) return;
    connect(calculator_, &CalculatorWindow::HandedOver, this, [this] {
        Q_EMIT desk_.Changed();
        window_.activateWindow();
    });
}

void SideWindowFlow::Follow() {
    if (calculator_) calculator_->Follow();
    if (choosing_ || !desk_.Screen().ChoosingClient() || desk_.Screen().HasEnded()) return;
    choosing_ = true;
    bool chosen = false;
    desk_.Do([&](MainScreen& screen) { chosen = ShowClients(screen, &window_); });
    choosing_ = false;
    if (!chosen && desk_.Screen().ChoosingClient()) window_.close();
}

}  // namespace quillmark::desktop
