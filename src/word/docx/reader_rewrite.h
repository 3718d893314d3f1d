#pragma once

#include <optional>
#include <set>
#include <vector>

#include "word/docx/document.h"

/// Many changes of one paragraph in one pass: paragraphs of opened files may be as long as the file.
namespace quillmark::word::docx {

/// Takes the bytes from `begin` to `end` out, with the objects among them, and puts an object in for them.
struct Rewrite {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::optional<InlineObject> replacement;
    FormatId format = 0;
};

/// The changes are in the order of the text and apart from each other. A bookmark's mark inside of one goes
/// to its beginning.
void Apply(Paragraph& paragraph, std::vector<Rewrite> rewrites);

/// Takes out the objects of these numbers.
void RemoveObjects(Paragraph& paragraph, const std::set<std::size_t>& objects);

}  // namespace quillmark::word::docx
