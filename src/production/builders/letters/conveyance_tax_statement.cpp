#include <fmt/format.h>

#include "closing/conveyance_tax.h"
#include "core/text_conversions.h"
#include "production/builders/letters/letter.h"

namespace quillmark {

using namespace field;

namespace {

constexpr double kNoteTab = 0.875;
constexpr double kFigureTab = 5.25;

/// A line to check, with what it says set off from the mark.
template <class... Parts>
void TypeCheckLine(Typist& type, const Parts&... parts) {
    type.Text("___\t", parts..., "\r");
}

std::string MunicipalTax(const JobValues& job) {
    if (!job.IsFilled(SalePriceNumeric)) return "$" + RepeatUnderscore(12);
    const double price = AmountOf(job[SalePriceNumeric]);
    return ShownAmount(
        fmt::format("{:.2f}", MunicipalConveyanceTax(price, job.Town(PropertyCityStateZip)).tax));
}

void TypeParties(const JobValues& job, Typist& type) {
    type.AtTab(1.75, [&] {
        const auto line = [&](std::string_view caption, std::string_view value) {
            type.TypeBold(caption);
            type.Text("\t", value, "\r");
        };
        line(job.Has(TwoSellers) ? "Grantors:" : "Grantor:", job.SellerNames());
        line(job.Has(TwoBuyers) ? "Grantees:" : "Grantee:", job.BuyerNames());
        line("Property:", job.OneLine(PropertyAddress1) + ", " + job.Town(PropertyCityStateZip));
        line("Date of Deed:", job[DocumentDate]);
    });
    type.Text("\r");
}

void TypeConsiderationLines(const JobValues& job, Typist& type) {
    type.TypeBold("The consideration for the conveyance is");
    type.Text(" (check one):", RepeatReturn(2));
    type.AtTabs({kNoteTab, kFigureTab}, [&] {
        TypeCheckLine(type, "Full purchase price, including assumed mortgage, etc.\t", job[SalePriceNumeric]);
        TypeCheckLine(type, "Other consideration, stated in the deed\t$", RepeatUnderscore(12));
        TypeCheckLine(type, "No consideration, or less than $2,000.00");
        type.Text("\r\tMunicipal conveyance tax upon the full purchase price\t", MunicipalTax(job),
                  RepeatReturn(2));
    });
}

/// The conveyances that C.G.S. Sec. 12-498 frees from the tax.
void TypeExemptions(Typist& type) {
    type.TypeBold("No tax is due, because the instrument is a");
    type.Text(" (check one):", RepeatReturn(2));
    type.AtTab(kNoteTab, [&] {
        for (const std::string_view exemption : {
                 "Mortgage Deed",
                 "Deed to or by the United States, State of Connecticut or any subdivision thereof",
                 "Release of property that was security for a debt",
                 "Tax Deed",
                 "Deed of partition",
                 "Deed made pursuant to a merger of corporations",
                 "Deed from a subsidiary to its parent corporation for the cancellation of its stock",
                 "Deed made pursuant to a decree of the Superior Court",
                 "Deed between spouses",
             }) {
            TypeCheckLine(type, exemption);
        }
        TypeCheckLine(type, "Other conveyance exempt by law:  ", RepeatUnderscore(41));
    });
    type.Text("\r");
}

void TypeGrantors(const JobValues& job, Typist& type) {
    const auto line = [&](Field name) {
        type.Text(RepeatReturn(2), SignatureRule(), "\rName:  ", job[name], "\rGrantor\r");
    };
    line(Seller1Name);
    if (job.Has(TwoSellers)) line(Seller2Name);
}

}  // namespace

/// The grantor's statement to the town clerk of what the conveyance tax on a deed is reckoned upon, or why
/// there is none (C.G.S. Sec. 12-494 and 12-498).
void TypeConveyanceTaxStatement(const JobValues& job, Typist& type) {
    BeginLetter(type);
    type.Text("\r");
    TypeHeadLines(type, {"STATEMENT - REAL ESTATE CONVEYANCE TAX"});
    type.Text("\rTo The Town Clerk of ", job.Town(PropertyCityStateZip), ", Connecticut", RepeatReturn(3));
    TypeParties(job, type);
    TypeConsiderationLines(job, type);
    TypeExemptions(type);
    type.Align(word::AlignJustified);
    TypeParagraph(
        type,
        "This statement accompanies the deed named above and is made so that the conveyance tax may be "
        "reckoned and collected when the deed is presented for record. It is true and complete to the "
        "best of the knowledge of the undersigned.");
    type.Align(word::AlignLeft);
    type.As(word::Role::Signature, [&] { TypeGrantors(job, type); });
    EndLetter(type);
}

}  // namespace quillmark
