#pragma once

#include <functional>

#include "word/docx/model/document.h"
#include "word/docx/objects/late_bound.h"

namespace quillmark::word::docx::objects {

class OpenDocument;

/// The text that a Font, ParagraphFormat or ListFormat object acts on: a range's, or the selection's.
class TextTarget {
 public:
    virtual ~TextTarget() = default;

    virtual OpenDocument& document() = 0;
    /// A reference to an object that keeps this target alive.
    virtual ObjectPtr Keep(Object& part) = 0;

    /// Throws kNotAvailable where the document is protected.
    virtual void RequireEditable() = 0;
    /// Sets what the patch has set, for the characters of the text; for an insertion point, for those typed
    /// next.
    virtual void ChangeFont(const CharFormat& patch) = 0;
    /// Gives every font in the text, completed by its styles.
    virtual void ForEachFont(const std::function<void(const CharFormat&)>& look) = 0;
    /// Gives every paragraph that the text touches, the insertion point's included.
    virtual void ForEachParagraph(const std::function<void(Paragraph&)>& visit) = 0;
};

}  // namespace quillmark::word::docx::objects
