#pragma once

#include <filesystem>
#include <string>

#include "word/docx/model/document.h"

/// Turns the document into a .docx package. The package is a function of the document alone: the same
/// document gives the same bytes, without a clock, a user's name or a random id in it.
namespace quillmark::word::docx::write {

/// The bytes of the .docx file.
///
/// Raw XML of the document may use the prefixes of `kNamespaces` (parts_names.h) without declaring them, and
/// may name, in double quotes, the ids of `Document::relations`; the part it lands in gets the relationships
/// it names. Drawing ids in raw XML are renumbered, so that they are unique over all parts.
///
/// What would make Word refuse the file is mended on the way: a cell or story that does not end with a
/// paragraph gets one, a table without rows is left out, of two bookmarks of one name the first stays, and a
/// form field whose name is taken or longer than 20 characters keeps its content and loses the name. A
/// section on other paper than the one before it starts on a new page, whatever it asks for.
///
/// Throws AutomationError when the document is too large for the file format (4 GB, 65,534 parts).
std::string WriteDocx(const Document& document);

/// Writes the document to this file, replacing it at once and whole: whatever fails, the old file is there.
/// Throws AutomationError with the number that Word raises: 70 when the file may not be written or is open
/// elsewhere, 76 when its folder does not exist, 61 when the disk is full.
void SaveDocx(const Document& document, const std::filesystem::path& file);

}  // namespace quillmark::word::docx::write
