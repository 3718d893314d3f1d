#pragma once

#include <QPointer>
#include <QWidget>
#include <string_view>

#include "desktop/side_windows/calculator_window.h"
#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// What follows when a button of the main screen leads to another window.
class SideWindowFlow final : public QObject {
    Q_OBJECT

 public:
    SideWindowFlow(Desk& desk, QWidget& window);

    /// A click on the main screen's button of that name, and the window it leads to.
    void Press(std::string_view name);
    /// CUSTOM, with this document as what is to be imported.
    void ImportForm(const QString& document);
    void OpenAddresses(AddressBook book);
    void OpenCalculator();
    void OpenBackup();
    /// The name box leads to it too.
    void ShowBackupIfOpen();
    /// After a command: shows the choice of a law firm while the screen waits for it, and lets a calculator
    /// that has done its work go.
    void Follow();

 Q_SIGNALS:
    /// The row of the data path is the one to be looked at.
    void PathWanted();

 private:
    void ShowBrowserIfOpen();
    void EditPackages();
    void PressCustom(const QString& source);

    Desk& desk_;
    QWidget& window_;
    QPointer<CalculatorWindow> calculator_;
    bool choosing_ = false;
};

}  // namespace quillmark::desktop
