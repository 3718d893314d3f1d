#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "word/docx/model/document.h"

/// Opens .docx files, of whatever program, into the engine's model. The files are untrusted.
namespace quillmark::word::docx::read {

/// Reads a .docx file.
///
/// Formats that the model has no member for are kept as XML and come out again. Tracked insertions are taken
/// in and deletions left out; comments, editing sessions' marks and content controls' frames are dropped;
/// hyperlinks and simple fields become fields, so that their text is text. Fonts and colours of the theme
/// are named outright. Relationship ids in kept XML are those of `Document::relations`, numbers of lists
/// those of `Document::lists`.
///
/// Throws AutomationError: kFileNotFound, kPermissionDenied, or kFileDamaged for a file that is no .docx,
/// is torn, is nested beyond reason or would fill the memory; the text names the file and what is wrong.
std::unique_ptr<Document> OpenDocx(const std::filesystem::path& file);

/// The same from bytes in memory; `fileName` stands in the messages.
std::unique_ptr<Document> OpenDocxBytes(std::string bytes, const std::string& fileName = "The document");

}  // namespace quillmark::word::docx::read
