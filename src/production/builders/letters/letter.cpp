#include "production/builders/letters/letter.h"

#include "core/text_conversions.h"

namespace quillmark {

using namespace field;

namespace {

void TypeFirm(const JobValues& job, Typist& type) {
    type.Align(word::AlignCentre);
    type.TypeBold(job[SellerLawfirm]);
    type.Text("\r", job.TwoLines(SellerAttyAddr1), "\r", job[SellerAttyCityStateZip], "\r",
              job[SellerAttyPhone]);
    if (job.IsFilled(SellerAttyFax)) type.Text("     Fax:  ", job[SellerAttyFax]);
    type.Text(RepeatReturn(2));
}

}  // namespace

void BeginLetter(Typist& type) {
    type.Indents(kLetterIndent);
    type.Align(word::AlignLeft);
    type.Font("Arial", 11);
    type.Role(word::Role::Letter);
}

void EndLetter(Typist& type) {
    type.Indents(0);
}

void TypeLetterHead(const JobValues& job, Typist& type, LetterheadRoom room) {
    if (job.Has(Letterhead)) {
        type.Text(RepeatReturn(static_cast<std::uint16_t>(room)));
    } else {
        TypeFirm(job, type);
    }
    type.Align(word::AlignLeft);
    type.Text(job[DocumentDate], RepeatReturn(3));
}

void TypeHeadLines(Typist& type, std::initializer_list<std::string_view> lines, word::Role role) {
    type.Align(word::AlignCentre);
    type.Bold(true);
    type.As(role, [&] {
        for (const std::string_view line : lines) type.Text(line, "\r");
    });
    type.Bold(false);
    type.Text("\r");
    type.Align(word::AlignLeft);
}

void TypeBuyersAttorney(const JobValues& job, Typist& type) {
    type.Text("Attorney ", job[BuyerAtty], "\r");
    if (job[BuyerLawfirm].find(job[BuyerAtty]) == std::string::npos) type.Text(job[BuyerLawfirm], "\r");
    type.Text(job.TwoLines(BuyerAttyAddr1), "\r", job[BuyerAttyCityStateZip], "\r");
}

void TypeReferenceLine(const JobValues& job, Typist& type) {
    type.Text("Re:\t", job.LastName(Seller1Name));
    if (job.Has(TwoSellers)) type.Text(", et al");
    type.Text("  To  ", job.LastName(Buyer1Name));
    if (job.Has(TwoBuyers)) type.Text(", et al");
    type.Text("\r\t\t", job.OneLine(PropertyAddress1), ", ", job.Town(PropertyCityStateZip), RepeatReturn(3));
}

void TypeDearAttorney(const JobValues& job, Typist& type) {
    type.Text("Dear Attorney ", job.LastName(BuyerAtty), ":", RepeatReturn(2));
}

void TypeList(Typist& type, double indent, std::initializer_list<std::string_view> items) {
    TypeList(type, indent, [&] {
        for (const std::string_view item : items) type.Text(item, "\v\r");
    });
}

void TypeClosing(const JobValues& job, Typist& type, std::string_view closing, std::uint16_t returns) {
    type.Align(word::AlignLeft);
    type.As(word::Role::Signature, [&] { type.Text(closing, RepeatReturn(returns), job[SellerAtty], "\r"); });
}

void TypeFirmSignature(const JobValues& job, Typist& type) {
    type.Align(word::AlignLeft);
    type.As(word::Role::Signature, [&] {
        type.Text(job[SellerLawfirm], RepeatReturn(3), "By:  ", SignatureRule(), "\r      ", job[SellerAtty],
                  "\r");
    });
}

}  // namespace quillmark
