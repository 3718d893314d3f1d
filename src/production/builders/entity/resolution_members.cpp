#include "core/text_conversions.h"
#include "production/builders/entity/passages_entity.h"

namespace quillmark {

using namespace field;

namespace {

/// The sale at a glance.
void TypeTerms(const JobValues& job, Typist& type) {
    type.AtTabs({1.5, 1.75}, [&] {
        const auto term = [&](std::string_view label, std::string_view value) {
            type.TypeBold(label);
            type.Text(RepeatTab(2), value, "\r\r");
        };
        term("BUYER(S):", job.BuyerNames());
        term("SELLER:", job[Seller1Name]);
        term("PROPERTY:", job.Property());
        term("CLOSING:", job[ClosingDate]);
        term("PRICE:", job[SalePriceNumeric]);
    });
}

}  // namespace

/// The members' consent to a sale of the company's real property; an act of this weight needs them all.
void TypeUnanimousConsent(const JobValues& job, Typist& type) {
    BeginEntityPaper(type);
    TypeCaption(type, {"Unanimous Consent of Members to Sell Property", "LIMITED LIABILITY COMPANY"});
    TypeTerms(job, type);

    type.Text("The undersigned, being all of the members of ");
    TypeEntity(job, type, "limited liability company", "Company");
    type.Text(
        ", acting by written consent without a meeting, hereby approve the sale of the Property by the Seller to "
        "the Buyer(s) for the Price, on the terms of the contract of sale between them, and the conveyance of "
        "the Company's title at the Closing.\r\r");
    type.Text(
        "The undersigned hereby designate ", job[Seller1Agent],
        " as the authorized person to execute any and all documentation needed for the sale on behalf of "
        "the Company, among it the deed, the conveyance tax return and the closing statement, and to "
        "receive the proceeds; and ratify what the authorized person has already done toward the sale.\r\r");
    type.Text(
        "Whoever deals with the authorized person may rely on this Consent until notified in writing that it has "
        "been revoked. It may be signed in counterparts. The person who keeps the books of the Company shall"
        " place this document among the records of the Company.\r");

    TypeDatedSignatures(type, job[NamesOfMembers], "Member", RepeatUnderscore(15));
    type.Indents(0);
}

}  // namespace quillmark
