#include "core/text_conversions.h"
#include "production/builders/powers/passages_power.h"

namespace quillmark {

using namespace field;

namespace {

void TypeTransaction(const JobValues& job, Typist& type, Articles& articles) {
    articles.Begin("ONE TRANSACTION");
    type.Text(
        "My agent may act for me in one transaction and in no other: the sale of the real property known as ");
    type.TypeBold(job.Property());
    type.Text(" (the \"Property\") to ");
    type.TypeBold(job.BuyerNames());
    type.Text(" for the price of ");
    type.TypeBold(job[SalePriceNumeric]);
    type.Text(
        ", with such changes of the price and of the other terms as my agent may agree to (the \"Sale\").",
        RepeatReturn(2));
}

void TypePowersInSale(Typist& type, Articles& articles) {
    articles.Begin("POWERS");
    type.Text("For the Sale my agent may, in my name and as I could myself:", RepeatReturn(2));
    type.NumberedList({
        "Sign, change, extend and carry out the contract for the Sale, and give and receive notices under it.",
        "Sign, acknowledge and deliver a deed of all my interest in the Property, with the covenants that the "
        "contract calls for, and the returns for the conveyance taxes that become due upon it.",
        "Sign and, where the law requires it, swear to the affidavits, certifications, closing statements, tax "
        "forms and other papers that a seller of real property gives to the buyer, to a lender or to a title "
        "insurer.",
        "Agree on adjustments and credits, pay off the mortgages, liens, taxes and charges upon the Property, "
        "and pay the commissions, fees and expenses of the Sale out of its proceeds.",
        "Receive the rest of the proceeds, give a receipt for them, and pay them over to me or deposit them in "
        "an account of mine.",
        "Give up possession of the Property, and do whatever else the Sale calls for, so that nothing is left "
        "undone for want of authority; for this purpose my agent has authority over real property as Sec. "
        "1-351c of the Connecticut General Statutes defines it.",
    });
}

}  // namespace

/// A power for the sale of the job's property and nothing else.
void TypeSpecificPower(const JobValues& job, Typist& type) {
    TypePowerHeading(job, type, "POWER OF ATTORNEY - SPECIFIC");
    TypeDesignation(job, type, 1);
    type.Text(RepeatReturn(2));

    Articles articles(type);
    TypeTransaction(job, type, articles);
    TypePowersInSale(type, articles);

    type.PageBreak();  // what follows stands on the page that is signed
    TypeSuccessors(job, type, articles);
    TypeEffectiveDate(job, type, articles, ", or when the Sale has been completed and its proceeds paid out");
    TypeReliance(type, articles);

    TypePrincipalExecution(job, type);
}

}  // namespace quillmark
