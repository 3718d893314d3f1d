#pragma once

#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "word/docx/model/document.h"

/// Changes of one paragraph, each in one pass: paragraphs of opened files may be as long as the file.
namespace quillmark::word::docx::inline model {

/// A paragraph as it grows at its end.
struct GrowingParagraph {
    Paragraph paragraph;

    void Text(std::string_view text, FormatId format);
    void Object(InlineObject object, FormatId format);
    /// Takes over another paragraph's bookmarks' marks, at the end.
    void TakeAnchors(Paragraph& other);
};

/// What is put in: a text or an object.
using NewContent = std::variant<std::string, InlineObject>;

/// Takes the bytes from `begin` to `end` out, with the objects among them, and puts content in for them.
struct Rewrite {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::vector<NewContent> content;
    FormatId format = 0;
};

/// The changes are in the order of the text and apart from each other. A bookmark's mark inside of one goes
/// to its beginning.
void Apply(Paragraph& paragraph, std::vector<Rewrite> rewrites);
/// How many bytes of text the content takes.
std::size_t LengthOf(const std::vector<NewContent>& content);

/// Takes out the objects of these numbers.
void RemoveObjects(Paragraph& paragraph, const std::set<std::size_t>& objects);

}  // namespace quillmark::word::docx::inline model
