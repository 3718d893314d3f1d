#include "production/kit/passages.h"

#include "core/text_conversions.h"
#include "platform/code_page.h"

namespace quillmark {

using namespace field;

void TypeReturnTo(const JobValues& job, Typist& type, const Attorney& attorney) {
    type.Indents(kDeedIndent);
    type.Align(word::AlignLeft);
    type.Font("Lucida Console", 9);
    type.As(word::Role::ReturnAddress, [&] {
        type.Bold(true);
        type.Italic(true);
        type.Text("RECORD & RETURN TO:\r");
        type.Bold(false);
        type.Italic(false);
        type.Text("Atty ", job[attorney.name], "\r",   //
                  job.TwoLines(attorney.addr1), "\r",  //
                  job[attorney.cityStateZip], RepeatReturn(2));
    });
}

void TypeTitle(Typist& type, std::string_view title) {
    type.Align(word::AlignCentre);
    type.Font("Arial", 11);
    type.As(word::Role::Title, [&] { type.TypeBold(title, RepeatReturn(2)); });
    type.Align(word::AlignLeft);
    type.FontSize(10);
}

void TypeGenderParagraph(Typist& type, std::string_view added) {
    type.Text(
        "In all references herein to any parties, persons, entities or corporations, the use of any "
        "particular gender or the plural or singular number is intended to include the appropriate gender "
        "or number as the text of the within instrument may require.",
        added, RepeatReturn(2));
}

void TypeExecutionDate(const JobValues& job, Typist& type, std::string_view whoHave, int returns) {
    type.As(word::Role::Signature, [&] {
        type.TypeBold("IN WITNESS WHEREOF");
        type.Text(", the ", whoHave, " caused these presents to be executed on this ",
                  job.DayMonthYear(DocumentDate), ".", RepeatReturn(static_cast<std::uint16_t>(returns)));
    });
}

int WitnessReturns(const JobValues& job) {
    return job.Has(TwoSellers) || job.Has(TwoBuyers) || job.Has(Entity) ? 2 : 3;
}

void TypeWitnesses(const JobValues& job, Typist& type, int returns) {
    const std::string spacing = RepeatReturn(static_cast<std::uint16_t>(returns));
    const std::string line = "Witness:  " + RepeatUnderscore(33) + "\r" + std::string(16, ' ');
    type.As(word::Role::Signature, [&] {
        type.Text("Signed, sealed and delivered in the presence of or attested by:");
        type.Text(spacing, line, job[Witness1]);
        type.Text(spacing, line, job[Witness2], RepeatReturn(3));
    });
}

void TypeVenue(const JobValues& job, Typist& type) {
    type.As(word::Role::Notary, [&] {
        type.TypeBold("STATE OF CONNECTICUT\t}\r\t}");
        type.Text("\tss.  ", job[TownOfExecution], "\r");
        type.TypeBold("COUNTY OF ", UpperCase(job.CountyOfExecution()), "\t}", RepeatReturn(2));
    });
}

std::string TaxIdOrLine(const JobValues& job, Field taxId) {
    return job[taxId].empty() ? RepeatUnderscore(24) : job[taxId];
}

void TypeAcknowledgment(const JobValues& job, Typist& type, std::string_view signers, bool plural) {
    type.As(word::Role::Notary, [&] {
        type.Text("Personally appeared ", signers);
        if (plural) {
            type.Text(
                ", signers and sealers of the foregoing instrument, known to me (or satisfactorily proven) to "
                "be the persons whose names are subscribed to the within instrument and acknowledged that they "
                "executed the same for the purposes therein contained in the capacity therein stated, before "
                "me, on this ");
        } else {
            type.Text(
                ", signer and sealer of the foregoing instrument, known to me (or satisfactorily proven) to be "
                "the person whose name is subscribed to the within instrument and acknowledged that he/she "
                "executed the same for the purposes therein contained in the capacity therein stated, before "
                "me, on this ");
        }
        type.Text(job.DayMonthYear(DocumentDate), ".");
    });
}

void TypeJurat(const JobValues& job, Typist& type) {
    type.As(word::Role::Notary, [&] {
        type.Text("Subscribed and sworn to before me this ", job.DayMonthYear(DocumentDate), ".");
    });
}

void TypeNotary(const JobValues& job, Typist& type) {
    type.As(word::Role::Notary, [&] {
        type.Text(RepeatReturn(3), "\t", SignatureRule(), "\r",  //
                  "\t", job[SellerAtty], "\r",                   //
                  "\tNotary Public/Commissioner of the Superior Court\r");
    });
}

}  // namespace quillmark
