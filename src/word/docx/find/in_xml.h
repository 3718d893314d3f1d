#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "word/docx/find/codes.h"
#include "word/docx/find/search.h"

/// Finding and replacing in text that the model keeps as XML: text boxes and notes.
namespace quillmark::word::docx::find {

class XmlFinder {
 public:
    /// `pattern` has no marks. A replacement that holds a picture replaces nothing: pictures have no place
    /// in kept XML.
    XmlFinder(const Pattern& pattern, const std::vector<ReplacementPiece>& replacement)
        : pattern_(pattern), replacement_(replacement) {}

    /// Whether a paragraph in the XML holds the pattern.
    bool Holds(std::string_view content) const;
    /// Replaces all matches, or the first one alone; gives how many there were. Ends of paragraphs in the new
    /// text become line breaks.
    int Replace(std::string& content, bool all) const;

 private:
    bool MayHold(std::string_view content) const;
    bool BringsPicture() const;
    std::string TextFor(std::string_view found) const;
    int ReplaceIn(class XmlParagraph& paragraph, bool all) const;

    const Pattern& pattern_;
    const std::vector<ReplacementPiece>& replacement_;
};

}  // namespace quillmark::word::docx::find
