#include "desktop/side_windows/calculator_window.h"

#include <QClipboard>
#include <QDateEdit>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalBlocker>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/dates.h"
#include "desktop/toolkit/editor_text.h"
#include "desktop/toolkit/guard.h"
#include "desktop/toolkit/side_window.h"
#include "desktop/toolkit/text.h"
#include "session/main_screen.h"

namespace quillmark::desktop {

namespace {

QString DaysText(int days) {
    return QStringLiteral("%1 %2").arg(days).arg(days == 1 ? QStringLiteral("day") : QStringLiteral("days"));
}

void ShowTip(QPushButton* button, const std::string& tip) {
    button->setToolTip(Shown(tip).trimmed());
    button->setAccessibleDescription(button->toolTip());
}

}  // namespace

CalculatorWindow::CalculatorWindow(MainScreen& screen, QWidget* parent)
    : SideWindow(parent, "Proration Calculator"), screen_(screen) {
    setObjectName(QStringLiteral("Calculator"));
    screen_.OpenCalculator();
    setModal(false);
    Mnemonics keys;
    auto* layout = new QFormLayout(this);
    txtGross_ = new QLineEdit(this);
    txtGross_->setAlignment(Qt::AlignRight);
    Describe(txtGross_, QStringLiteral("Gross Assessment (dollar amount & period)"));
    auto* gross = new QLabel(keys.Mark("Gross Assessment (dollar amount & period)"), this);
    gross->setBuddy(txtGross_);
    layout->addRow(gross, txtGross_);
    DTPicker1_ = AddDate(*layout, "FROM (inclusive)", keys, &ProrationCalculator::SetFrom);
    DTPicker2_ = AddDate(*layout, "TO (inclusive)", keys, &ProrationCalculator::SetTo);
    DTPicker3_ = AddDate(*layout, "Proration Date", keys, &ProrationCalculator::SetProrationDate);
    lblPerDiem_ = new QLabel(this);
    layout->addRow(QString(), lblPerDiem_);
    layout->addRow(NewResults(keys));
    lblReset_ = new QPushButton(keys.Mark("RESET"), this);
    lblReset_->setAutoDefault(false);
    Describe(lblReset_, QStringLiteral("RESET"), QStringLiteral("Back to the start"));
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(lblReset_);
    layout->addRow(foot);
    On(txtGross_, &QLineEdit::textEdited, this, [this](const QString& text) { TypeGross(text); });
    On(lblReset_, &QPushButton::clicked, this, [this] { Reset(); });
    Refresh();
    txtGross_->setFocus();
}

QDateEdit* CalculatorWindow::AddDate(QFormLayout& form, std::string_view caption, Mnemonics& keys,
                                     void (ProrationCalculator::*set)(std::chrono::year_month_day)) {
    auto* picker = new QDateEdit(this);
    picker->setCalendarPopup(true);
    picker->setDisplayFormat(QStringLiteral("MM/dd/yyyy"));
    picker->setKeyboardTracking(false);
    Describe(picker, Shown(caption));
    auto* label = new QLabel(keys.Mark(caption), this);
    label->setBuddy(picker);
    form.addRow(label, picker);
    On(picker, &QDateEdit::dateChanged, this, [this, set](QDate date) {
        (calculator().*set)(DayOf(date));
        Refresh();
    });
    return picker;
}

QLineEdit* CalculatorWindow::NewAmount(std::string_view caption) {
    auto* amount = new QLineEdit(this);
    amount->setReadOnly(true);
    amount->setAlignment(Qt::AlignRight);
    amount->setToolTip(QStringLiteral("Copy"));
    Describe(amount, Shown(caption), QStringLiteral("A click copies the amount"));
    amount->installEventFilter(this);
    return amount;
}

QPushButton* CalculatorWindow::NewCredit(std::string_view caption, CreditTo side, Mnemonics& keys) {
    auto* button = new QPushButton(keys.Mark(caption), this);
    button->setAutoDefault(false);
    Describe(button, Shown(caption));
    On(button, &QPushButton::clicked, this, [this, side] { HandOver(side); });
    return button;
}

QWidget* CalculatorWindow::NewResults(Mnemonics& keys) {
    auto* results = new QWidget(this);
    auto* grid = new QGridLayout(results);
    grid->setContentsMargins({});
    const auto add = [&](int row, std::string_view caption, QLineEdit*& amount, QLabel*& days,
                         QPushButton* credit) {
        auto* label = new QLabel(keys.Mark(caption), this);
        amount = NewAmount(caption);
        days = new QLabel(this);
        label->setBuddy(amount);
        grid->addWidget(label, row, 0);
        grid->addWidget(amount, row, 1);
        grid->addWidget(days, row, 2);
        grid->addWidget(credit, row, 3);
    };
    cmdBuyer_ = NewCredit("Credit buyer", CreditTo::Buyer, keys);
    cmdSeller_ = NewCredit("Credit seller", CreditTo::Seller, keys);
    add(0, "Unpaid", Text1_, unpaidDays_, cmdBuyer_);
    add(1, "Paid", Text2_, paidDays_, cmdSeller_);
    setTabOrder(Text1_, cmdBuyer_);
    setTabOrder(cmdBuyer_, Text2_);
    setTabOrder(Text2_, cmdSeller_);
    grid->setColumnStretch(1, 1);
    return results;
}

ProrationCalculator& CalculatorWindow::calculator() const {
    ProrationCalculator* open = screen_.Calculator();
    if (!open) throw NotAllowed("the proration calculator is not open");
    return *open;
}

void CalculatorWindow::TypeGross(const QString& text) {
    calculator().SetGross(ToSession({text, txtGross_->cursorPosition(), 0}));
    Refresh();
}

void CalculatorWindow::Reset() {
    calculator().Reset();
    Refresh();
    txtGross_->setFocus();
}

void CalculatorWindow::HandOver(CreditTo side) {
    try {
        screen_.HandOver(side);
    } catch (const NotAllowed& refused) {
        return screen_.Person().Tell("  ALERT", refused.what(), DialogIcon::Warning);
    }
    Follow();
    Q_EMIT HandedOver();
}

void CalculatorWindow::Refresh() {
    const ProrationCalculatorState& state = calculator().State();
    const ShownText gross = FromSession(state.txtGross);
    if (txtGross_->text() != gross.text) {
        txtGross_->setText(gross.text);
        txtGross_->setCursorPosition(gross.caret);
    }
    const QSignalBlocker quiet[] = {QSignalBlocker(DTPicker1_), QSignalBlocker(DTPicker2_),
                                    QSignalBlocker(DTPicker3_)};
    DTPicker1_->setDate(Shown(state.DTPicker1));
    DTPicker2_->setDate(Shown(state.DTPicker2));
    DTPicker3_->setDateRange(Shown(state.DTPicker1), Shown(state.DTPicker2));
    DTPicker3_->setDate(Shown(state.DTPicker3));
    lblPerDiem_->setText(Shown(state.lblPerDiem));
    Text1_->setText(Shown(state.Text1));
    Text2_->setText(Shown(state.Text2));
    unpaidDays_->setText(DaysText(state.UnpaidDays));
    paidDays_->setText(DaysText(state.PaidDays));
    ShowTip(cmdBuyer_, state.cmdBuyerTooltip);
    ShowTip(cmdSeller_, state.cmdSellerTooltip);
}

void CalculatorWindow::Follow() {
    if (!screen_.Calculator() && isVisible()) QDialog::reject();
}

void CalculatorWindow::reject() {
    screen_.CloseCalculator();
    QDialog::reject();
}

/// A click on an amount copies it; the keyboard selects it, for the usual keys.
bool CalculatorWindow::eventFilter(QObject* watched, QEvent* event) {
    auto* amount = qobject_cast<QLineEdit*>(watched);
    if (amount && event->type() == QEvent::MouseButtonRelease) {
        amount->selectAll();
        QGuiApplication::clipboard()->setText(amount->text());
        return true;
    }
    return SideWindow::eventFilter(watched, event);
}

CalculatorWindow* ShowCalculator(MainScreen& screen, QWidget* parent) {
    auto* window = new CalculatorWindow(screen, parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}

}  // namespace quillmark::desktop
