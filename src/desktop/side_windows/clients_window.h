#pragma once

#include <QString>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"

class QPushButton;

namespace quillmark {
class MainScreen;
}

namespace quillmark::desktop {

class LinesView;

/// The choice of the law firm that an independent paralegal works for. Enter or a double click chooses,
/// Delete deletes a client.
class ClientsWindow final : public SideWindow {
 public:
    /// `screen` must outlive the window.
    ClientsWindow(MainScreen& screen, QWidget* parent);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QPushButton* NewButton(std::string_view caption, std::string_view tip, Mnemonics& keys);
    void Choose();
    void Delete();
    void Refresh();
    std::string Client() const;

    MainScreen& screen_;
    LinesView* Combo3_;
    QPushButton* choose_;
    QPushButton* delete_;
};

/// Shows the clients while the main screen waits for one to be chosen. False if the window was closed without
/// a choice: the screen is still waiting.
bool ShowClients(MainScreen& screen, QWidget* parent);

}  // namespace quillmark::desktop
