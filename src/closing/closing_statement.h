#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "closing/closing_statement_entries.h"
#include "closing/conveyance_tax.h"
#include "closing/proration.h"
#include "core/job.h"
#include "core/settings.h"
#include "platform/dialogs.h"

/// The figures of the seller's closing statement: price, credits to either side, cash to close, available
/// funds, disbursements, net.
namespace quillmark {

/// The mode of the statement of a sale that may be exempt from the conveyance tax.
inline constexpr std::string_view kTaxExemptMode = "XMPT";

/// A tax, sewer, common charge or rent adjustment on one side of the statement.
struct AdjustmentLine {
    bool shown = false;     ///< the line stands on this side, if only with 0.00
    double figure = 0;      ///< dollars; 0 for a line that is not shown
    bool prorated = false;  ///< with days and a daily rate; a net figure has none
    ProrationDays period;
};

/// All figures are dollars in double precision, as they add up: rounded to cents where the trade rounds, and
/// nowhere else. Figures of lines that do not appear are 0.
struct ClosingStatement {
    ClosingStatementEntries entries;
    ProrationFrame proration;

    double TaxPerDay = 0;  ///< these four are not rounded
    double SewerPerDay = 0;
    double CommonPerDay = 0;
    double RentPerDay = 0;

    AdjustmentLine TaxCreditSeller;
    AdjustmentLine SewerCreditSeller;
    AdjustmentLine CommonCreditSeller;
    AdjustmentLine RentCreditSeller;
    double TotalCreditsSeller = 0;

    double TotalDeposits = 0;  ///< binder and contract deposit, as credited to the buyer
    AdjustmentLine TaxCreditBuyer;
    AdjustmentLine SewerCreditBuyer;
    AdjustmentLine CommonCreditBuyer;
    AdjustmentLine RentCreditBuyer;
    double TotalCreditsBuyer = 0;

    double CashToClose = 0;
    double BalanceOfCash = 0;        ///< what the payoffs leave of it
    bool PayoffsExceedCash = false;  ///< the balance is negative by a cent at least
    double DepositsHeld = 0;         ///< without a binder deposit that a broker keeps
    double DepositsLine = 0;         ///< what is left of them beside a negative balance
    double FundsTotal = 0;

    double CommissionTotal = 0;  ///< less the binder deposit that a broker keeps
    double ReleaseFees = 0;
    ConveyanceTax Municipal;  ///< with the rate's text; its tax is 0 for an exempt sale
    ConveyanceTax State;
    double TotalDisbursements = 0;
    double NetResult = 0;  ///< net to the seller; negative: due from the seller
};

/// Computes a statement from the job's present values. In the mode `kTaxExemptMode`, and whenever the payoffs
/// exceed the cash to close, asks whether the sale is exempt from the town's tax and then from the state's.
///
/// Throws NotADate for a proration date that is none, std::overflow_error for figures beyond all measure,
/// and what the dialogs throw.
ClosingStatement ComputeClosingStatement(const Job& job, const Settings& settings, std::string_view mode,
                                         Dialogs& dialogs);

/// The property tax that the seller has paid for days on which the buyer owns, as the statement credits it to
/// the seller: the buyer's part of the tax on a Form 1099-S. Throws NotADate.
double BuyersPartOfTax(const Job& job, const Settings& settings);

/// The figures by their names, in the order of the statement.
std::vector<std::pair<std::string_view, double>> FiguresByName(const ClosingStatement& statement);

}  // namespace quillmark
