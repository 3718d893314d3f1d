#include "core/text_conversions.h"
#include "production/builders/affidavits/passages_affidavit.h"
#include "production/kit/passages.h"

namespace quillmark {

using namespace field;

namespace {

void TypeOwnership(const JobValues& job, Typist& type) {
    type.TypeBold("FIRST,");
    type.Text(" that the undersigned is the owner of certain real property known as ");
    type.TypeBold(job.Property());
    type.Text(";", RepeatReturn(2));
}

void TypeAcquisition(const JobValues& job, Typist& type) {
    type.TypeBold("SECOND,");
    type.Text(" that the undersigned acquired title to said real estate under the name of ");
    type.TypeBold(job[SellerFormerName]);
    type.Text(", by a deed that is recorded in Volume ", job[DeedRecordingVol], " at Page ",
              job[DeedRecordingPage], " of the ", job.Town(PropertyCityStateZip), " Land Records; and",
              RepeatReturn(2));
}

void TypeChange(const JobValues& job, Typist& type) {
    type.TypeBold("THIRD,");
    type.Text(" that the name of the undersigned was changed from ");
    type.TypeBold(job[SellerFormerName]);
    type.Text(" to ");
    type.TypeBold(job[SellerCurrentName]);
    type.Text(" by virtue of ", job[NameChangeInstr], ", effective ", job[NameChangeDate],
              ", and that both names are those of one and the same person.", RepeatReturn(2));
}

}  // namespace

/// For the land records, so that the title can be followed from the old name to the new one.
void TypeNameChangeAffidavit(const JobValues& job, Typist& type) {
    TypeReturnTo(job, type, kBuyerAtty);
    TypeTitle(type, "CHANGE OF NAME CERTIFICATE");
    type.Text("To all whom it may concern:", RepeatReturn(2));
    type.Text("The undersigned, ");
    type.TypeBold(job[SellerCurrentName]);
    type.Text(", being first duly sworn, certifies:", RepeatReturn(2));
    TypeOwnership(job, type);
    TypeAcquisition(job, type);
    TypeChange(job, type);

    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, Signers{"Owner", {{job[SellerCurrentName], {}}}, {}});
        TypeWitnesses(job, type, 2);
        TypeVenue(job, type);
        TypeJurat(job, type);
        TypeNotary(job, type);
    });
    type.Indents(0);
}

}  // namespace quillmark
