#include "closing/closing_statement.h"

#include <algorithm>

#include "core/places.h"

namespace quillmark {

namespace {

constexpr char kPaid = 'P';
constexpr char kUnpaid = 'U';

/// The part of an amount that its line shows: lines of 0 and less do not appear.
double Shown(double amount) {
    return std::max(amount, 0.0);
}

double PerDay(double amount, double days) {
    return days > 0 ? amount / days : 0;
}

AdjustmentLine Prorated(double perDay, const ProrationDays& period) {
    return {true, RoundCents(perDay * period.days), true, period};
}

AdjustmentLine Flat(double amount) {
    return {true, amount, false, {}};
}

/// What an other adjustment credits to one of the sides.
double OtherCredit(const OtherAdjustment& adjustment, bool toSeller) {
    return adjustment.toSeller == toSeller ? Shown(adjustment.amount) : 0;
}

/// Computes one statement, section by section from the top of the page.
class Computation {
 public:
    Computation(const Job& job, const Settings& settings) {
        entries_ = ReadClosingStatementEntries(job);
        frame_ = ProrationFrameOf(entries_.ProrationDate, entries_.Town, settings.leapYears);
        statement_.TaxPerDay = PerDay(entries_.AnnualTax.amount, frame_.DaysInTaxYear);
        statement_.SewerPerDay = PerDay(entries_.AnnualSewer.amount, frame_.DaysInTaxYear);
        statement_.CommonPerDay = PerDay(entries_.MonthlyCommonCharge.amount, frame_.DaysInMonth);
        statement_.RentPerDay = PerDay(entries_.MonthlyRent.amount, frame_.DaysInMonth);
        arrearsTown_ = FiscalYearOf(entries_.Town) == FiscalYear::October;
    }

    double BuyersPartOfTax() {
        CreditTax();
        return statement_.TaxCreditSeller.figure;
    }

    ClosingStatement Compute(std::string_view mode, Dialogs& dialogs) {
        CreditTax();
        CreditSewer();
        CreditCommonCharges();
        CreditRent();
        TotalCredits();
        FindFunds();
        Disburse(mode, dialogs);
        return statement_;
    }

 private:
    void CreditTax();
    void CreditSewer();
    void CreditCommonCharges();
    void CreditRent();
    void TotalCredits();
    void FindFunds();
    void TaxConveyance(bool askForExemption, Dialogs& dialogs);
    void Disburse(std::string_view mode, Dialogs& dialogs);

    ClosingStatement statement_;
    ClosingStatementEntries& entries_ = statement_.entries;
    ProrationFrame& frame_ = statement_.proration;
    bool arrearsTown_ = false;
};

void Computation::CreditTax() {
    const char tag = entries_.AnnualTax.tag;
    const bool toBuyer = arrearsTown_ || tag == kUnpaid;
    AdjustmentLine& line = toBuyer ? statement_.TaxCreditBuyer : statement_.TaxCreditSeller;
    line = Prorated(statement_.TaxPerDay, TaxPeriodDays(frame_, entries_.Town, tag));
}

void Computation::CreditSewer() {
    const TaggedAmount& sewer = entries_.AnnualSewer;
    const bool flat = sewer.delimiter == '=';
    const bool inArrears = arrearsTown_ && sewer.delimiter == '-';
    AdjustmentLine line =
        flat ? Flat(sewer.amount)
             : Prorated(statement_.SewerPerDay, TaxPeriodDays(frame_, entries_.Town, sewer.tag));
    if (inArrears || sewer.tag == kUnpaid)
        statement_.SewerCreditBuyer = line;
    else if (sewer.tag == kPaid && (flat || !arrearsTown_))
        statement_.SewerCreditSeller = line;
}

void Computation::CreditCommonCharges() {
    const TaggedAmount& charge = entries_.MonthlyCommonCharge;
    if (!entries_.Condo && charge.amount <= 0) return;
    if (charge.tag == kUnpaid)
        statement_.CommonCreditBuyer = Prorated(statement_.CommonPerDay, DaysSinceFirstOfMonth(frame_));
    else
        statement_.CommonCreditSeller = Prorated(statement_.CommonPerDay, DaysToMonthEnd(frame_));
}

/// Of a rent still due the seller gets the days so far, of one received the buyer gets the rest of the month.
void Computation::CreditRent() {
    const char tag = entries_.MonthlyRent.tag;
    if (tag == kUnpaid)
        statement_.RentCreditSeller = Prorated(statement_.RentPerDay, DaysSinceFirstOfMonth(frame_));
    if (tag == kPaid) statement_.RentCreditBuyer = Prorated(statement_.RentPerDay, DaysToMonthEnd(frame_));
}

void Computation::TotalCredits() {
    statement_.TotalCreditsSeller = entries_.SalePrice + statement_.TaxCreditSeller.figure +
                                    statement_.SewerCreditSeller.figure + Shown(entries_.OilAdjustment) +
                                    statement_.CommonCreditSeller.figure + statement_.RentCreditSeller.figure;
    statement_.TotalDeposits = entries_.BinderDeposit + entries_.ContractDeposit;
    statement_.TotalCreditsBuyer = statement_.TotalDeposits + statement_.TaxCreditBuyer.figure +
                                   statement_.SewerCreditBuyer.figure + Shown(entries_.WaterAdjustment) +
                                   statement_.CommonCreditBuyer.figure + Shown(entries_.SecurityDeposit) +
                                   statement_.RentCreditBuyer.figure + Shown(entries_.ClosingCostCredit) +
                                   Shown(entries_.RepairCredit);
    for (const OtherAdjustment& adjustment : entries_.OtherAdjustments) {
        statement_.TotalCreditsSeller += OtherCredit(adjustment, true);
        statement_.TotalCreditsBuyer += OtherCredit(adjustment, false);
    }
    statement_.TotalCreditsBuyer += Shown(entries_.SmokeDetectorCredit);
}

void Computation::FindFunds() {
    statement_.CashToClose =
        RoundCents(statement_.TotalCreditsSeller) - RoundCents(statement_.TotalCreditsBuyer);
    statement_.BalanceOfCash = statement_.CashToClose - entries_.Payoff1 - entries_.Payoff2;
    // Differences of amounts that are equal to the cent need not be zero in binary.
    statement_.PayoffsExceedCash = RoundCents(statement_.BalanceOfCash) < 0;
    statement_.DepositsHeld = entries_.BinderApplied() ? entries_.ContractDeposit : statement_.TotalDeposits;
    statement_.DepositsLine =
        statement_.DepositsHeld + (statement_.PayoffsExceedCash ? statement_.BalanceOfCash : 0);
    statement_.FundsTotal = statement_.DepositsHeld + statement_.CashToClose;
}

void Computation::TaxConveyance(bool askForExemption, Dialogs& dialogs) {
    const auto isExempt = [&](const char* question) {
        return askForExemption && dialogs.Confirm(" Conveyance Tax", question, DialogButton::No);
    };
    statement_.Municipal = MunicipalConveyanceTax(entries_.SalePrice, entries_.Town);
    if (isExempt("Is this sale exempt from Municipal taxation ?")) statement_.Municipal.tax = 0;
    statement_.State =
        StateConveyanceTax(entries_.SalePrice, entries_.Commercial, entries_.LandOrMultiFamily);
    if (isExempt("Is this sale exempt from State taxation ?")) statement_.State.tax = 0;
}

void Computation::Disburse(std::string_view mode, Dialogs& dialogs) {
    if (entries_.CommissionLine)
        statement_.CommissionTotal = entries_.Commission1.amount + entries_.Commission2.amount -
                                     (entries_.BinderApplied() ? entries_.BinderDeposit : 0);
    TaxConveyance(mode == kTaxExemptMode || statement_.PayoffsExceedCash, dialogs);
    statement_.ReleaseFees = entries_.ReleaseFees;
    double total = entries_.Payoff1 + entries_.Payoff2 + statement_.CommissionTotal + entries_.AttorneyFee +
                   statement_.Municipal.tax + statement_.State.tax + Shown(entries_.RecordingFees) +
                   Shown(entries_.CourierFee);
    const auto& others = entries_.OtherDisbursements;
    for (std::size_t i = 0; i < 4; ++i) total += Shown(others[i]);
    total += statement_.ReleaseFees;
    for (std::size_t i = 4; i < others.size(); ++i) total += Shown(others[i]);
    statement_.TotalDisbursements = total;
    statement_.NetResult = RoundCents(statement_.FundsTotal) - RoundCents(total);
}

}  // namespace

ClosingStatement ComputeClosingStatement(const Job& job, const Settings& settings, std::string_view mode,
                                         Dialogs& dialogs) {
    return Computation(job, settings).Compute(mode, dialogs);
}

double BuyersPartOfTax(const Job& job, const Settings& settings) {
    return Computation(job, settings).BuyersPartOfTax();
}

std::vector<std::pair<std::string_view, double>> FiguresByName(const ClosingStatement& statement) {
    return {
        {"SalePrice", statement.entries.SalePrice},
        {"TotalDeposits", statement.TotalDeposits},
        {"TaxPerDay", statement.TaxPerDay},
        {"SewerPerDay", statement.SewerPerDay},
        {"CommonPerDay", statement.CommonPerDay},
        {"RentPerDay", statement.RentPerDay},
        {"DaysInTaxYear", statement.proration.DaysInTaxYear},
        {"DaysInMonth", statement.proration.DaysInMonth},
        {"TaxCreditSeller", statement.TaxCreditSeller.figure},
        {"SewerCreditSeller", statement.SewerCreditSeller.figure},
        {"CommonCreditSeller", statement.CommonCreditSeller.figure},
        {"RentCreditSeller", statement.RentCreditSeller.figure},
        {"TaxCreditBuyer", statement.TaxCreditBuyer.figure},
        {"SewerCreditBuyer", statement.SewerCreditBuyer.figure},
        {"CommonCreditBuyer", statement.CommonCreditBuyer.figure},
        {"RentCreditBuyer", statement.RentCreditBuyer.figure},
        {"TotalCreditsSeller", statement.TotalCreditsSeller},
        {"TotalCreditsBuyer", statement.TotalCreditsBuyer},
        {"CashToClose", statement.CashToClose},
        {"BalanceOfCash", statement.BalanceOfCash},
        {"FundsTotal", statement.FundsTotal},
        {"CommissionTotal", statement.CommissionTotal},
        {"ReleaseFees", statement.ReleaseFees},
        {"MunicipalTax", statement.Municipal.tax},
        {"StateTax", statement.State.tax},
        {"TotalDisbursements", statement.TotalDisbursements},
        {"NetResult", statement.NetResult},
    };
}

}  // namespace quillmark
