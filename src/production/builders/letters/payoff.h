#pragma once

#include <string>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// A mortgage that the sale pays off, as letters and undertakings speak of it.
namespace quillmark {

/// Where the facts of one payoff stand among the fields.
struct Payoff {
    Field servicer, addr1, cityStateZip, loanNumber, amount, method, date;
    Field mortgagor, mortgagee, principal, mortgageDate, recordingDate, volume, page;
    Field assignee, assignmentVolume, assignmentPage;
};

/// The fields of payoff 1 or 2.
const Payoff& PayoffOf(int number);

/// The loan number without the tag that says what kind of loan it is.
std::string LoanNumber(const JobValues& job, const Payoff& payoff);

/// Servicer and address, each line ended.
void TypeServicer(const JobValues& job, Typist& type, const Payoff& payoff);

/// "Re:" with the mortgagor, the property and the loan number in three lines, and a blank line.
void TypeLoanReference(const JobValues& job, Typist& type, const Payoff& payoff);

/// " to First Shore Bank in the original principal amount of ... of the Guilford Land Records", and to whom
/// it was last assigned; behind the mortgagor or "a mortgage".
void TypeMortgageTerms(const JobValues& job, Typist& type, const Payoff& payoff);
/// "Mortgage from ... to ... of the Guilford Land Records", to whom it was last assigned, and the period.
void TypeMortgageRecital(const JobValues& job, Typist& type, const Payoff& payoff);
/// The recital as a paragraph of its own, further in than the text, whose indent this is, and a blank line.
void TypeRecitalParagraph(const JobValues& job, Typist& type, const Payoff& payoff, double indent);

/// The service that follows releases up: name and address, each line ended.
void TypeReleaseTrackingService(Typist& type);

}  // namespace quillmark
