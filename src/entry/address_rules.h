#pragma once

#include "core/job.h"

/// Smart rules of places: address pairs, towns and counties, telephones.
namespace quillmark::rules {

/// A line of an address pair whose first line is field `first`: part 1 is the one-line address, part 2 the
/// same with " -" for its first comma, for places where a comma would mislead.
void AddressPair(Job& job, int first);
/// Fields 6 and 15: part 1 is the town of the place before the first comma.
void AttorneyCity(Job& job, int n);
/// Field 72: part 1 the town, part 2 its county, part 3 the place as typed, part 4 the line with the town in
/// the place's stead. A place that is no known town leaves parts 1, 2 and 4 empty.
void PropertyCity(Job& job, int n);
/// Field 187: part 1 is the county.
void TownOfExecution(Job& job, int n);
/// Ten digits become "(###) ###-####".
void Telephone(Job& job, int n);

}  // namespace quillmark::rules
