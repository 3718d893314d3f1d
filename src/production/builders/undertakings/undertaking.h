#pragma once

#include "production/builders/letters/payoff.h"
#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// What the undertakings to a title insurer share, in the order of the page: the owner's indemnity, then the
/// attorney's own promise.
namespace quillmark {

/// The title insurer, the date, and what the paper is about: property, sellers and buyers.
void TypeUndertakingAddress(const JobValues& job, Typist& type);

/// "The undersigned, being the owner of the above-referenced property", where what the owner says goes on.
void TypeOwnerOpening(const JobValues& job, Typist& type);

/// The owner's promise to hold the insurer, the buyers and their lender harmless from the mortgage.
void TypeOwnersIndemnity(const JobValues& job, Typist& type);

/// The owners sign, by their attorney in fact where there is one.
void TypeOwnersSignatures(const JobValues& job, Typist& type);

/// "The undersigned certifies that I am an attorney ..." and whom the attorney represents.
void TypeAttorneyCertifies(const JobValues& job, Typist& type);

/// The attorney signs, with the address.
void TypeAttorneySignature(const JobValues& job, Typist& type);

}  // namespace quillmark
