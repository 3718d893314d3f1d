#pragma once

#include <map>
#include <optional>

#include "word/docx/paste/import_sheet.h"

/// Bringing lists along with pasted text.
namespace quillmark::word::docx::paste {

/// What a paragraph's style says of its numbering.
struct StyleNumbering {
    int numId = 0;
    int level = 0;
    std::optional<int> leftIndent;  ///< set by the styles, and so stronger than the list's own
    std::optional<int> firstLine;
};

class ListImport {
 public:
    ListImport(const Document& source, const StyleSheet& sheet, Document& target)
        : source_(source), sheet_(sheet), target_(target) {}

    /// The target's number for a list: a list of its own, which counts anew. 0 stays 0.
    int Map(int numId);
    /// The numbering of paragraphs of a style, with the copied document's numbers.
    const std::optional<StyleNumbering>& OfStyle(const std::string& styleId);

 private:
    int MapAbstract(int index);
    int ResolveLink(int index) const;
    std::optional<StyleNumbering> Compute(const std::string& styleId) const;

    const Document& source_;
    const StyleSheet& sheet_;
    Document& target_;
    std::map<int, int> numbers_;
    std::map<int, int> abstracts_;
    std::map<std::string, std::optional<StyleNumbering>> byStyle_;
};

}  // namespace quillmark::word::docx::paste
