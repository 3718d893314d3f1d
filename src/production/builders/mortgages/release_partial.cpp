#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/kit/passages.h"

namespace quillmark {

using namespace field;

namespace {

/// The fields of the mortgage that is released in part.
struct ReleasedMortgage {
    Field mortgagor, mortgagee, agent, agentTitle, date, volume, page;
};
constexpr ReleasedMortgage kFirst = {Payoff1Mortgagor, Payoff1Mortgagee, Mtgee1Agent,      Mtgee1AgentTitle,
                                     Mortgage1Date,    Mtg1RecordingVol, Mtg1RecordingPage};
constexpr ReleasedMortgage kSecond = {Payoff2Mortgagor, Payoff2Mortgagee, Mtgee2Agent,      Mtgee2AgentTitle,
                                      Mortgage2Date,    Mtg2RecordingVol, Mtg2RecordingPage};

/// Left of where other instruments sign, because the rule is longer and has a word before it.
constexpr double kReleasorTab = 3.375;

/// A lender signs wherever its office is: what cannot be known is left to be written in.
std::string Blank(std::uint16_t length) {
    return RepeatUnderscore(length);
}
const std::string& OrBlank(const std::string& value, const std::string& blank) {
    return value.empty() ? blank : value;
}

void TypeRelease(const JobValues& job, Typist& type, const ReleasedMortgage& mortgage) {
    type.TypeBold(job[mortgage.mortgagee]);
    type.Text(
        " (hereinafter designated as the Releasor), for good and valuable consideration received to "
        "Releasor's full satisfaction from ");
    type.TypeBold(job[mortgage.mortgagor]);
    type.Text(
        " (hereinafter designated as the Releasee), does hereby RELEASE AND DISCHARGE certain real property "
        "situated in the Town/City of ");
    type.TypeBold(job.Town(PropertyCityStateZip));
    type.Text(", County of ");
    type.TypeBold(job.CountyOfProperty());
    type.Text(", State of Connecticut, commonly known as ", job.OneLine(PropertyAddress1),
              ", and being more particularly described in ");
    type.TypeItalic("Schedule A");
    type.Text(
        " attached hereto and made a part hereof (the \"Released Parcel\"), from the lien and operation of a "
        "certain mortgage from the Releasee to the Releasor dated ",
        job[mortgage.date], " and recorded in Volume ", job[mortgage.volume], " at Page ", job[mortgage.page],
        " of the ", job.Town(PropertyCityStateZip),
        " Land Records (the \"Mortgage\"), TO HAVE AND TO HOLD the "
        "Released Parcel free of the Mortgage forever.",
        RepeatReturn(2));
}

void TypeWhatRemains(Typist& type) {
    type.Text(
        "This instrument shall release the Released Parcel only and is not a release of any other property that "
        "the Mortgage covers, nor a discharge of the debt that it secures or of any person who owes that debt. "
        "Upon all property that has not been released, by this instrument or by another one of record, the "
        "Mortgage stays in full force with the rank that it has.",
        RepeatReturn(2));
}

void TypeReleasorSignature(const JobValues& job, Typist& type, const ReleasedMortgage& mortgage) {
    type.TypeBold("IN WITNESS WHEREOF");
    type.Text(", the Releasor has executed this Partial Release on this  ____  day of ", Blank(14),
              ", 20____.", RepeatReturn(3));
    type.Text("\t", job[mortgage.mortgagee], RepeatReturn(3));
    type.Text("\tBy: ", Blank(43), "\r");
    if (!job[mortgage.agent].empty()) type.Text("\t", job[mortgage.agent], "\r");
    type.Text("\tIts ", OrBlank(job[mortgage.agentTitle], Blank(20)), RepeatReturn(2));
}

void TypeOpenWitnesses(Typist& type) {
    const std::string line = RepeatReturn(3) + "Witness:  " + Blank(33);
    type.Text("Signed, sealed and delivered in the presence of or attested by:", line, line, RepeatReturn(3));
}

void TypeOpenAcknowledgment(const JobValues& job, Typist& type, const ReleasedMortgage& mortgage) {
    type.TypeBold("STATE OF ", Blank(26), "\t}\r\t}");
    type.Text("\tss.  ", Blank(22), "\r");
    type.TypeBold("COUNTY OF ", Blank(24), "\t}", RepeatReturn(2));
    type.Text("The foregoing instrument was acknowledged before me this  ____  day of ", Blank(14),
              ", 20____, by ", OrBlank(job[mortgage.agent], Blank(30)), ", ",
              OrBlank(job[mortgage.agentTitle], Blank(20)), " of ", job[mortgage.mortgagee],
              ", on behalf of the Releasor.", RepeatReturn(4));
    type.Text("\t", SignatureRule(), "\r\tNotary Public/Commissioner of the Superior Court\r",
              "\tMy commission expires: ", Blank(18), "\r");
}

}  // namespace

void TypePartialRelease(const JobValues& job, Typist& type, const Variant& variant) {
    const ReleasedMortgage& mortgage = variant.number == 2 ? kSecond : kFirst;

    TypeReturnTo(job, type, kBuyerAtty);
    TypeTitle(type, "PARTIAL RELEASE OF MORTGAGE");

    type.Text("KNOW ALL MEN BY THESE PRESENTS THAT:", RepeatReturn(2));
    TypeRelease(job, type, mortgage);
    TypeWhatRemains(type);

    type.AtTab(kReleasorTab, [&] {
        type.As(word::Role::Signature, [&] {
            TypeReleasorSignature(job, type, mortgage);
            TypeOpenWitnesses(type);
        });
        type.As(word::Role::Notary, [&] { TypeOpenAcknowledgment(job, type, mortgage); });
    });
    type.Indents(0);
}

}  // namespace quillmark
