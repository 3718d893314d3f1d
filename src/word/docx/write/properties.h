#pragma once

#include <string>
#include <string_view>

#include "word/docx/model/document.h"

/// Formats as the elements of properties that stand for them.
namespace quillmark::word::docx::write {

/// w:rPr of a format; empty for no direct formatting.
std::string RunProperties(const CharFormat& format);

/// w:pPr of a paragraph: its format, the look of its mark (a w:rPr or empty) and the section it ends
/// (a w:sectPr or empty).
std::string ParagraphProperties(const ParaFormat& format, std::string_view markProperties,
                                std::string_view section);

}  // namespace quillmark::word::docx::write
