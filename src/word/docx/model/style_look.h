#pragma once

#include <string_view>

#include "word/docx/model/document.h"

/// What styles, lists and defaults add to direct formatting. Reading it parses the styles' XML: it is for
/// questions, not for typing.
namespace quillmark::word::docx::inline model {

/// The style with this name; letter case makes no difference. Null when there is none.
StyleDefinition* FindStyle(Document& document, std::string_view name);

/// Direct formatting completed by what the paragraph style, the styles it is based on and the document's
/// defaults say. Font, size, bold, italic, underline and superscript of the result are set.
CharFormat EffectiveFont(const Document& document, const ParaFormat& paragraph, const CharFormat& direct);

/// The same of a paragraph. Indents, spaces, line spacing and alignment are set; a list's level comes before
/// the style; the tab stops are all that apply.
ParaFormat EffectiveParagraph(const Document& document, const ParaFormat& direct);

/// Whether the paragraph's style puts a tab stop at this place.
bool StyleHasTabStop(const Document& document, const ParaFormat& paragraph, int position);
/// Whether the paragraph's style makes it an item of a list.
bool StyleHasNumbering(const Document& document, const ParaFormat& paragraph);

/// The style's "don't add space between paragraphs of the same style".
bool HasContextualSpacing(const StyleDefinition& style);
void SetContextualSpacing(StyleDefinition& style, bool on);

}  // namespace quillmark::word::docx::inline model
