#include "core/text_conversions.h"
#include "production/kit/passages.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

namespace {

void TypeDuties(Typist& type) {
    type.NumberedList({
        "The SELLER shall be obligated to obtain and transmit to the BUYER's attorney, not less than ten (10) days "
        "before the closing date, every figure for the disclosure that lies with the SELLER: the amounts needed to "
        "release the liens on the Property, the conveyance taxes, the brokers' commissions, the bills for taxes, "
        "utilities and common charges that are to be adjusted, and the SELLER's own closing costs; and to report any "
        "change in them on the day it becomes known.",
        "The SELLER and BUYER shall collaborate, with their attorneys and brokers, in settling the adjustments and "
        "any credit or repair agreed upon after an inspection in time for the disclosure, and neither shall ask for "
        "a change of price, credit or cost later than seven (7) days before the closing date unless the other "
        "consents in writing.",
        "The BUYER shall give the lender without delay whatever the lender needs for the disclosure, shall authorize "
        "the lender and the settlement agent to share it with both attorneys, and shall acknowledge receipt of it on "
        "the day it arrives.",
        "If the BUYER's lender cannot consummate the loan on the closing date because the disclosure was late, was "
        "incorrect or must be given anew, and the party who asks for time has performed the duties above, the closing "
        "is adjourned to the first business day on which the lender can close, but for no more than ten (10) business "
        "days, and neither party is in default by reason of the delay. Adjustments are made as of the day to which "
        "the closing is adjourned.",
        "If a party's failure to perform those duties is what delays the closing, that party shall pay the other's "
        "reasonable costs of the delay, such as the cost of extending a rate lock, in addition to any remedy under "
        "the Contract.",
        "In all else the Contract stands as written. Where this Addendum and the Contract differ, this Addendum "
        "governs.",
    });
}

}  // namespace

/// Who supplies the figures of the lender's Closing Disclosure, 12 C.F.R. Sec. 1026.19(f), and what follows
/// when it is late.
void TypeClosingDisclosureAddendum(const JobValues& job, Typist& type) {
    type.Indents(kDeedIndent);
    TypeTitle(type, "CFPB CLOSING DISCLOSURE ADDENDUM TO CONTRACT");

    type.Text(
        "This CFPB Closing Disclosure Addendum to Contract is made and entered into this ",
        job.DayMonthYear(DocumentDate),
        ", and is hereby made part of and incorporated into that certain Contract for the purchase and sale of "
        "real estate dated ",
        job[ContractDate], ", by and between ");
    type.TypeBold(job.SellerNames());
    type.Text(" (\"SELLER\") and ");
    type.TypeBold(job.BuyerNames());
    type.Text(" (\"BUYER\"), and pertaining to the real property commonly known as ");
    type.TypeBold(job.OneLine(PropertyAddress1), ", ", job.Town(PropertyCityStateZip));
    type.Text(", Connecticut (\"Property\");\r\r");

    type.Text(
        "Federal regulation requires timely and accurate disclosure of closing costs to a BUYER who borrows: the "
        "lender's Closing Disclosure must be in the BUYER's hands at least three business days before the loan is "
        "consummated, and certain changes to it begin that period anew.\r\r");
    type.Text(
        "The intent of this Addendum is 1) to set forth the respective responsibilities of the parties for the "
        "figures from which the Closing Disclosure is made, and 2) to provide for a closing that must wait for "
        "it.\r\r");
    type.Text("Therefore, the parties agree as follows:\r\r");
    TypeDuties(type);

    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, SellerSigners(job, SellerRole(job, "Seller")));
        TypeSignatures(type, BuyerSigners(job, "Buyer"));
    });
    type.Indents(0);
}

}  // namespace quillmark
