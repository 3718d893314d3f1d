#pragma once

#include <string>

#include "production/kit/job_values.h"
#include "production/kit/text_passages.h"
#include "production/kit/typing.h"

/// What the financing papers of a sale share: the buyers borrow, the sellers lend.
namespace quillmark {

/// The pieces of the mortgage, the note and the balloon rider whose words follow from the job.
Passages MortgagePassages();

/// Where the lender receives mail and payments: the sellers' forwarding address when the job has one,
/// otherwise the first seller's own.
std::string LenderAddress(const JobValues& job);

/// The rider that comes with every balloon note, on a page of its own.
void TypeBalloonRider(const JobValues& job, Typist& type);

}  // namespace quillmark
