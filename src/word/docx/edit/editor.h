#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "word/docx/edit/marks.h"
#include "word/docx/model/document.h"

/// Changes of a document's text that keep the model whole: spans that add up, blocks that end with a
/// paragraph, marks, bookmarks and sections that follow the text.
namespace quillmark::word::docx::edit {

/// Where a form field stands: a paragraph and the index among its objects.
struct FormFieldPlace {
    Place place;
    std::size_t object = 0;
};

class Editor {
 public:
    explicit Editor(std::unique_ptr<Document> document);

    Document& document() { return *document_; }
    const Document& document() const { return *document_; }
    MarkList& marks() { return marks_; }
    /// Grows whenever whole paragraphs or tables may have gone.
    std::uint64_t removals() const { return removals_; }

    // ---- Places ----

    static Place StartOf(Blocks& blocks);
    /// The first place in a block or behind it: of a table the first cell's start.
    static Place FrontOf(Blocks& blocks, Blocks::iterator block);
    /// Before the last paragraph's mark.
    static Place EndOf(Blocks& blocks);
    static Paragraph& ParagraphAt(const Place& place) { return std::get<Paragraph>(*place.block); }
    /// The format that text typed here takes: that of the character before, at a paragraph's start that of
    /// the one after, in an empty paragraph that of its mark.
    static FormatId FormatAt(const Place& place);
    /// The block of the body that the place is in or below; the body's end for a place in a header or footer.
    Blocks::iterator TopLevelBlock(const Place& place);

    /// Whether the second place can be reached by going on from the first one within the same blocks.
    static bool InOrder(const Place& first, const Place& second);
    /// The place itself, or in an empty paragraph put in front of the block when that is no paragraph.
    Place InParagraph(const Place& place);

    // ---- Text. Each gives the place behind what was put in. ----

    /// Puts text in: "\r" (also "\n" and "\r\n") ends a paragraph, "\v", "\t", "\f" and "\x0e" are the
    /// model's characters; other control characters are left out, since no file could hold them.
    Place InsertText(const Place& at, std::string_view text, FormatId format);
    Place InsertObject(const Place& at, InlineObject object, FormatId format);
    /// Ends the paragraph here. The part before gets a mark of this format, the part behind keeps the old
    /// mark unless it is empty; both have the paragraph's format, and the later one the section that it ends.
    Place Split(const Place& at, FormatId markFormat);
    /// Takes out what is between two places of the same blocks, and all of a field that would lose a mark.
    /// Where a paragraph mark goes, what is left of both paragraphs takes the later one's format, unless
    /// nothing is left of that one. Gives the place where the text was.
    Place Erase(const Place& from, const Place& to);
    /// Takes out the character before the place (a field as a whole), or the paragraph mark. False where
    /// there is nothing to take out: at the start of the blocks, behind a table, and at the mark of a field
    /// that goes on in another paragraph.
    bool EraseBefore(const Place& at);
    /// Puts an empty paragraph in front of a block.
    Blocks::iterator InsertParagraphBefore(Blocks& blocks, Blocks::iterator block, FormatId format,
                                           FormatId markFormat);
    /// Puts a table in front of what is behind the place; a paragraph is cut in two for it.
    Table& InsertTable(const Place& at, std::unique_ptr<Table> table);
    /// Gives up everything in a container of the model that is about to go away.
    void Abandon(Blocks& blocks, const Place& refuge);

    // ---- Sections ----

    /// Every section's properties in order; the last is the document's own.
    const std::vector<SectionProperties*>& Sections();
    /// The section that the place is in; null in a header or footer.
    SectionProperties* SectionAt(const Place& place);
    /// Ends the section here. The part before keeps how the section starts, its page and its footers; the
    /// part behind starts as `kind` says, keeps the page and shows the footers of the part before.
    Place InsertSectionBreak(const Place& at, int kind);

    // ---- After others changed the document ----

    /// Brings marks and lists of places up to date when code that knows no marks changed the text: a mark
    /// whose paragraph is gone goes to the start of the body.
    void Reattach();

    /// The form fields of the body in order, tables included.
    const std::vector<FormFieldPlace>& FormFields();
    /// A name for a new form field, unused in the document: "Text1", "Check1" and so on.
    std::string NewFormFieldName(bool isCheckBox);

 private:
    Place InsertPlain(const Place& at, std::string_view text, FormatId format);
    /// Gives the offset where the text was.
    std::size_t EraseInParagraph(Blocks::iterator block, std::size_t from, std::size_t to);
    void JoinWithNext(Blocks& blocks, Blocks::iterator block);
    void ForgetObjectPlaces() { formFieldsKnown_ = false; }
    void CountFormFieldNames();

    std::unique_ptr<Document> document_;
    MarkList marks_;
    std::uint64_t removals_ = 0;
    std::vector<SectionProperties*> sections_;
    bool sectionsKnown_ = false;
    std::vector<FormFieldPlace> formFields_;
    bool formFieldsKnown_ = false;
};

}  // namespace quillmark::word::docx::edit
