#pragma once

#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// What statutory-form instruments that convey or charge the premises share, deeds and mortgages alike.
namespace quillmark {

/// The words that open it, up to the party who conveys.
void TypeInstrumentOpening(Typist& type);
/// ", with `covenants`, all that certain real property ..." to the end of the paragraph.
void TypePremises(const JobValues& job, Typist& type, std::string_view covenants);
/// "Said Premises are conveyed subject to:" with the three usual items.
void TypeUsualEncumbrances(Typist& type);

}  // namespace quillmark
