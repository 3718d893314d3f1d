#include "production/builders/entity/passages_entity.h"

#include "core/people.h"
#include "core/text_conversions.h"

namespace quillmark {

using namespace field;

void BeginEntityPaper(Typist& type) {
    type.Indents(kDeedIndent);
    type.Align(word::AlignLeft);
    type.Font("Times New Roman", 12);
}

void TypeCaption(Typist& type, std::initializer_list<std::string_view> lines) {
    type.Align(word::AlignCentre);
    type.FontSize(14);
    type.As(word::Role::Title, [&] {
        for (const std::string_view line : lines) type.TypeBold(line, "\r");
        type.FontSize(12);
        type.Text("\r");
    });
    type.Align(word::AlignLeft);
}

void TypeEntity(const JobValues& job, Typist& type, std::string_view kind, std::string_view shortly) {
    type.TypeBold(job[Seller1Name]);
    type.Text(", a ", kind, " organized under the laws of the State of ", job[StateOfFormation], " (the \"",
              shortly, "\")");
}

void TypeConveyanceBySale(const JobValues& job, Typist& type) {
    type.Text(" shall convey property owned by the Corporation located at ", job.Property(), " to ",
              job.BuyerNames(), " for the sum of ", job[SalePriceNumeric],
              ", the closing of the sale to be held on or about ", job[ClosingDate]);
}

void TypeAuthority(Typist& type) {
    type.Text(
        " is hereby authorized and directed, in the name and on behalf of the Corporation, to sign, "
        "acknowledge and deliver the deed, the conveyance tax return, the closing statement and every other "
        "paper that the sale calls for, to receive the proceeds, and to do whatever else is needful to carry "
        "this resolution into effect.");
}

void TypeDatedSignatures(Typist& type, std::string_view names, std::string_view capacity,
                         std::string_view date) {
    constexpr double kDateTab = 4.5;
    type.AtTab(kDateTab, [&] {
        type.As(word::Role::Signature, [&] {
            for (const std::string& name : PeopleIn(names))
                type.Text("\r\r", SignatureRule(), "\tDated: ", date, "\r", name, ", ", capacity, "\r");
        });
    });
}

void TypeSecretarySignature(const JobValues& job, Typist& type) {
    type.AtTab(kSignatureTab, [&] {
        type.As(word::Role::Signature, [&] {
            type.Text(RepeatReturn(3), "\t", RepeatUnderscore(33), "\r\t", job[CorporateSecretary],
                      ", Secretary\r\r(Corporate Seal)\r");
        });
    });
}

}  // namespace quillmark
