#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/sellers.h"
#include "production/builders/undertakings/undertaking.h"

namespace quillmark {

using namespace field;

/// For a mortgage that is paid off at the closing and released after it, in the form used in Fairfield
/// County.
void TypePayoffUndertaking(const JobValues& job, Typist& type, const Variant& variant) {
    const Payoff& payoff = PayoffOf(variant.number);
    const bool several = job.Has(TwoSellers);

    type.Indents(kDeedIndent);
    type.Font("Arial", 10);
    TypeHeadLines(type, {"FAIRFIELD COUNTY BAR ASSOCIATION", "INDEMNITY OF OWNER"});
    TypeUndertakingAddress(job, type);
    type.Align(word::AlignJustified);
    TypeParagraph(
        type,
        "The attorney signing below has obtained a payoff statement for the following mortgage, which is "
        "to be paid from the proceeds of the sale:");
    TypeRecitalParagraph(job, type, payoff, kDeedIndent);
    TypeOwnerOpening(job, type);
    TypeParagraph(
        type, several ? ", certify" : ", certifies",
        " that the debt is owed in no greater amount than the statement shows, that no advance has been "
        "or will be obtained upon said mortgage since its date, and that no payment credited in it will "
        "be stopped or returned unpaid. Should the statement be mistaken, or the payoff for any other "
        "reason not suffice, the undersigned ",
        several ? "agree" : "agrees", " to pay the difference on demand.");
    TypeOwnersIndemnity(job, type);
    TypeOwnersSignatures(job, type);

    TypeHeadLines(type, {"CLOSING ATTORNEY'S UNDERTAKING"}, word::Role::Heading);
    type.Align(word::AlignJustified);
    TypeAttorneyCertifies(job, type);
    TypeParagraph(
        type,
        "I undertake to deliver to the holder of said mortgage, directly after the closing, the amount "
        "required by its payoff statement together with a written request for a release; to obtain the "
        "release and record it on the ",
        job.Town(PropertyCityStateZip),
        " Land Records; and, if it is not received within sixty (60) days after the payment, to demand it "
        "under section 49-8 of the Connecticut General Statutes and, where section 49-8a permits, to "
        "prepare, execute and record the affidavit that takes its place, all at no expense to said "
        "company.");
    TypeAttorneySignature(job, type);
    type.Indents(0);
}

}  // namespace quillmark
