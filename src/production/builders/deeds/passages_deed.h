#pragma once

#include <string>
#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/signers.h"
#include "production/kit/typing.h"

/// What the statutory-form deeds share, in the order of the page.
namespace quillmark {

/// The sellers as grantors, by power of attorney or in person.
void TypeGrantors(const JobValues& job, Typist& type, const SellersByPower& power);
/// The one grantor of a fiduciary deed with the address; the capacity follows it.
void TypeFiduciary(const JobValues& job, Typist& type);
/// The price in words and figures; `grant` is "grant" or "grants".
void TypeConsideration(const JobValues& job, Typist& type, std::string_view grant);

/// The acknowledgment of sellers, of an entity's agent, or of the attorney in fact.
void TypeGrantorAcknowledgment(const JobValues& job, Typist& type, const SellersByPower& power);

/// From "IN WITNESS WHEREOF" to the foot of a deed that sellers give.
void TypeSellersExecution(const JobValues& job, Typist& type, const SellersByPower& power);
/// The same of a deed that a fiduciary gives.
void TypeFiduciaryExecution(const JobValues& job, Typist& type);

}  // namespace quillmark
