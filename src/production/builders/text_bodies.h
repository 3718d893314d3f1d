#pragma once

#include <span>
#include <string_view>

#include "production/kit/text_document.h"

namespace quillmark {

/// A text that is a document, or the body of one that C++ begins and ends, as builders.inc lists them.
struct TextBody {
    std::string_view file;   ///< as in TextSource
    Passages (*passages)();  ///< those of the family
};
std::span<const TextBody> TextBodies();

/// Reads a text with what it may use: its family's passages and named texts.
TextDocument ReadBody(const TextBody& body);

/// Types a text of the list at the insertion point. Throws std::logic_error for one that is not on it or is
/// faulty, with what is wrong.
void TypeBody(std::string_view file, const JobValues& job, Typist& type);

}  // namespace quillmark
