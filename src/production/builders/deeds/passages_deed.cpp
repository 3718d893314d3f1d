#include "production/builders/deeds/passages_deed.h"

#include "core/text_conversions.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

namespace {

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

void TypeGrantors(const JobValues& job, Typist& type, const SellersByPower& power) {
    if (power.PoaSeller == 0) {
        TypeGrantorPhrase(job, type, Names::Bold);
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

void TypeGrantorAcknowledgment(const JobValues& job, Typist& type, const SellersByPower& power) {
    if (job.Has(Person) && power.PoaSeller != 0) {
        type.As(word::Role::Notary, [&] { TypeAcknowledgmentByPower(job, type, power); });
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
    TypeExecutionDate(job, type, job.Has(TwoSellers) ? "Grantors have" : "Grantor has", 1);
    type.AtTab(kSignatureTab, [&] {
        const Signers grantors = SellerSigners(job, "Grantor");
        // One buyer's clause is shorter than two buyers', and the extra return keeps the form's length.
        if (!grantors.agent.empty() && job.Has(OneBuyer)) type.Text("\r");
        TypeSignatures(type, grantors);
        TypeWitnesses(job, type, WitnessReturns(job));
        TypeVenue(job, type);
        TypeGrantorAcknowledgment(job, type, power);
        TypeNotary(job, type);
    });
    type.Indents(0);
}

void TypeFiduciaryExecution(const JobValues& job, Typist& type) {
    TypeExecutionDate(job, type, "Grantor has", 1);
    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, FiduciarySigner(job, "Grantor"));
        TypeWitnesses(job, type, job.Has(TwoBuyers) ? 2 : 3);
        TypeVenue(job, type);
        TypeAcknowledgment(job, type, job[Seller1Name], false);
        TypeNotary(job, type);
    });
    type.Indents(0);
}

}  // namespace quillmark
