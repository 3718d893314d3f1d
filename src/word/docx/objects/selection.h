#pragma once

#include <memory>

#include "word/docx/edit/marks.h"
#include "word/docx/objects/font.h"
#include "word/docx/objects/open_document.h"
#include "word/docx/objects/paragraphs.h"

namespace quillmark::word::docx::objects {

/// The selection of a document's window: as a rule the insertion point, at times a whole cell or document.
///
/// The insertion point has a font of its own, the next typed text's: what was set there, else that of the
/// character before. Typing, breaks and tables move it along; going elsewhere takes the font found there.
class SelectionObject final : public LateBound<SelectionObject>, public TextTarget {
 public:
    static constexpr const char* kName = "Selection";
    static const MemberTable<SelectionObject>& Members();

    explicit SelectionObject(OpenDocument& document);
    ~SelectionObject() override;
    void CheckAlive() const { document_.CheckAlive(); }

    const Place& place() const { return start_.place(); }
    bool IsInsertionPoint() const { return !selectsAll_; }
    /// Puts the insertion point here.
    void MoveTo(const Place& place);
    /// Selects all of the blocks: a cell, or the document. In an empty cell that is an insertion point.
    void SelectAll(Blocks& blocks);
    /// Takes out what is selected and gives the place where typing goes on. Throws where it is protected.
    Place BeginInsertion();
    /// The font for text put in at the insertion point.
    FormatId InsertionFormat();

    OpenDocument& document() override { return document_; }
    ObjectPtr Keep(Object& part) override { return document_.Share(part); }
    void RequireEditable() override { document_.RequireEditable(place()); }
    void ChangeFont(const CharFormat& patch) override;
    void ForEachFont(const std::function<void(const CharFormat&)>& look) override;
    void ForEachParagraph(const std::function<void(Paragraph&)>& visit) override;

 private:
    struct Parts;
    friend struct SelectionMembers;

    void TypeText(const std::string& text);
    void TypeBackspace();
    void InsertBreak(int kind);
    void GoTo(Arguments arguments);
    void Copy();
    void Paste(bool keepSourceFormatting);
    void PasteCopied(bool keepSourceFormatting);
    void TakeFontFromText();

    OpenDocument& document_;
    edit::Mark start_;
    edit::Mark end_;
    bool selectsAll_ = false;
    CharFormat font_;
    FormatId fontId_ = 0;
    bool isFontInterned_ = true;
    std::unique_ptr<Parts> parts_;
};

}  // namespace quillmark::word::docx::objects
