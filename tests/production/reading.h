#pragma once

#include <string>

#include "word/docx/model/document.h"

namespace quillmark::test {

/// A document of the embedded engine as texts that a person compares; see EngineDesk for what stands in them.
std::string CharactersOf(const word::docx::Document& document);
std::string ReadingOf(const word::docx::Document& document);

}  // namespace quillmark::test
