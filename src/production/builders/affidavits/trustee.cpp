#include "core/text_conversions.h"
#include "production/builders/affidavits/passages_affidavit.h"
#include "production/kit/passages.h"

namespace quillmark {

using namespace field;

namespace {

void TypeAffiants(const JobValues& job, Typist& type) {
    type.Text("I, ");
    type.TypeBold(job[Seller1Name]);
    if (job.Has(TwoSellers)) {
        type.Text(", and I, ");
        type.TypeBold(job[Seller2Name]);
    }
    type.Text(", being first duly sworn, hereby depose and say:", RepeatReturn(2));
}

void TypeAppointment(const JobValues& job, Typist& type) {
    type.Text("I was appointed pursuant to Article ", job[FiduciaryArticleNumber], " of the ");
    type.TypeItalic(job[TrustInstrument]);
    type.Text(" (the \"Trust\")");
    if (job.IsFilled(OriginalTrustee)) type.Text(", as successor trustee to ", job[OriginalTrustee]);
    type.Text(".");
    type.EndItem();
}

/// A trust that the court does not oversee has no order; a job without its trustee shows every hole.
void TypeOrderOfAppointment(const JobValues& job, Typist& type) {
    if (!job.IsFilled(DateOfProbateOrder) && job.IsFilled(Seller1Name)) return;
    type.Text("My appointment was made or confirmed by an order of the probate court for the District of ",
              RepeatUnderscore(24), " dated ", job[DateOfProbateOrder], ".");
    type.EndItem();
}

void TypeFacts(const JobValues& job, Typist& type) {
    type.BeginList();
    type.Text("I have personal knowledge of facts stated herein.");
    type.EndItem();
    type.Text("The Premises are a part of the property in the Trust.");
    type.EndItem();
    TypeAppointment(job, type);
    type.Text(
        "I have been authorized as trustee to sell or mortgage the Premises, by the terms of the Trust or by "
        "law, and need the consent of no beneficiary or other person to convey them to ",
        job.BuyerNames(), ".");
    type.EndItem();
    TypeOrderOfAppointment(job, type);
    type.Text(
        "I have not resigned as trustee/successor trustee, nor has there been an order or other act that "
        "removed me or took from me any authority that I need for the conveyance.");
    type.EndItem();
    type.Text(
        "The Trust has not been revoked at any time prior to today, and no amendment of it touches my power to "
        "convey the Premises.");
    type.EndItem();
    type.Text(
        "I have not been notified of any objection by any trust beneficiary to the conveyance of the Premises "
        "or to its terms.");
    type.EndItem();
    type.EndList();
}

Signers TrusteeSigners(const JobValues& job) {
    Signers signers = FiduciarySigner(job, "Trustee");
    if (job.Has(TwoSellers)) signers.parties.push_back({job[Seller2Name], {}});
    return signers;
}

}  // namespace

/// An affidavit of facts for the land records, which indexes it under the owner of record (C.G.S. Sec.
/// 47-12a).
void TypeTrusteesAffidavit(const JobValues& job, Typist& type) {
    TypeReturnTo(job, type, kBuyerAtty);
    TypeTitle(type, "AFFIDAVIT OF FACTS UNDER CONN. GEN. STAT. §47-12a");
    type.TypeBold("PREMISES AFFECTED:");
    type.Text(" ", job.Property(), " (the \"Premises\")", RepeatReturn(2));
    TypeAffiants(job, type);
    TypeFacts(job, type);
    type.TypeBold("RECORD OWNER(S):");
    type.Text(" ", job.IsFilled(OriginalTrustee) ? job[OriginalTrustee] : job.SellerNames(), "\r");
    TypeSworn(job, type, TrusteeSigners(job));
}

}  // namespace quillmark
