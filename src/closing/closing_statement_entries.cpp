#include "closing/closing_statement_entries.h"

#include <fmt/format.h>

namespace quillmark {

namespace {

enum Field : int {
    kAttorneyFee = 10,
    kSalePrice = 76,
    kBinderDeposit = 77,
    kContractDeposit = 78,
    kProrationDate = 81,
    kCommission1 = 86,
    kRealtor2 = 87,
    kCommission2 = 88,
    kPayoff1 = 100,
    kPayoff2 = 118,
    kAnnualTax = 170,
    kSewer = 171,
    kWater = 173,
    kOil = 174,
    kCommonCharge = 175,
    kSecurityDeposit = 176,
    kRent = 177,
    kClosingCostCredit = 178,
    kRepairCredit = 179,
    kRecordingFees = 180,
    kCourierFee = 181,
    kSmokeDetectorCredit = 203,
    kPropertyTown = 1072,
};
constexpr std::array<int, 4> kOtherAdjustments = {193, 194, 195, 196};
constexpr std::array<int, 6> kOtherDisbursements = {182, 183, 184, 185, 212, 213};

constexpr std::string_view kHyphen = "-";
constexpr std::string_view kHyphenThenEquals = "-=";

TaggedAmount ReadSewer(const std::string& text) {
    TaggedAmount sewer = ReadTaggedAmount(text, kHyphenThenEquals);
    if (text == "POC") sewer.tag = 0;
    return sewer;
}

TaggedAmount ReadCommission(const std::string& text) {
    TaggedAmount commission = ReadTaggedAmount(text, kHyphen);
    if (commission.delimiter != 0) return commission;
    return {AmountOf(text), 0, 0};
}

double ReadPayoff(const std::string& text) {
    return AmountOf(RightTrimmed(std::string_view(text).substr(0, text.find_first_of("-="))));
}

OtherAdjustment ReadOtherAdjustment(const std::string& text) {
    return {AmountBefore(text, kHyphenThenEquals), RightTrimmed(text).ends_with('P')};
}

std::optional<std::chrono::year_month_day> ReadProrationDate(const Job& job) {
    if (!job.IsFilled(kProrationDate)) return std::nullopt;
    const auto date = ReadDate(job.D(kProrationDate));
    if (!date) throw NotADate(job.D(kProrationDate));
    return date;
}

void ReadAdjustments(const Job& job, ClosingStatementEntries& entries) {
    const auto amount = [&job](int n) { return AmountOf(job.D(n)); };
    entries.AnnualTax = ReadTaggedAmount(job.D(kAnnualTax), kHyphen);
    entries.AnnualSewer = ReadSewer(job.D(kSewer));
    entries.WaterAdjustment = amount(kWater);
    entries.OilAdjustment = amount(kOil);
    entries.MonthlyCommonCharge = ReadTaggedAmount(job.D(kCommonCharge), kHyphen);
    entries.SecurityDeposit = amount(kSecurityDeposit);
    entries.MonthlyRent = ReadTaggedAmount(job.D(kRent), kHyphen);
    entries.ClosingCostCredit = amount(kClosingCostCredit);
    entries.RepairCredit = amount(kRepairCredit);
    entries.SmokeDetectorCredit = amount(kSmokeDetectorCredit);
    for (std::size_t i = 0; i < kOtherAdjustments.size(); ++i)
        entries.OtherAdjustments[i] = ReadOtherAdjustment(job.D(kOtherAdjustments[i]));
}

void ReadDisbursements(const Job& job, ClosingStatementEntries& entries) {
    const auto amount = [&job](int n) { return AmountOf(job.D(n)); };
    entries.Payoff1 = ReadPayoff(job.D(kPayoff1));
    entries.Payoff2 = job.optConf(TwoPayoffs) ? ReadPayoff(job.D(kPayoff2)) : 0;
    entries.Commission1 = ReadCommission(job.D(kCommission1));
    entries.Commission2 = ReadCommission(job.D(kCommission2));
    entries.CommissionLine =
        entries.Commission1.amount > 0 || entries.Commission2.amount > 0 || job.IsFilled(kRealtor2);
    entries.AttorneyFee = amount(kAttorneyFee);
    entries.RecordingFees = amount(kRecordingFees);
    entries.CourierFee = amount(kCourierFee);
    entries.ReleaseFees = ReleaseFee(job.txtField(kPayoff1).text) + ReleaseFee(job.txtField(kPayoff2).text);
    for (std::size_t i = 0; i < kOtherDisbursements.size(); ++i)
        entries.OtherDisbursements[i] = AmountBefore(job.D(kOtherDisbursements[i]), kHyphen);
}

}  // namespace

double ReleaseFee(std::string_view payoff) {
    if (payoff.ends_with(" R")) return 40;
    if (payoff.find(" =") != std::string_view::npos) return 199;
    return payoff.ends_with(" T") ? 100 : 0;
}

NotADate::NotADate(std::string_view text)
    : NotANumber(text), message_(fmt::format("the proration date \"{}\" is not a date", text)) {}

ClosingStatementEntries ReadClosingStatementEntries(const Job& job) {
    ClosingStatementEntries entries;
    entries.SalePrice = AmountOf(job.D(kSalePrice));
    entries.BinderDeposit = AmountOf(job.D(kBinderDeposit));
    entries.ContractDeposit = AmountOf(job.D(kContractDeposit));
    ReadAdjustments(job, entries);
    ReadDisbursements(job, entries);
    entries.ProrationDate = ReadProrationDate(job);
    entries.Town = Lowered(Trimmed(job.D(kPropertyTown)));
    entries.Condo = job.optConf(Condo);
    entries.Commercial = job.optConf(Commercial);
    entries.LandOrMultiFamily = job.optConf(LandMultiFamily);
    return entries;
}

}  // namespace quillmark
