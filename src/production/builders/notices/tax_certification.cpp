#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/kit/passages.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

namespace {

constexpr double kAnswerTab = 4.75;
constexpr double kStatementIndent = 0.5;

/// The boxes of an assurance, on a line of their own.
void TypeAnswers(Typist& type, bool mayBeInapplicable) {
    type.Text("\r\t");
    type.CheckBox(false);
    type.Text(" True       ");
    type.CheckBox(false);
    type.Text(" False");
    if (mayBeInapplicable) {
        type.Text("       ");
        type.CheckBox(false);
        type.Text(" N/A");
    }
    type.Text("\r\r");
}

void TypeSellerInformation(const JobValues& job, Typist& type, int number) {
    type.TypeBold("Part I.  Seller Information");
    type.Text("\r\r");
    type.Text("1.", RepeatTab(2), "Name:   ", job[number == 2 ? Seller2Name : Seller1Name], "\r");
    type.Text("2.", RepeatTab(2), "Property Address:   ", job.Property(), "\r");
    type.Text("3.", RepeatTab(2), "Taxpayer Identification Number (TIN):   ",
              TaxIdOrLine(job, number == 2 ? Seller2TaxId : Seller1TaxId), "\r\r");
}

/// The assurances of Rev. Proc. 2007-12, section 4.02. Each ends in a short line of its own for the boxes.
void TypeAssurances(Typist& type) {
    type.TypeBold("Part II.  Seller Assurances");
    type.Text("\rTick \"True\" or \"False\" for each assurance; (6) may also be \"N/A\".\r\r");
    type.Text(
        "(1)  In the five years that end on the day of the sale or exchange, I owned the residence and lived in it "
        "as my principal residence for two years or more altogether.");
    TypeAnswers(type, false);
    type.Text(
        "(2)  In the two years that end on that day, I sold or exchanged no other principal residence.");
    TypeAnswers(type, false);
    type.Text(
        "(3)  Since May 6, 1997, no part of the residence was rented or used for business by me, by my spouse, or "
        "by a former spouse to whom I was married at any time after that day.");
    TypeAnswers(type, false);
    type.Text("(4)  At least one of the following three statements applies:\r");
    type.Indents(kStatementIndent);
    type.Text("a.  The sale or exchange is of the entire residence for $250,000 or less; or\r");
    type.Text(
        "b.  I am married, the sale or exchange is of the entire residence for $500,000 or less, and the gain "
        "on it is $250,000 or less; or\r");
    type.Text(
        "c.  I am married, the sale or exchange is of the entire residence for $500,000 or less, I shall file "
        "a joint return for the year of the sale, and my spouse, too, lived in the residence as a principal "
        "residence for two of those five years and sold or exchanged no other in those two years.");
    TypeAnswers(type, false);
    type.Indents(kDeedIndent);
    type.Text(
        "(5)  In the five years that end on the day of the sale or exchange, I did not acquire the residence in an "
        "exchange under section 1031 of the Internal Revenue Code.");
    TypeAnswers(type, false);
    type.Text(
        "(6)  If my basis in the residence follows from that of someone who acquired it in an exchange under "
        "section 1031, that exchange took place more than five years before the sale.");
    TypeAnswers(type, true);
}

}  // namespace

/// The seller's written assurance by which a sale of a home need not be reported, Rev. Proc. 2007-12.
void TypeTaxCertification(const JobValues& job, Typist& type, const Variant& variant) {
    type.Indents(kDeedIndent);
    TypeTitle(type,
              "CERTIFICATION FOR NO INFORMATION REPORTING ON THE SALE OR EXCHANGE OF A PRINCIPAL RESIDENCE");

    type.Text(
        "This form may be completed by the seller of a principal residence, so that it can be decided whether the "
        "sale or exchange has to be reported to the seller and to the Internal Revenue Service on Form 1099-S, ");
    type.TypeItalic("Proceeds From Real Estate Transactions");
    type.Text(
        ".  No report is made for a seller who completes Parts I and III and can answer \"True\" to all six "
        "assurances of Part II, or \"N/A\" to the last.  Every owner of the residence, married or not, completes "
        "a form; the sale is reported for any owner who does not.\r\r");

    TypeSellerInformation(job, type, variant.number);
    type.AtTab(kAnswerTab, [&] { TypeAssurances(type); });

    type.TypeBold("Part III.  Seller Certification");
    type.Text(
        "\rUnder penalties of perjury, I certify that all of the above is true as of the end of the day of the sale "
        "or exchange.\r");
    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, OneSellersSigner(job, variant.number, SellerRole(job, "Seller")));
        type.Text("Date:  ", job[DocumentDate], "\r");
    });
    type.Indents(0);
}

}  // namespace quillmark
