#pragma once

#include "word/docx/read/context.h"

/// The parts of an opened file that its texts refer to: lists, styles and settings.
namespace quillmark::word::docx::read {

/// Takes the lists over, and notes the numbers that they get.
void ReadNumbering(ReadContext& context, const xml::XmlTree& tree);

/// Takes styles and document-wide formats over in place of those that the document has. Styles that refer
/// to missing ones refer to nothing instead. Call it after ReadNumbering.
void ReadStyles(ReadContext& context, const xml::XmlTree& tree);
/// The styles of a file that has none: the format's own defaults.
void UseBuiltInStyles(ReadContext& context);

void ReadSettings(ReadContext& context, const xml::XmlTree& tree);

}  // namespace quillmark::word::docx::read
