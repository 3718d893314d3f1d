#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "closing/closing_figures.h"
#include "core/job.h"
#include "core/text_conversions.h"

namespace quillmark {

/// A proration date that is filled and cannot be read.
class NotADate : public NotANumber {
 public:
    explicit NotADate(std::string_view text);
    const char* what() const noexcept override { return message_.c_str(); }

 private:
    std::string message_;
};

struct OtherAdjustment {
    double amount = 0;
    bool toSeller = false;  ///< credited to the seller; otherwise to the buyer
};

/// What a closing statement reads from a job. Amounts are dollars; a field that cannot be read is 0.
struct ClosingStatementEntries {
    double SalePrice = 0;
    double BinderDeposit = 0;
    double ContractDeposit = 0;
    TaggedAmount AnnualTax;    ///< tag 'U' for unpaid; any other counts as paid. 0 without a hyphen
    TaggedAmount AnnualSewer;  ///< delimiter '-' for an annual charge, '=' for a net figure; "POC" has no tag
    double WaterAdjustment = 0;
    double OilAdjustment = 0;
    TaggedAmount MonthlyCommonCharge;
    double SecurityDeposit = 0;
    TaggedAmount MonthlyRent;
    double ClosingCostCredit = 0;
    double RepairCredit = 0;
    double SmokeDetectorCredit = 0;
    double Payoff1 = 0;
    double Payoff2 = 0;        ///< 0 without the option of two payoffs
    TaggedAmount Commission1;  ///< tag 'B': the binder deposit is applied to it. Tags need the hyphen
    TaggedAmount Commission2;
    bool CommissionLine = false;  ///< there is a commission, or a second realtor
    double AttorneyFee = 0;
    double RecordingFees = 0;
    double CourierFee = 0;
    double ReleaseFees = 0;  ///< for tracking the releases, by the payoffs' tags
    std::array<OtherAdjustment, 4> OtherAdjustments;
    std::array<double, 6> OtherDisbursements = {};
    std::optional<std::chrono::year_month_day> ProrationDate;  ///< none for an unfilled field
    std::string Town;  ///< in lower case; empty or unknown counts as an ordinary town
    bool Condo = false;
    bool Commercial = false;
    bool LandOrMultiFamily = false;

    /// The broker keeps the binder deposit, as a commission's tag says.
    bool BinderApplied() const { return Commission1.tag == 'B' || Commission2.tag == 'B'; }
};

/// Reads payoff amounts up to "-" or "=", so tagged values and those cut for typing give the same. Throws
/// NotADate.
ClosingStatementEntries ReadClosingStatementEntries(const Job& job);

/// The charge of the release tracking service for one payoff, by the tag of its amount; 0 without a tag.
/// Where the payoff holds the recording fee already, that decides even if the releasor is the electronic
/// registry (the equals sign).
double ReleaseFee(std::string_view payoff);

}  // namespace quillmark
