#include "production/builders/deeds/passages_deed.h"

#include "core/text_conversions.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

namespace {

void TypeExecutionDate(const JobValues& job, Typist& type, std::string_view whoHave) {
    type.TypeBold("IN WITNESS WHEREOF");
    type.Text(", the ", whoHave, " caused these presents to be executed on this ",
              job.DayMonthYear(DocumentDate), ".\r");
}

void TypeTwoSignatures(const JobValues& job, Typist& type, const SellersByPower& power) {
    const std::string& left = job[power.PoaSeller == 1 ? PrincipalOfPower : Seller1Name];
    const std::string& right = job[power.PoaSeller == 2 ? PrincipalOfPower : Seller2Name];
    type.Text(RepeatReturn(2), SignatureRule(), "\t", SignatureRule(), "\r");
    type.Text(left, ", Grantor\t", right, ", Grantor");
    switch (power.PoaSeller) {
        case 1:
            type.Text("\rBy ", job[AttyInFact], ", his/her Attorney in Fact", RepeatReturn(2));
            break;
        case 2:
            type.Text("\r\tBy ", job[AttyInFact], ", his/her Attorney in Fact", RepeatReturn(2));
            break;
        default:
            type.Text(RepeatReturn(3));
    }
}

void TypeEntitySignature(const JobValues& job, Typist& type) {
    // One buyer's clause is shorter than two buyers', and the extra return keeps the form's length.
    if (job.Has(OneBuyer)) type.Text("\r");
    type.Text(RepeatReturn(3), "\t", job[Seller1Name], ", Grantor", RepeatReturn(2));
    type.Text(std::string(88, ' '), "By:  ", SignatureRule(), "\r");
    type.Text("\t", job[Seller1Agent], ", ", job[Seller1AgentTitle], RepeatReturn(2));
}

void TypePrincipalSignature(const JobValues& job, Typist& type) {
    type.Text(RepeatReturn(2), "\t", SignatureRule(), "\r");
    type.Text("\t", job[PrincipalOfPower], ", Grantor\r");
    type.Text("\tBy ", job[AttyInFact], ", his/her Attorney in Fact", RepeatReturn(2));
}

void TypeAcknowledgmentByPower(const JobValues& job, Typist& type, const SellersByPower& power) {
    const std::string& attorney = job[AttyInFact];
    const std::string& principal = job[PrincipalOfPower];
    type.Text("On this the ", job.DayMonthYear(DocumentDate), ", before me, personally appeared ");
    if (!job.Has(TwoSellers)) {
        type.Text(attorney,
                  ", known to me (or satisfactorily proven) to be the person whose name is subscribed to "
                  "the within instrument as attorney in fact for ",
                  principal,
                  " and acknowledged that he/she executed the same as the act of his/her principal for the "
                  "purposes therein contained.");
    } else if (attorney != job[Seller1Name] && attorney != job[Seller2Name]) {
        type.Text(
            power.OtherSellerName, " and personally appeared ", attorney, " attorney in fact for ", principal,
            ", known to me (or satisfactorily proven) to be the persons whose names are subscribed to the "
            "within instrument, and acknowledged that they executed the same as their own free act and "
            "deed and as that of the principal, for the purposes therein contained.");
    } else {
        type.Text(attorney,
                  ", known to me (or satisfactorily proven) to be the person whose name is subscribed to "
                  "the within instrument on behalf of his/her own self and as attorney in fact for ",
                  principal,
                  ", and acknowledged that he/she executed the same as his/her own free act and deed and "
                  "as that of the principal, for the purposes therein contained.");
    }
}

}  // namespace

SellersByPower FindSellersByPower(const JobValues& job) {
    SellersByPower power;
    if (!job.Has(PowerOfAttorney)) return power;
    const auto decide = [&](int poaSeller, const Party& principal, const Party& other) {
        power.PoaSeller = poaSeller;
        power.OtherSellerName = job[other.name];
        power.OtherSellerPlace = " of " + job.Address(other);
        power.PrincipalPlace = " of " + job.Address(principal) + " acting herein by " + job[AttyInFact] +
                               ", his/her attorney in fact, pursuant to a power of attorney dated " +
                               job[DateOfPower] + " and recorded simultaneously herewith";
        if (job.Has(TwoSellers)) power.PrincipalPlace += ", and ";
    };
    if (job[PrincipalOfPower] == job[Seller1Name]) {
        decide(1, kSeller1, kSeller2);
    } else if (job[PrincipalOfPower] == job[Seller2Name]) {
        decide(2, kSeller2, kSeller1);
    }
    return power;
}

void TypeDeedOpening(Typist& type) {
    type.Text("TO ALL PERSONS TO WHOM THESE PRESENTS SHALL COME, KNOW YE THAT ");
}

void TypeGrantors(const JobValues& job, Typist& type, const SellersByPower& power) {
    if (power.PoaSeller == 0) {
        TypeGrantorPhrase(job, type, "Bold");
        return;
    }
    type.TypeBold(job[PrincipalOfPower]);
    type.Text(power.PrincipalPlace);
    if (job.Has(TwoSellers)) {
        type.TypeBold(power.OtherSellerName);
        type.Text(power.OtherSellerPlace);
    }
}

void TypeFiduciary(const JobValues& job, Typist& type) {
    type.TypeBold(job[Seller1Name]);
    type.Text(" of ", job.Address(kSeller1));
}

void TypeConsideration(const JobValues& job, Typist& type, std::string_view grant) {
    type.Text(", for consideration of ", job.Words(SalePriceNumeric), " DOLLARS (");
    type.TypeBold(job[SalePriceNumeric]);
    type.Text("), ", grant, " to ");
}

void TypePremises(const JobValues& job, Typist& type, std::string_view covenants) {
    type.Text(", with ", covenants, ", all that certain real property known as ");
    type.TypeBold(job.Property());
    type.Text(", being more particularly described in ");
    type.TypeItalic("Schedule A");
    type.Text(" attached hereto and made a part hereof.", RepeatReturn(2));
}

void TypeUsualEncumbrances(Typist& type) {
    type.Text("Said Premises are conveyed subject to:", RepeatReturn(2));
    type.NumberedList({
        "Any and all provisions of any municipal, ordinance or regulation or public or private law with "
        "special reference to the provisions of any zoning regulations and regulations governing the said "
        "Premises.",
        "Real property taxes on the current Grand List and any municipal liens or assessments becoming due "
        "and payable on or after the delivery of this Deed.",
        "Such additional encumbrances, if any, as more particularly set forth in Schedule A attached hereto.",
    });
}

void TypeGrantorSignatures(const JobValues& job, Typist& type, const SellersByPower& power) {
    if (job.Has(TwoSellers)) {
        TypeTwoSignatures(job, type, power);
    } else if (job.Has(Entity)) {
        TypeEntitySignature(job, type);
    } else if (power.PoaSeller > 0) {
        TypePrincipalSignature(job, type);
    } else {
        TypeGrantorSignature(job, type);
    }
}

void TypeGrantorSignature(const JobValues& job, Typist& type) {
    type.Text(RepeatReturn(2), "\t", SignatureRule(), "\r");
    type.Text("\t", job[Seller1Name], ", Grantor", RepeatReturn(2));
}

void TypeGrantorAcknowledgment(const JobValues& job, Typist& type, const SellersByPower& power) {
    if (job.Has(Person) && power.PoaSeller != 0) {
        TypeAcknowledgmentByPower(job, type, power);
    } else if (job.Has(TwoSellers)) {
        TypeAcknowledgment(job, type, job.SellerNames(), true);
    } else if (job.Has(Entity)) {
        TypeAcknowledgment(
            job, type, job[Seller1Agent] + ", " + job[Seller1AgentTitle] + " of " + job[Seller1Name], false);
    } else {
        TypeAcknowledgment(job, type, job[Seller1Name], false);
    }
}

void TypeSellersExecution(const JobValues& job, Typist& type, const SellersByPower& power) {
    const bool crowded = job.Has(TwoSellers) || job.Has(TwoBuyers) || job.Has(Entity);
    TypeExecutionDate(job, type, job.Has(TwoSellers) ? "Grantors have" : "Grantor has");
    type.AddTab(kSignatureTab);
    TypeGrantorSignatures(job, type, power);
    // Fewer returns keep the signatures of a long deed on one page.
    TypeWitnesses(job, type, crowded ? 2 : 3);
    TypeVenue(job, type);
    TypeGrantorAcknowledgment(job, type, power);
    TypeNotary(job, type);
    type.ClearTab(kSignatureTab);
    type.Indents(0);
}

void TypeFiduciaryExecution(const JobValues& job, Typist& type) {
    TypeExecutionDate(job, type, "Grantor has");
    type.AddTab(kSignatureTab);
    TypeGrantorSignature(job, type);
    TypeWitnesses(job, type, job.Has(TwoBuyers) ? 2 : 3);
    TypeVenue(job, type);
    TypeAcknowledgment(job, type, job[Seller1Name], false);
    TypeNotary(job, type);
    type.ClearTab(kSignatureTab);
    type.Indents(0);
}

}  // namespace quillmark
