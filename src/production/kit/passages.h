#pragma once

#include <string>
#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// The passages that instruments of different families share: what stands above the title of a recorded
/// document, and what stands below its text.
namespace quillmark {

/// An attorney as the addressee of a recorded document.
struct Attorney {
    Field name;
    Field addr1;
    Field cityStateZip;
};
inline constexpr Attorney kSellerAtty = {field::SellerAtty, field::SellerAttyAddr1,
                                         field::SellerAttyCityStateZip};
inline constexpr Attorney kBuyerAtty = {field::BuyerAtty, field::BuyerAttyAddr1,
                                        field::BuyerAttyCityStateZip};

/// "RECORD & RETURN TO:" and the attorney, at the left in small type. Sets the indents of a deed.
void TypeReturnTo(const JobValues& job, Typist& type, const Attorney& attorney);

/// The title in bold over the page, in Arial 11. What follows is Arial 10 at the left.
void TypeTitle(Typist& type, std::string_view title);

/// The paragraph by which one wording fits any number and gender of parties, with what is `added` to it and
/// its paragraph ends.
void TypeGenderParagraph(Typist& type, std::string_view added = {});

/// "IN WITNESS WHEREOF, the Grantor has caused ..." on the document date, with so many returns behind it;
/// `whoHave` is "Grantor has", for instance.
void TypeExecutionDate(const JobValues& job, Typist& type, std::string_view whoHave, int returns);

/// How many returns stand over a witness's line: fewer where more parties sign, so that the signatures of a
/// long instrument stay on one page.
int WitnessReturns(const JobValues& job);
/// "Signed, sealed and delivered" and the lines of both witnesses, each after so many returns.
void TypeWitnesses(const JobValues& job, Typist& type, int returns);

/// "STATE OF CONNECTICUT } ss." with the town of execution, and its county in capitals. The braces stand at
/// the tab stop of the signatures.
void TypeVenue(const JobValues& job, Typist& type);

/// A party's tax number; it may be left out of a job, and is then a line to write it on.
std::string TaxIdOrLine(const JobValues& job, Field taxId);

/// "Personally appeared ..." of signers who are there in person, on the document date. `signers` are named as
/// they stand; `plural` is for more than one person.
void TypeAcknowledgment(const JobValues& job, Typist& type, std::string_view signers, bool plural);

/// "Subscribed and sworn to before me this ..." on the document date.
void TypeJurat(const JobValues& job, Typist& type);

/// The line of the officer who takes the acknowledgment or the oath: the seller's attorney, who as a
/// commissioner of the Superior Court may do both (C.G.S. Sec. 51-85).
void TypeNotary(const JobValues& job, Typist& type);

}  // namespace quillmark
