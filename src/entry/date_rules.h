#pragma once

#include "core/job.h"

/// Smart rules of dates.
namespace quillmark::rules {

/// Fields 1 and 79: parts 1, 2 and 3 are the month, the day with its ordinal suffix, the year. A date with
/// "_" in it, to be completed by hand, is taken apart as it stands. Throws BadFieldInput for any other text.
void Date(Job& job, int n);

}  // namespace quillmark::rules
