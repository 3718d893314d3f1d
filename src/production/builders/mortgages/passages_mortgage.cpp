#include "production/builders/mortgages/passages_mortgage.h"

#include <array>

#include "core/text_conversions.h"
#include "production/builders/text_bodies.h"
#include "production/kit/phrases.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

namespace {

constexpr Party kForwarding = {Seller1Name, SellerFwdAddr1, SellerFwdCityStateZip};
/// A date to be written in by hand.
constexpr std::uint16_t kBlankDate = 16;

// The uniform instrument asks for the names alone, so the job may hold no addresses of the parties to name
// them with.
void TypeBorrower(const JobValues& job, Typist& type) {
    if (job.IsFilled(Buyer1Addr1) && (!job.Has(TwoBuyers) || job.IsFilled(Buyer2Addr1))) {
        TypeGranteePhrase(job, type, Names::Bold);
    } else {
        type.TypeBold(job.BuyerNames());
    }
}

void TypeLender(const JobValues& job, Typist& type) {
    if (job.IsFilled(Seller1Addr1) && (!job.Has(TwoSellers) || job.IsFilled(Seller2Addr1))) {
        TypeGrantorPhrase(job, type, Names::Bold);
    } else {
        type.TypeBold(job.SellerNames());
    }
}

void TypeLendersStanding(const JobValues& job, Typist& type) {
    const bool isTwo = job.Has(TwoSellers);
    if (job.Has(Entity)) {
        type.Text(
            isTwo ? "Each of them is an organization that was duly formed and exists under the law of the "
                    "place of its formation, and the two together are Lender."
                  : "Lender is an organization that was duly formed and exists under the law of the place "
                    "of its formation.");
    } else if (isTwo) {
        type.Text("Both are individuals, and the two together are Lender.");
    } else {
        type.Text("Lender is an individual", job.Has(EstateTrust) ? " who acts as a fiduciary." : ".");
    }
}

// No document asks for this date, so without one the line stays to be written in.
void TypeNewMaturityDate(const JobValues& job, Typist& type) {
    type.Text(job.IsFilled(RefiMaturityDate) ? job[RefiMaturityDate] : RepeatUnderscore(kBlankDate));
}

void TypePercent(Typist& type, const std::string& value) {
    const std::string lowered = Lowered(value);
    const bool isSaid = lowered.ends_with('%') || lowered.ends_with("percent");
    type.Text(value, isSaid ? "" : "%");
}

void TypePaymentDay(const JobValues& job, Typist& type) {
    if (const auto first = ReadDate(job[NoteFirstPymtDate])) {
        const std::string day = FormatDate(*first, DateForm::Day);
        type.Text(day, OrdinalSuffix(day), " day");
    } else {
        type.Text("same day");
    }
}

}  // namespace

std::string LenderAddress(const JobValues& job) {
    return job.Address(job.IsFilled(SellerFwdAddr1) ? kForwarding : kSeller1);
}

Passages MortgagePassages() {
    // clang-format off
    static constexpr auto kPassages = std::to_array<Passage>({
        {"borrower",          TypeBorrower},
        {"lender",            TypeLender},
        {"lender's standing", TypeLendersStanding},
        {"lender's address",  [](const JobValues& job, Typist& type) { type.Text(LenderAddress(job)); }},
        {"new maturity date", TypeNewMaturityDate},
        {"interest rate",     [](const JobValues& job, Typist& type) { TypePercent(type, job[NoteInterestRate]); }},
        {"late charge",       [](const JobValues& job, Typist& type) { TypePercent(type, job[NoteLateCharge]); }},
        {"payment day",       TypePaymentDay},
    });
    // clang-format on
    return kPassages;
}

void TypeBalloonRider(const JobValues& job, Typist& type) {
    type.PageBreak();
    type.Align(word::AlignCentre);
    type.Font("Arial", 11);
    type.TypeBold("BALLOON RIDER\r(CONDITIONAL RIGHT TO REFINANCE)", RepeatReturn(2));
    type.Align(word::AlignLeft);
    type.FontSize(10);
    TypeBody("mortgages/balloon_rider.txt", job, type);
    type.AtTab(kSignatureTab, [&] { TypeSignatures(type, BuyerSigners(job, "Borrower")); });
}

}  // namespace quillmark
