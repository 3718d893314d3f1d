#pragma once

#include "closing/proration_calculator.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/side_window.h"

class QDateEdit;
class QFormLayout;
class QLineEdit;
class QPushButton;

namespace quillmark {
class MainScreen;
}

namespace quillmark::desktop {

/// The proration calculator beside the grid, which stays in use under it. It closes when the main screen no
/// longer has it open.
class CalculatorWindow final : public SideWindow {
    Q_OBJECT

 public:
    /// Opens the calculator of the main screen, which must outlive the window. Throws NotAllowed.
    CalculatorWindow(MainScreen& screen, QWidget* parent);

    void reject() override;
    /// To be called after the main screen has run a command: closes the window if the calculator is gone.
    void Follow();

 Q_SIGNALS:
    /// An amount went into the grid, which is to have the keyboard.
    void HandedOver();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QDateEdit* AddDate(QFormLayout& form, std::string_view caption, Mnemonics& keys,
                       void (ProrationCalculator::*set)(std::chrono::year_month_day));
    QLineEdit* NewAmount(std::string_view caption);
    QPushButton* NewCredit(std::string_view caption, CreditTo side, Mnemonics& keys);
    QWidget* NewResults(Mnemonics& keys);
    void TypeGross(const QString& text);
    void HandOver(CreditTo side);
    void Reset();
    void Refresh();

    ProrationCalculator& calculator() const;

    MainScreen& screen_;
    QLineEdit* txtGross_;
    QDateEdit* DTPicker1_;
    QDateEdit* DTPicker2_;
    QDateEdit* DTPicker3_;
    QLabel* lblPerDiem_;
    QLineEdit* Text1_;
    QLineEdit* Text2_;
    QLabel* unpaidDays_;
    QLabel* paidDays_;
    QPushButton* cmdBuyer_;
    QPushButton* cmdSeller_;
    QPushButton* lblReset_;
};

/// Shows the calculator; the window deletes itself when it is closed.
CalculatorWindow* ShowCalculator(MainScreen& screen, QWidget* parent);

}  // namespace quillmark::desktop
