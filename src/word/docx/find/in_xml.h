#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "word/docx/find/codes.h"
#include "word/docx/find/search.h"

/// Finding and replacing in text that the model keeps as XML: text boxes and notes.
namespace quillmark::word::docx::find {

/// The text of every paragraph in the XML, without what stands in boxes within it.
std::vector<std::string> ParagraphsIn(std::string_view content);

/// Characters beside which a match does not count; 0 for none.
struct Neighbours {
    char behind = 0;  ///< the match stands right behind it
    char before = 0;
};

class XmlFinder {
 public:
    /// `pattern` has no marks. A replacement that holds a picture replaces nothing: pictures have no place
    /// in kept XML.
    XmlFinder(const Pattern& pattern, const std::vector<ReplacementPiece>& replacement,
              Neighbours unless = {})
        : pattern_(pattern), replacement_(replacement), unless_(unless) {}

    /// Whether a paragraph in the XML holds the pattern.
    bool Holds(std::string_view content) const;
    /// Replaces all matches, or the first one alone; gives how many there were. Ends of paragraphs in the new
    /// text become line breaks.
    int Replace(std::string& content, bool all) const;

 private:
    bool MayHold(std::string_view content) const;
    bool BringsPicture() const;
    std::string TextFor(std::string_view found) const;
    bool Counts(const PlainMatch& match, std::string_view text) const;
    int ReplaceIn(class XmlParagraph& paragraph, bool all) const;

    const Pattern& pattern_;
    const std::vector<ReplacementPiece>& replacement_;
    Neighbours unless_;
};

}  // namespace quillmark::word::docx::find
