#include "production/builders/letters/closing_letter.h"

#include "core/text_conversions.h"
#include "production/builders/letters/letter.h"
#include "production/builders/letters/sellers.h"
#include "production/kit/phrases.h"

namespace quillmark {

using namespace field;

void TypeClosingLetterAddress(const JobValues& job, Typist& type) {
    type.Text("\r", job[ClosingDate], RepeatReturn(2));
    TypeBuyersAttorney(job, type);
    type.Text("\r");
}

void TypeRepresentation(const JobValues& job, Typist& type) {
    type.Text("This law firm represents ", job.SellerNames(), " (the \"", SellerWord(job),
              "\") in the sale of ", job.Property(), " to ");
    TypeGranteePhrase(job, type, Names::Plain);
    type.Text(" (the \"", BuyerWord(job), "\"), the closing of which is held on ", job[ClosingDate], ".");
}

void TypePayoffPapers(const JobValues& job, Typist& type, const Payoff& payoff,
                      const std::array<std::string_view, 2>& letterOfTransmittal) {
    TypeList(type, kLetterIndent, [&] {
        type.Text("Payoff statement from ", job[payoff.servicer], " dated ", job[payoff.date], ";");
        type.EndItem();
        type.Text("A bank or certified check in the amount of ", job[payoff.amount],
                  " payable to the holder of the mortgage; and");
        type.EndItem();
        type.Text(letterOfTransmittal[0], letterOfTransmittal[1]);
        type.EndItem();
    });
}

void TypeFirmClosing(const JobValues& job, Typist& type) {
    type.Align(word::AlignLeft);
    type.Text("Very truly yours,", RepeatReturn(2));
    TypeFirmSignature(job, type);
}

}  // namespace quillmark
