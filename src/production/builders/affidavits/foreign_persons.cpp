#include "core/text_conversions.h"
#include "production/builders/affidavits/passages_affidavit.h"
#include "production/builders/builder_list.h"
#include "production/kit/passages.h"

namespace quillmark {

using namespace field;

namespace {

/// A seller as the Internal Revenue Service knows one.
struct Taxpayer {
    Party party;
    Field taxId;
};
constexpr Taxpayer kTaxpayers[] = {{kSeller1, Seller1TaxId}, {kSeller2, Seller2TaxId}};

void TypeHead(Typist& type, std::string_view transferor) {
    type.Indents(kDeedIndent);
    type.Align(word::AlignCentre);
    type.Font("Arial", 11);
    type.TypeBold("Non-Foreign Persons Affidavit\r", "CERTIFICATION\r", transferor, RepeatReturn(2));
    type.Align(word::AlignLeft);
    type.FontSize(10);
}

/// Why there is a certification, up to the words that name the property.
void TypeReason(Typist& type) {
    type.Text(
        "Section 1445 of the Internal Revenue Code obliges one who acquires a United States real property "
        "interest (the transferee) to withhold tax when the interest comes from a foreign person. To show the "
        "transferee of the property ");
}

void TypeEntityForm(const JobValues& job, Typist& type) {
    TypeHead(type, "ENTITY TRANSFEROR\r(Internal Revenue Code §1445)");
    TypeReason(type);
    type.Text("known as ");
    type.TypeBold(job.Property());
    type.Text(" that no tax has to be withheld, the undersigned certifies for ");
    type.TypeBold(job[Seller1Name]);
    type.Text(" (\"Transferor\"):", RepeatReturn(2));

    type.BeginList();
    type.Text(
        "Transferor is not a foreign corporation, foreign partnership, foreign trust or foreign estate, as the "
        "Internal Revenue Code and the Income Tax Regulations use those terms.");
    type.EndItem();
    type.Text(
        "Transferor is not a disregarded entity as defined in §1.1445-2(b)(2)(iii) of the Regulations.");
    type.EndItem();
    type.Text("Transferor's U.S. Employer Identification Number is ", TaxIdOrLine(job, Seller1TaxId), ".");
    type.EndItem();
    type.Text("Transferor's office address is ", job.Address(kSeller1), ".");
    type.EndItem();
    type.EndList();

    type.Text(
        "Transferor understands that this certification may be disclosed to the Internal Revenue Service by the "
        "transferee, and that a false statement in it can be punished by fine, by imprisonment or by both.",
        RepeatReturn(2));
    type.Text(
        "Under penalties of perjury I declare that I have read this certification, that to the best of my "
        "knowledge and belief it is true, correct and complete, and that I have authority to sign it for "
        "Transferor.",
        RepeatReturn(2));
    TypeSworn(job, type, SellerSigners(job, "Transferor"));
}

void TypeIndividualForm(const JobValues& job, Typist& type, int number) {
    const Taxpayer& transferor = kTaxpayers[number - 1];
    TypeHead(type, "INDIVIDUAL TRANSFEROR");
    type.Text("Address of Subject Property:   ");
    type.TypeBold(job.Property());
    type.Text(RepeatReturn(2));
    TypeReason(type);
    type.Text("named above that no tax has to be withheld on my account, I, ");
    type.TypeBold(job[transferor.party.name]);
    type.Text(", certify:", RepeatReturn(2));

    type.BeginList();
    type.Text("I am not a non-resident alien for purposes of U.S. income taxation.");
    type.EndItem();
    type.Text("My U.S. taxpayer identifying number (Social Security Number) is ",
              TaxIdOrLine(job, transferor.taxId), ".");
    type.EndItem();
    type.Text("My home address is ", job.Address(transferor.party), ".");
    type.EndItem();
    type.EndList();

    type.Text(
        "I understand that this certification may be disclosed to the Internal Revenue Service by the "
        "transferee, and that a false statement in it can be punished by fine, by imprisonment or by both.",
        RepeatReturn(2));
    type.Text(
        "Under penalties of perjury I declare that I have read this certification and that to the best of my "
        "knowledge and belief it is true, correct and complete.",
        RepeatReturn(2));
    TypeSworn(job, type, OneSellersSigner(job, number, SellerRole(job, "Transferor")));
}

}  // namespace

/// The certification of non-foreign status of Treas. Reg. §1.1445-2(b)(2), of an entity or of one person.
void TypeForeignPersonsAffidavit(const JobValues& job, Typist& type, const Variant& variant) {
    if (job.Has(Entity) && variant.number == 1) {
        TypeEntityForm(job, type);
    } else {
        TypeIndividualForm(job, type, variant.number);
    }
}

}  // namespace quillmark
