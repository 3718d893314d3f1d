#pragma once

#include <string>
#include <vector>

#include "word/docx/write/style_plan.h"

/// What styles and direct formatting say together: complete formats, what they share, and what one says
/// beyond the other.
namespace quillmark::word::docx::write {

/// The format with its unset members from `base`, which is complete.
CharFormat Completed(CharFormat format, const CharFormat& base);
ParaFormat Completed(ParaFormat format, const ParaFormat& base);
/// A list item's: its indents stay unset where its list gives them.
ParaFormat CompletedItem(ParaFormat format, const ParaFormat& base);

/// What a complete format has to say in a paragraph of this complete look; the rest is unset.
CharFormat Beyond(CharFormat format, const CharFormat& look);
/// The same of a paragraph. Tab stops that the look has and the format has not are cleared.
ParaFormat Beyond(ParaFormat format, const ParaFormat& look);

/// Sets each planned style's look to what most of its text and most of its paragraphs have, Normal's letters
/// to those of most text.
void SetLooks(const Document& document, const CharFormat& normalLetters, const ParaFormat& normalLook,
              std::vector<PlannedStyle>& styles);
/// Normal, and what some paragraph is written in.
bool IsUsed(const PlannedStyle& style);
/// Gives the used styles names and ids that the document does not use yet.
void NameStyles(const Document& document, std::vector<PlannedStyle>& styles);
/// A planned style in XML, Normal or one based on it.
StyleDefinition DefinitionOf(const PlannedStyle& style, const std::vector<PlannedStyle>& styles);

}  // namespace quillmark::word::docx::write
