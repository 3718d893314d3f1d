#pragma once

#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// The descriptions of the two sides that deeds, contracts and mortgages share.
namespace quillmark {

/// The sellers with their addresses, in one clause when both live at one address as it is spelled; with
/// Estate / Trust a single seller's capacity too. The style "Bold" sets the names in bold.
void TypeGrantorPhrase(const JobValues& job, Typist& type, std::string_view style);

/// The buyers with their addresses. A style that begins with "Bold" sets the names in bold; one that ends in
/// "T" adds the tenancy of two buyers.
void TypeGranteePhrase(const JobValues& job, Typist& type, std::string_view style);

}  // namespace quillmark
