#pragma once

#include "production/kit/job_values.h"
#include "production/kit/signers.h"
#include "production/kit/typing.h"

/// What the sworn statements of a closing share.
namespace quillmark {

/// The signatures and below them the oath, taken by the seller's attorney, to the end of the page.
void TypeSworn(const JobValues& job, Typist& type, const Signers& signers);

}  // namespace quillmark
