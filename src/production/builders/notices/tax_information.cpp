#include "closing/closing_figures.h"
#include "closing/closing_statement.h"
#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/kit/passages.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

namespace {

constexpr double kFigureTab = 5.5;

std::string Dollars(double amount) {
    return ShownAmount(DecimalText(amount, 2));
}

/// One sheet, box by box from the top of the page.
struct InformationSheet {
    InformationSheet(const Production& from, Typist& typist, int seller)
        : production(from), job(from.job), type(typist), number(seller) {}

    void Rule() { type.Text(RepeatUnderscore(95), "\r"); }
    void Box(bool ticked, std::string_view text) {
        type.CheckBox(ticked);
        type.Text(text);
    }

    void Head();
    void Closing();
    void Proceeds();
    void Seller();
    void Circumstances();
    void Certification();

    /// This seller's part of an amount: the first of two takes the odd cent.
    double ShareOf(double amount) const {
        if (!job.Has(TwoSellers)) return amount;
        const double first = RoundCents(amount / 2);
        return number == 1 ? first : RoundCents(amount - first);
    }
    /// The share of a field's amount; the field's marker while it is unfilled.
    std::string ShareText(Field field, double amount) const {
        return job.IsFilled(field) ? Dollars(ShareOf(amount)) : job[field];
    }

    const Production& production;
    const JobValues job;
    Typist& type;
    const int number;
};

void InformationSheet::Head() {
    type.Align(word::AlignCentre);
    type.Font("Arial", 14);
    type.TypeBold("Proceeds From Real Estate Transactions");
    type.FontSize(10);
    type.Text("\rSeller's information for Form 1099-S\r");
    type.Align(word::AlignLeft);
    type.Font("Courier New", 9);
}

void InformationSheet::Closing() {
    Rule();
    type.Text("     Closing Date:       TYPE    ");
    Box(true, " Sale      ");
    Box(false, " Exchange      ");
    Box(false, " Other ____________________");
    type.Text("\r     ", job[ClosingDate], "\r");
    Rule();
    type.Text("Office Number                     Order/Escrow/File Number\r\r");
    Rule();
    type.Text("Property Sold\r", job.Property(), "\r");
    Rule();
}

void InformationSheet::Proceeds() {
    type.AtTab(kFigureTab, [&] {
        type.Text("SALES PRICE\t", job[SalePriceNumeric], "\r");
        type.Text("Share of this seller\t", job.Has(TwoSellers) ? "50%" : "100%", "\r");
        type.Text("Gross proceeds to be reported for this seller\t",
                  ShareText(SalePriceNumeric, AmountOf(job[SalePriceNumeric])), "\r");
        type.Text("Buyer's part of real estate tax");
        type.TypeSuperscript("1");
        type.Text("\t", ShareText(AnnualPropertyTax, BuyersPartOfTax(production.job, production.settings)),
                  "\r");
    });
    Rule();
    type.Text("Number of 1099-S forms required for this sale of property:  ", job.Has(TwoSellers) ? "2" : "1",
              "\r");
    Rule();
}

void InformationSheet::Seller() {
    const std::string& name = job[number == 2 ? Seller2Name : Seller1Name];
    type.AtTabs({3.5, 3.75}, [&] {
        type.Text("(Name:", RepeatTab(2), "Taxpayer Identification Number (TIN):");
        type.TypeSuperscript("2");
        type.Text("\r", name);
    });
    type.AtTab(3.75,
               [&] { type.Text("\t", TaxIdOrLine(job, number == 2 ? Seller2TaxId : Seller1TaxId), ")\r"); });
    Rule();
    const bool isEntity = job.Has(Entity);
    type.Text("Mailing Address After Closing\r", job.OneLine(isEntity ? Seller1Addr1 : SellerFwdAddr1), "\r",
              job[isEntity ? Seller1CityStateZip : SellerFwdCityStateZip], "\r");
    Rule();
}

void InformationSheet::Circumstances() {
    const bool isFiduciary = job.Has(EstateTrust);
    type.Text("This seller is   ");
    Box(!job.Has(Entity) && !isFiduciary, " an individual      ");
    Box(job.Has(Entity) && !isFiduciary, " a corporation or company      ");
    Box(isFiduciary, " an estate or trust\r\r");
    Box(false, " a foreign person (nonresident alien, foreign company, estate or trust)\r\r");
    Box(false, " to receive property or services besides money\r\r");
    Box(production.Makes("1099 Seller Certification"),
        " certifying that the property was a principal residence whose sale need not be reported\r");
    Rule();
}

void InformationSheet::Certification() {
    type.Font("Arial", 10);
    type.Text(
        "\rThe law requires whoever closes this sale to report it to the Internal Revenue Service and to ask you for "
        "your correct taxpayer identification number, and it requires you to give that number.  If you withhold it "
        "or give a wrong one, you may be liable to civil or criminal penalties.\r\r");
    type.Text(
        "Under penalties of perjury, I certify that the number shown on this sheet is my correct taxpayer "
        "identification number, and that the other information on it is true.\r");
    type.AtTab(kSignatureTab,
               [&] { TypeSignatures(type, OneSellersSigner(job, number, SellerRole(job, "Seller"))); });
    type.Text("Date:  ", job[DocumentDate], "\r\r");
    type.FontSize(8);
    type.TypeSuperscript("1");
    type.Text(
        "  Tax that the seller has paid for days from the proration date on, as credited at the closing; the share "
        "of this seller.\r");
    type.TypeSuperscript("2");
    type.Text("  Internal Revenue Code §§6045(e) and 6109.\r");
}

}  // namespace

/// What the closing attorney needs for the information return on the sale, one sheet a seller.
void TypeTaxInformationSheet(const Production& production, Typist& type, const Variant& variant) {
    InformationSheet sheet(production, type, variant.number);
    type.Indents(0);
    sheet.Head();
    sheet.Closing();
    sheet.Proceeds();
    sheet.Seller();
    sheet.Circumstances();
    sheet.Certification();
    type.Indents(0);
}

}  // namespace quillmark
