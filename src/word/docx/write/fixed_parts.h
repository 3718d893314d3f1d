#pragma once

#include <string>
#include <vector>

#include "word/docx/model/document.h"

/// The parts beside the text: each function gives one part's whole XML.
namespace quillmark::word::docx::write {

/// `styles` with the defaults of the document.
std::string StylesPart(const Document& document, const std::vector<StyleDefinition>& styles);
std::string SettingsPart(const Document& document);
std::string NumberingPart(const Document& document);
/// The fonts that the document's direct formatting names, with what a machine without them needs to choose
/// one like them.
std::string FontsPart(const Document& document);
/// Title, author and the time of making. They are what the document was told, no clock's or user's, so that
/// equal documents are equal files.
std::string CorePropertiesPart(const DocumentProperties& properties);
std::string ApplicationPropertiesPart();

}  // namespace quillmark::word::docx::write
