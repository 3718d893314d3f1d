#pragma once

#include <memory>

#include "word/docx/model/document.h"

/// Copying a whole document's content into another, with the look that it has.
namespace quillmark::word::docx::paste {

/// A document's content on the clipboard, independent of the document it came from.
class CopiedText {
 public:
    CopiedText() = default;
    explicit CopiedText(std::shared_ptr<const Document> document) : document_(std::move(document)) {}

    explicit operator bool() const { return document_ != nullptr; }
    const Document& document() const { return *document_; }

 private:
    std::shared_ptr<const Document> document_;
};

/// A copy of all that the document holds, its styles, lists, pictures and sections included.
CopiedText CopyAll(const Document& document);

/// Puts the copied content in at a place of the target's body and gives the place behind it, where typing
/// goes on: the beginning of the paragraph that the place was in, or of its rest when it was cut in two.
///
/// With `keepSourceFormatting` the text looks as it did: its styles come along under names of their own (a
/// second paste of the same form uses the first one's), document-wide defaults are written into them, its
/// lists count anew, its pictures and other parts come along. Without, texts take the target's style of the
/// same name where there is one.
///
/// Sections inside the copied text come along. Its last section's page, headers and footers come along only
/// into a target that is still empty; otherwise the text flows into the section that it is put in. Headers
/// and footers of a section behind pasted ones stay what they were. An empty last paragraph of the copy
/// is the one that the place stands in.
///
/// Names of bookmarks and form fields that the target has already get a number.
Place PasteAt(Document& target, const Place& place, const CopiedText& copied,
              bool keepSourceFormatting = true);

/// Once a section break stands behind text that was pasted into an empty document, the last section takes the
/// page that the document had before, without headers and footers: the pasted page was the text's own.
void TakeBackPage(Document& target, const SectionProperties& former);

/// Whether nothing has been typed into the document: one paragraph without text.
bool IsEmpty(const Document& document);

}  // namespace quillmark::word::docx::paste
