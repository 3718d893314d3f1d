#pragma once

#include <string>
#include <string_view>

#include "production/kit/production.h"
#include "production/kit/word_session.h"

namespace quillmark {

/// Whether a job list entry means anything here: a built-in document, offered or older, the placeholder of a
/// new one, or a custom document.
bool IsKnownDocument(std::string_view entry);

/// Whether an entry's section stays empty though it is meant to have a text: nothing types it. The
/// placeholder of a new document is empty by intent.
bool StaysEmpty(std::string_view entry);

/// Types one entry of the job list at the insertion point, with its second copy where the job's options ask
/// for one, and gives the letters of the notices that it adds. An entry that is known but has no builder
/// leaves its section empty. Throws std::invalid_argument for an unknown entry.
std::string TypeEntry(std::string_view entry, const Production& production, WordSession& session);

}  // namespace quillmark
