#pragma once

#include <string>
#include <vector>

#include "word/docx/model/document.h"

/// What a new document looks like before anything is set: Times New Roman 12 point, single-spaced, nothing
/// after paragraphs. The defaults of the document stay at the word processor's own (10 point); the look is
/// the style Normal's, so that styles which come with pasted text need not fight it.
namespace quillmark::word::docx::inline model {

/// The styles of a new document, Normal first.
std::vector<StyleDefinition> DefaultStyles();

/// The complete w:docDefaults of a new document.
std::string DefaultFormats();

/// Ids of styles that the engine itself applies.
inline constexpr const char* kListParagraphStyle = "ListParagraph";
inline constexpr const char* kFooterStyle = "Footer";

}  // namespace quillmark::word::docx::inline model
