#pragma once

#include "production/kit/text_passages.h"

namespace quillmark {

/// What the bars' contracts of sale have between their clauses: the price table, the signature page, blanks
/// to write in, the capacity of a fiduciary, the brokers, the notice of fair housing.
Passages ContractPassages();

}  // namespace quillmark
