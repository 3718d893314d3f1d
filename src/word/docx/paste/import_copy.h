#pragma once

#include <memory>

#include "word/docx/model/document.h"

namespace quillmark::word::docx::paste {

/// A copy of everything that the document holds, names and sections included.
std::unique_ptr<Document> CloneDocument(const Document& document);

}  // namespace quillmark::word::docx::paste
