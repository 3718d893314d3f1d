#include "desktop/companion_flow.h"

#include "desktop/companions/address_window.h"
#include "desktop/companions/browser_window.h"
#include "desktop/companions/clients_window.h"
#include "desktop/companions/packages_window.h"

namespace quillmark::desktop {

CompanionFlow::CompanionFlow(Desk& desk, DocumentOpener& opener, QWidget& window)
    : QObject(&window), desk_(desk), opener_(opener), window_(window) {}

void CompanionFlow::Press(std::string_view name) {
    if (name == "cmdPackages") return EditPackages();
    if (!desk_.Do([name](MainScreen& screen) { screen.Click(name); })) return;
    ShowBrowserIfOpen();
    if (name == "cmdCreate") OpenDocument();
}

void CompanionFlow::ShowBrowserIfOpen() {
    if (!desk_.Screen().BrowserOpen()) return;
    bool listed = true;
    desk_.Do([&](MainScreen& screen) { listed = ShowBrowser(screen, &window_); });
    if (!listed) Q_EMIT PathWanted();
}

void CompanionFlow::EditPackages() {
    bool toCustomDocuments = false;
    desk_.Do([&](MainScreen& screen) { toCustomDocuments = ShowPackageEditor(screen, &window_); });
    if (toCustomDocuments) Press("cmdCustom");
}

void CompanionFlow::OpenAddresses(AddressBook book) {
    desk_.Do([&](MainScreen& screen) { ShowAddressEditor(book, screen, &window_); });
}

void CompanionFlow::OpenCalculator() {
    if (calculator_) return calculator_->activateWindow();
    desk_.Do([&](MainScreen& screen) { calculator_ = ShowCalculator(screen, &window_); });
    if (!calculator_) return;
    connect(calculator_, &CalculatorWindow::HandedOver, this, [this] {
        Q_EMIT desk_.Changed();
        window_.activateWindow();
    });
}

void CompanionFlow::Follow() {
    if (calculator_) calculator_->Follow();
    if (choosing_ || !desk_.Screen().ChoosingClient() || desk_.Screen().HasEnded()) return;
    choosing_ = true;
    bool chosen = false;
    desk_.Do([&](MainScreen& screen) { chosen = ShowClients(screen, &window_); });
    choosing_ = false;
    if (!chosen && desk_.Screen().ChoosingClient()) window_.close();
}

void CompanionFlow::OpenDocument() {
    if (const auto document = desk_.Screen().LastDocument()) opener_.Open(*document, window_);
}

}  // namespace quillmark::desktop
