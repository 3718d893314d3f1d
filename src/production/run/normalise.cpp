#include "production/run/normalise.h"

#include "core/fields.h"
#include "core/text_conversions.h"

namespace quillmark {

namespace {

/// Fields that may stay blank in a finished document.
constexpr field::Field kMayStayBlank[] = {
    field::Seller1TaxId,  field::Seller2TaxId,     field::Buyer1TaxId, field::Buyer2TaxId,
    field::Payoff1Method, field::Payoff2Method,    field::Witness1,    field::Witness2,
    field::Mtgee1Agent,   field::Mtgee1AgentTitle, field::Mtgee2Agent, field::Mtgee2AgentTitle,
};

constexpr std::uint16_t kBlankTime = 8;
constexpr std::uint16_t kBlankDate = 16;

/// A document that names the principal left the marker in the value, also where its field takes no row: with
/// a single seller nobody is asked whose power it is.
bool NamesPrincipal(const Job& job) {
    return job.txtField(field::PrincipalOfPower).relevant ||
           job.D(field::PrincipalOfPower) == FieldMarker(field::PrincipalOfPower);
}

}  // namespace

NormalisedValues::NormalisedValues(Job& job, std::chrono::year_month_day today) : job_(job) {
    DateDocuments(today);
    NamePrincipal();
    FillLawFirmAndTime();
    StripTags();
    LeaveBlank();
}

void NormalisedValues::Undo() {
    for (const auto& [n, text] : afterwards_) job_.SetValue(n, text);
    afterwards_.clear();
}

void NormalisedValues::Put(int n, const std::string& text) {
    job_.SetValue(n, text);
}

void NormalisedValues::PutForNow(int n, const std::string& text, std::string afterwards) {
    afterwards_.emplace_back(n, std::move(afterwards));
    job_.SetValue(n, text);
}

void NormalisedValues::DateDocuments(std::chrono::year_month_day today) {
    if (job_.IsFilled(field::DocumentDate)) return;
    const std::string day = FormatDate(today, DateForm::Day);
    Put(field::DocumentDate, FormatDate(today, DateForm::LongTwoDigits));
    job_.SetDerived(1, field::DocumentDate, FormatDate(today, DateForm::Month));
    job_.SetDerived(2, field::DocumentDate, day + OrdinalSuffix(day));
    job_.SetDerived(3, field::DocumentDate, FormatDate(today, DateForm::Year));
}

void NormalisedValues::NamePrincipal() {
    if (NamesPrincipal(job_) && !job_.IsFilled(field::PrincipalOfPower) && job_.IsFilled(field::Seller1Name))
        Put(field::PrincipalOfPower, job_.D(field::Seller1Name));
}

void NormalisedValues::FillLawFirmAndTime() {
    if (!job_.IsFilled(field::BuyerLawfirm) && job_.IsFilled(field::BuyerAtty))
        PutForNow(field::BuyerLawfirm, job_.D(field::BuyerAtty),
                  std::string(FieldMarker(field::BuyerLawfirm)));
    if (!job_.IsFilled(field::ClosingTime))
        PutForNow(field::ClosingTime, RepeatUnderscore(kBlankTime),
                  std::string(FieldMarker(field::ClosingTime)));
    if (job_.txtField(field::RefiMaturityDate).relevant && !job_.IsFilled(field::RefiMaturityDate))
        Put(field::RefiMaturityDate, RepeatUnderscore(kBlankDate));
}

void NormalisedValues::StripTags() {
    for (int n : {field::Payoff1Amount, field::Payoff2Amount}) {
        const std::string value = job_.D(n);
        if (const auto mark = value.find_first_of("-="); mark != value.npos)
            PutForNow(n, std::string(RightTrimmed(value.substr(0, mark))), value);
    }
    const std::string attorney = job_.D(field::SellerAtty);
    if (const auto slash = attorney.find('/'); slash != attorney.npos)
        PutForNow(field::SellerAtty, attorney.substr(0, slash), attorney);
}

void NormalisedValues::LeaveBlank() {
    for (int n : kMayStayBlank)
        if (!job_.IsFilled(n)) Put(n, "");
}

}  // namespace quillmark
