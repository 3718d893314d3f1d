#include "production/builders/letters/payoff.h"

#include "core/text_conversions.h"
#include "entry/tagged_values.h"
#include "production/builders/letters/letter.h"

namespace quillmark {

using namespace field;

namespace {

constexpr Payoff kPayoff1 = {
    Payoff1Servicer,   Payoff1Addr1,       Payoff1CityStateZip, Payoff1LoanNumber, Payoff1Amount,
    Payoff1Method,     Payoff1Date,        Payoff1Mortgagor,    Payoff1Mortgagee,  Mortgage1Amount,
    Mortgage1Date,     Mtg1RecordingDate,  Mtg1RecordingVol,    Mtg1RecordingPage, Mtg1Assignee,
    Mtg1AssignmentVol, Mtg1AssignmentPage,
};
constexpr Payoff kPayoff2 = {
    Payoff2Servicer,   Payoff2Addr1,       Payoff2CityStateZip, Payoff2LoanNumber, Payoff2Amount,
    Payoff2Method,     Payoff2Date,        Payoff2Mortgagor,    Payoff2Mortgagee,  Mortgage2Amount,
    Mortgage2Date,     Mtg2RecordingDate,  Mtg2RecordingVol,    Mtg2RecordingPage, Mtg2Assignee,
    Mtg2AssignmentVol, Mtg2AssignmentPage,
};

constexpr double kRecitalIndent = 0.375;

}  // namespace

const Payoff& PayoffOf(int number) {
    return number == 2 ? kPayoff2 : kPayoff1;
}

std::string LoanNumber(const JobValues& job, const Payoff& payoff) {
    return std::string(ReadTag(job[payoff.loanNumber], TagFamily::LoanNumber).text);
}

void TypeServicer(const JobValues& job, Typist& type, const Payoff& payoff) {
    type.Text(job[payoff.servicer], "\r", job.TwoLines(payoff.addr1), "\r", job[payoff.cityStateZip], "\r");
}

void TypeLoanReference(const JobValues& job, Typist& type, const Payoff& payoff) {
    type.Bold(true);
    type.TypeItalic("Re:");
    type.Bold(false);
    type.Text("\t", job[payoff.mortgagor], "\r\t\t", job.Property(), "\r\t\tLoan # ", LoanNumber(job, payoff),
              RepeatReturn(2));
}

void TypeMortgageTerms(const JobValues& job, Typist& type, const Payoff& payoff) {
    type.Text(" to ", job[payoff.mortgagee], " in the original principal amount of ", job[payoff.principal],
              " dated ", job[payoff.mortgageDate], " and recorded on ", job[payoff.recordingDate],
              " in Volume/Book ", job[payoff.volume], " at Page ", job[payoff.page], " of the ",
              job.Town(PropertyCityStateZip), " Land Records");
    if (job.IsFilled(payoff.assignee)) {
        type.Text(", last assigned to ", job[payoff.assignee],
                  " by way of instrument recorded in Volume/Book ", job[payoff.assignmentVolume],
                  " at "
                  "Page ",
                  job[payoff.assignmentPage], " of the same");
    }
}

void TypeMortgageRecital(const JobValues& job, Typist& type, const Payoff& payoff) {
    type.Text("Mortgage from ", job[payoff.mortgagor]);
    TypeMortgageTerms(job, type, payoff);
    type.Text(".");
}

void TypeRecitalParagraph(const JobValues& job, Typist& type, const Payoff& payoff, double indent) {
    type.Indents(indent + kRecitalIndent);
    TypeMortgageRecital(job, type, payoff);
    type.Text("\r");
    type.Indents(indent);
    type.Text("\r");
}

void TypeReleaseTrackingService(Typist& type) {
    type.Text("SMS FasTrax\rP.O. Box 3069\rOrange, CA  92857\r");
}

}  // namespace quillmark
