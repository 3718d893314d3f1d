#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/sellers.h"
#include "production/builders/undertakings/undertaking.h"

namespace quillmark {

using namespace field;

/// For a mortgage that was paid long ago and stands on the land records for want of a release.
void TypeUnreleasedUndertaking(const JobValues& job, Typist& type, const Variant& variant) {
    const Payoff& payoff = PayoffOf(variant.number);
    const bool several = job.Has(TwoSellers);

    type.Indents(kDeedIndent);
    type.Font("Arial", 10);
    TypeHeadLines(type, {"INDEMNITY OF OWNER"});
    TypeUndertakingAddress(job, type);
    type.Align(word::AlignJustified);
    TypeOwnerOpening(job, type);
    TypeParagraph(type, several ? ", acknowledge" : ", acknowledges",
                  " that the following mortgage appears upon the land records without a release:");
    TypeRecitalParagraph(job, type, payoff, kDeedIndent);
    TypeParagraph(
        type, several ? "The undersigned Sellers confirm" : "The undersigned Seller confirms",
        " that, to the best of ", SellersPossessive(job),
        " knowledge, the debt secured by said mortgage has been paid in full, that no person claims any "
        "sum under it, and that no further advance has been or will be obtained upon it.");
    TypeOwnersIndemnity(job, type);
    TypeOwnersSignatures(job, type);

    TypeHeadLines(type, {"CLOSING ATTORNEY'S UNDERTAKING"}, word::Role::Heading);
    type.Align(word::AlignJustified);
    TypeAttorneyCertifies(job, type);
    TypeParagraph(
        type,
        "I have made inquiry about said mortgage, and nothing has come to my attention that is at "
        "variance with the foregoing statement of the ",
        SellerWord(job),
        ". I undertake to make diligent efforts to obtain a release of said mortgage in recordable form, "
        "or, where section 49-8a of the Connecticut General Statutes permits, to prepare and execute the "
        "affidavit that takes its place, and to record the one or the other on the ",
        job.Town(PropertyCityStateZip),
        " Land Records within a reasonable time after the closing and at no expense to said company.");
    TypeAttorneySignature(job, type);
    type.Indents(0);
}

}  // namespace quillmark
