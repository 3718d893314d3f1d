#pragma once

#include "production/kit/text_passages.h"

namespace quillmark {

/// What the statements of the owner's affidavits take from the job: the boxes that it ticks, the insurer's
/// name, and "has" or "have" behind "The undersigned".
Passages OwnerPassages();

}  // namespace quillmark
