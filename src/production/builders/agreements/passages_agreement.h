#pragma once

#include "production/kit/text_passages.h"

/// The agreements about money that somebody holds or stands good for: the escrow of a deposit, the
/// indemnities to the title insurer.
namespace quillmark {

/// Whom notices go to, and who signs.
Passages AgreementPassages();

}  // namespace quillmark
