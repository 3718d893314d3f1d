#pragma once

#include "word/docx/objects/text_target.h"

/// `Range.ListFormat`.
///
/// A list item has the list's own indents: applying a template, changing the level and taking the number away
/// drop a left or first-line indent that was set on the paragraph, and never the right one. The paragraph's
/// style stays what it was, so that spacing set by the caller holds in items too.
namespace quillmark::word::docx::objects {

class ListFormatObject final : public LateBound<ListFormatObject> {
 public:
    static constexpr const char* kName = "ListFormat";
    static const MemberTable<ListFormatObject>& Members();

    explicit ListFormatObject(TextTarget& target) : target_(target) {}
    void CheckAlive() const;

 private:
    /// Makes the paragraphs items. Those of a list of this template stay as they are; others begin a new
    /// list, which counts from one.
    void ApplyListTemplate(Arguments arguments);
    /// Puts the default bullet on, or takes the numbers away when all paragraphs have it.
    void ApplyBulletDefault();
    void RemoveNumbers();
    /// Levels go from the first to the template's last; at either end nothing happens.
    void MoveLevel(int by);
    /// The numId of the document's bulleted list, which is made at its first use.
    int BulletList();

    TextTarget& target_;
};

/// Takes a paragraph out of its list.
void RemoveFromList(Document& document, Paragraph& paragraph);

}  // namespace quillmark::word::docx::objects
