#pragma once

#include "word/docx/model/document.h"

/// Fields of an opened file: marks in the text that belong together.
namespace quillmark::word::docx::read {

/// Takes out marks of fields that have no beginning or no end in the same container.
void BalanceFields(Blocks& blocks);

/// Turns form fields of the plain shape into FormFieldData, with the bookmark around them.
void CollapseFormFields(Paragraph& paragraph);

}  // namespace quillmark::word::docx::read
