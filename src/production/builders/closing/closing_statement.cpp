#include "closing/closing_statement.h"

#include <fmt/format.h>

#include <cmath>

#include "core/text_conversions.h"
#include "platform/code_page.h"
#include "production/builders/builder_list.h"
#include "production/builders/closing/statement_lines.h"
#include "production/kit/job_values.h"
#include "production/kit/typing.h"

namespace quillmark {

using namespace field;

namespace {

/// So that a full statement stays on one page.
constexpr double kLines = 11.9;
constexpr double kLinesOfOldWord = 11;

constexpr Field kOtherAdjustments[] = {OtherAdjustment1, OtherAdjustment2, OtherAdjustment3,
                                       OtherAdjustment4};
constexpr Field kOtherDisbursements[] = {OtherDisbursement1, OtherDisbursement2, OtherDisbursement3,
                                         OtherDisbursement4, OtherDisbursement5, OtherDisbursement6};

const std::string kTenBlanks(10, ' ');

/// Types one statement, section by section from the top of the page.
struct StatementPage {
    StatementPage(const Production& production, Typist& typist, const ClosingStatement& figures)
        : job(production.job),
          type(typist),
          lines(typist),
          statement(figures),
          entries(figures.entries),
          seller(job.Has(TwoSellers) ? "SELLERS" : "SELLER"),
          buyer(job.Has(TwoBuyers) ? "BUYERS" : "BUYER") {}

    void Head();
    void CreditsToSeller();
    void CreditsToBuyer();
    void CashToClose();
    void AvailableFunds();
    void Disbursements();
    void Net();

    std::string TaxLabel() const;
    std::string SewerLabel() const;
    std::string CommonLabel() const;
    std::string RentLabel() const;
    void TypeOtherAdjustmentLabel(std::size_t i);
    void TypeOtherDisbursementLabel(std::size_t i);
    std::string From(const AdjustmentLine& line) const {
        return PeriodFrom(statement.proration, line.period);
    }
    std::string UpTo(const AdjustmentLine& line) const {
        return PeriodUpTo(statement.proration, line.period);
    }

    bool Payoffs();
    void Commissions(char mark);
    std::string CommissionPart(const TaggedAmount& commission, bool lessBinder, Field realtor) const;

    const JobValues job;
    Typist& type;
    StatementLines lines;
    const ClosingStatement& statement;
    const ClosingStatementEntries& entries;
    const std::string seller;
    const std::string buyer;
};

void StatementPage::Head() {
    type.Indents(StatementLines::kIndent);
    type.Align(word::AlignCentre);
    type.Font("Times New Roman", 12);
    type.Bold(true);
    type.Italic(false);
    type.As(word::Role::Title, [&] {
        type.Text(job.Has(Commercial) ? "NON-" : "", "RESIDENTIAL SELLER'S CLOSING STATEMENT",
                  RepeatReturn(2));
    });
    type.Align(word::AlignLeft);
    type.Font("Times New Roman", StatementLines::kSize);
    type.Bold(false);

    const std::string& buyerName = job.Has(TwoBuyers) ? job.BuyerNames() : job[Buyer1Name];
    const std::string& sellerName = job.Has(TwoSellers) ? job.SellerNames() : job[Seller1Name];
    const std::string property = job.OneLine(PropertyAddress1) + ", " + job[PropertyCityStateZip];
    const std::string& closing = job[ClosingDate];
    const std::string& proration = job[ProrationDate];
    const std::string note = closing == proration ? "" : "   (proration date - " + proration + ")";
    type.Text(buyer, ":", RepeatTab(3), buyerName, "\r",       //
              seller, ":   ", RepeatTab(2), sellerName, "\r",  //
              "PROPERTY:", RepeatTab(2), property, "\r",       //
              "CLOSING DATE:\t", closing, note, "\r",          //
              RepeatUnderscore(93), RepeatReturn(2));
}

// ---- What the lines are called ----

std::string StatementPage::TaxLabel() const {
    return "TAX ADJUSTMENT (" + BareFigureText(entries.AnnualTax.amount) + " / yr)";
}

std::string StatementPage::SewerLabel() const {
    std::string label = "SEWER ADJUSTMENT ";
    if (entries.AnnualSewer.delimiter == '-')
        label += "(" + BareFigureText(entries.AnnualSewer.amount) + " / yr)";
    return label;
}

std::string StatementPage::CommonLabel() const {
    return "COMMON CHARGE ADJUSTMENT (" + BareFigureText(entries.MonthlyCommonCharge.amount) + " / mo)";
}

std::string StatementPage::RentLabel() const {
    return "RENT ADJUSTMENT (" + BareFigureText(entries.MonthlyRent.amount) + " / mo)";
}

/// What stands between the amount and the tag of three characters.
void StatementPage::TypeOtherAdjustmentLabel(std::size_t i) {
    const std::string_view value = job[kOtherAdjustments[i]];
    const std::size_t hyphen = value.find('-');
    std::string label;
    if (hyphen != std::string_view::npos && value.size() > hyphen + 4)
        label = UpperCase(Trimmed(value.substr(hyphen + 1, value.size() - hyphen - 4)));
    lines.LabelOrField(label, fmt::format("Other Adjustment {} (click to edit)", i + 1));
}

void StatementPage::TypeOtherDisbursementLabel(std::size_t i) {
    const std::string_view value = job[kOtherDisbursements[i]];
    const std::size_t hyphen = value.find('-');
    std::string label;
    if (hyphen != std::string_view::npos) label = UpperCase(Trimmed(value.substr(hyphen + 1)));
    lines.LabelOrField(label, fmt::format("Other Disbursement {} (click to edit)", i + 1));
}

// ---- The sections ----

void StatementPage::CreditsToSeller() {
    const ClosingStatement& s = statement;
    lines.Title("CREDITS TO " + seller + RepeatReturn(2));
    type.Text("PURCHASE PRICE\t");
    lines.Dollar(entries.SalePrice);
    type.Text("\r");
    lines.Line({s.TaxCreditSeller, TaxLabel(), From(s.TaxCreditSeller), s.TaxPerDay});
    lines.Line({s.SewerCreditSeller, SewerLabel(), From(s.SewerCreditSeller), s.SewerPerDay});
    if (entries.OilAdjustment > 0) lines.Line("OIL ADJUSTMENT", entries.OilAdjustment);
    lines.Line({s.CommonCreditSeller, CommonLabel(), From(s.CommonCreditSeller), s.CommonPerDay});
    lines.Line({s.RentCreditSeller, RentLabel(), UpTo(s.RentCreditSeller), s.RentPerDay});
    for (std::size_t i = 0; i < entries.OtherAdjustments.size(); ++i) {
        const OtherAdjustment& other = entries.OtherAdjustments[i];
        if (!other.toSeller || other.amount <= 0) continue;
        TypeOtherAdjustmentLabel(i);
        lines.Line("", other.amount);
    }
    lines.Total(s.TotalCreditsSeller, "\r");
}

void StatementPage::CreditsToBuyer() {
    const ClosingStatement& s = statement;
    lines.Title("\rLESS: CREDITS TO " + buyer + RepeatReturn(2));
    type.Text("DEPOSITS\t");
    lines.Dollar(s.TotalDeposits);
    lines.FollowingLine({s.TaxCreditBuyer, TaxLabel(), UpTo(s.TaxCreditBuyer), s.TaxPerDay});
    lines.FollowingLine({s.SewerCreditBuyer, SewerLabel(), UpTo(s.SewerCreditBuyer), s.SewerPerDay});
    lines.FollowingLineIfAny("WATER ADJUSTMENT", entries.WaterAdjustment);
    lines.FollowingLine({s.CommonCreditBuyer, CommonLabel(), UpTo(s.CommonCreditBuyer), s.CommonPerDay});
    lines.FollowingLineIfAny("SECURITY DEPOSIT", entries.SecurityDeposit);
    lines.FollowingLine({s.RentCreditBuyer, RentLabel(), From(s.RentCreditBuyer), s.RentPerDay});
    lines.FollowingLineIfAny("CLOSING COST CREDIT", entries.ClosingCostCredit);
    lines.FollowingLineIfAny("REPAIR CREDIT", entries.RepairCredit);
    lines.FollowingLineIfAny("SMOKE DETECTOR CREDIT", entries.SmokeDetectorCredit);
    for (std::size_t i = 0; i < entries.OtherAdjustments.size(); ++i) {
        const OtherAdjustment& other = entries.OtherAdjustments[i];
        if (other.toSeller || other.amount <= 0) continue;
        type.Text("\r");
        TypeOtherAdjustmentLabel(i);
        type.Text("\t");
        lines.Wide(other.amount);
    }
    lines.Subtracted(s.TotalCreditsBuyer);
}

void StatementPage::CashToClose() {
    lines.Result("CASH TO CLOSE", statement.CashToClose);
    type.Text(RepeatUnderscore(93), RepeatReturn(2));
}

void StatementPage::AvailableFunds() {
    lines.Title("AVAILABLE FUNDS" + RepeatReturn(2));
    type.Text("MORTGAGE PAYOFF FUNDS", job.Has(TwoBuyers) ? " (from Buyers' Atty)" : " (from Buyer's Atty)",
              "\t");
    lines.Dollar(entries.Payoff1 + entries.Payoff2);
    type.Text("\r");
    if (statement.PayoffsExceedCash) {
        lines.Detail(kTenBlanks + "Includes $" + FigureText(std::abs(statement.BalanceOfCash)) +
                     " from deposits");
        type.Text("\rBALANCE OF ");
    } else {
        lines.Line("BALANCE OF CASH TO CLOSE", statement.BalanceOfCash);
    }
    const std::string heldBy = "DEPOSIT HELD BY " + seller + (job.Has(TwoSellers) ? "'" : "'S") + " ATTY";
    lines.Line(entries.BinderApplied() ? heldBy : "DEPOSITS", statement.DepositsLine);
    lines.Total(statement.FundsTotal, RepeatReturn(2));
}

void StatementPage::Disbursements() {
    lines.Title("LESS: DISBURSEMENTS\r\r");
    const bool payoffStands = Payoffs();
    // The first figure of the column bears the dollar sign.
    Commissions(payoffStands ? ' ' : '$');
    lines.Line("ATTY FEES - " + job[SellerLawfirm], entries.AttorneyFee);
    const std::string clerk = job.Town(PropertyCityStateZip) + " Town Clerk";
    lines.Label("CONVEYANCE TAX" + std::string(statement.Municipal.rateText) + clerk);
    lines.Wide(statement.Municipal.tax);
    lines.FollowingLine("CONVEYANCE TAX" + std::string(statement.State.rateText) + "Comm. Revenue Services",
                        statement.State.tax);
    lines.FollowingLineIfAny("RECORDING FEES - " + clerk, entries.RecordingFees);
    lines.FollowingLineIfAny("RELEASE TRACKING FEES - SMS", statement.ReleaseFees);
    lines.FollowingLineIfAny("COURIER FEE - " + job[SellerLawfirm], entries.CourierFee);
    for (std::size_t i = 0; i < entries.OtherDisbursements.size(); ++i) {
        if (entries.OtherDisbursements[i] <= 0) continue;
        type.Text("\r");
        TypeOtherDisbursementLabel(i);
        type.Text("\t");
        lines.Wide(entries.OtherDisbursements[i]);
    }
    lines.Subtracted(statement.TotalDisbursements);
}

/// Whether there is such a line.
bool StatementPage::Payoffs() {
    if (job.Has(TwoPayoffs)) {
        type.Text("MORTGAGE PAYOFFS\t");
        lines.Dollar(entries.Payoff1 + entries.Payoff2);
        type.Text("\r");
        lines.Detail(kTenBlanks + "$" + FigureText(entries.Payoff1) + " to " + job[Payoff1Servicer] + "\r" +
                     kTenBlanks + "$" + FigureText(entries.Payoff2) + " to " + job[Payoff2Servicer]);
        type.Text("\r");
        return true;
    }
    if (!job.Has(OnePayoff)) return false;
    lines.Label("MORTGAGE PAYOFF - " + job[Payoff1Servicer]);
    lines.Dollar(entries.Payoff1);
    type.Text("\r");
    return true;
}

/// "$9,500.00 to A Realty ($14,500.00 - $5,000 withheld)".
std::string StatementPage::CommissionPart(const TaggedAmount& commission, bool lessBinder,
                                          Field realtor) const {
    const double binder = lessBinder ? entries.BinderDeposit : 0;
    std::string part = kTenBlanks + "$" + FigureText(commission.amount - binder) + " to " + job[realtor];
    if (lessBinder)
        part += " (" + BareFigureText(commission.amount) + " - " + WholeDollarText(binder) + " withheld)";
    return part;
}

void StatementPage::Commissions(char mark) {
    const bool first = entries.Commission1.tag == 'B';
    const bool second = !first && entries.Commission2.tag == 'B';
    if (entries.Commission2.amount > 0 || job.IsFilled(Realtor2Name)) {
        type.Text("REAL ESTATE COMMISSIONS\t");
        lines.Marked(mark, statement.CommissionTotal);
        type.Text("\r");
        lines.Detail(CommissionPart(entries.Commission1, first, Realtor1Name) + "\r" +
                     CommissionPart(entries.Commission2, second, Realtor2Name));
        type.Text("\r");
    } else if (entries.Commission1.amount > 0) {
        lines.Label("R.E. COMMISSION - " + job[Realtor1Name]);
        lines.Marked(mark, statement.CommissionTotal);
        type.Text("\r");
        if (!first) return;
        lines.Detail(kTenBlanks + "$" + FigureText(entries.Commission1.amount) + " gross commission less $" +
                     FigureText(entries.BinderDeposit) + " deposit withheld");
        type.Text("\r");
    }
}

void StatementPage::Net() {
    const bool isDeficit = statement.NetResult < 0;
    lines.Result((isDeficit ? "DUE FROM " : "NET TO ") + seller, std::abs(statement.NetResult));
}

}  // namespace

void TypeClosingStatement(const Production& production, Typist& type, const Variant& variant) {
    const ClosingStatement statement =
        ComputeClosingStatement(production.job, production.settings, variant.tag, production.dialogs);
    StatementPage page(production, type, statement);
    type.Role(word::Role::StatementLine);
    page.Head();
    type.AtTabs({StatementLines::kFigureTab, StatementLines::kTotalTab}, [&] {
        type.LineSpacing(type.WordVersion() >= 12 ? kLines : kLinesOfOldWord);
        page.CreditsToSeller();
        page.CreditsToBuyer();
        page.CashToClose();
        page.AvailableFunds();
        page.Disbursements();
        page.Net();
    });
    type.Indents(0);
    type.LineSpacing(12);
}

}  // namespace quillmark
