#pragma once

#include <string>
#include <vector>

#include "core/job.h"

namespace quillmark::test {

/// The sample deal with all that letters and undertakings read: firm, fee, credits, and two mortgages to be
/// paid off, the first assigned and paid by check 40172, the second a plain loan paid by wire.
Job LetterDeal();

/// The document as it reads in a run that makes these documents too.
std::string ReadingBeside(const std::string& document, const Job& job,
                          const std::vector<std::string>& others);
/// The same as plain text, a page break as "\f".
std::string TextBeside(const std::string& document, const Job& job, const std::vector<std::string>& others);

}  // namespace quillmark::test
