#pragma once

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// The descriptions of the two sides that deeds, contracts and mortgages share.
namespace quillmark {

enum class Names { Plain, Bold };
enum class Tenancy { Unsaid, Said };

/// The sellers with their addresses, in one clause when both live at one address as it is spelled; with
/// Estate / Trust a single seller's capacity too.
void TypeGrantorPhrase(const JobValues& job, Typist& type, Names names);

/// The capacity of a fiduciary seller, ", duly qualified and authorized Executor of ...", by the fiduciary
/// type.
void TypeFiduciaryCapacity(const JobValues& job, Typist& type);

/// The buyers with their addresses; with `Tenancy::Said` how two of them take title (C.G.S. Sec. 47-14a,
/// 47-36a).
void TypeGranteePhrase(const JobValues& job, Typist& type, Names names, Tenancy tenancy = Tenancy::Unsaid);

}  // namespace quillmark
