#pragma once

#include <memory>

#include "word/docx/edit/marks.h"
#include "word/docx/find/find_replace.h"
#include "word/docx/objects/font.h"
#include "word/docx/objects/list_format.h"
#include "word/docx/objects/open_document.h"
#include "word/docx/objects/paragraphs.h"

namespace quillmark::word::docx::objects {

/// A stretch of text that stays in place while text is typed in front of it, inside it or behind it. An empty
/// range stays in front of what is typed where it stands.
class RangeObject final : public Shared, public LateBound<RangeObject>, public TextTarget {
 public:
    static constexpr const char* kName = "Range";
    static const MemberTable<RangeObject>& Members();

    /// What the range covers besides the text between its ends.
    enum class Extent {
        Text,   ///< nothing
        Story,  ///< the last paragraph's mark: all of a body, header or footer
        Cell,   ///< all of a table cell
    };
    RangeObject(std::shared_ptr<OpenDocument> document, const Place& start, const Place& end, Extent extent,
                int storyType = MainTextStory);
    ~RangeObject() override;
    void CheckAlive();

    const Place& start() const { return start_.place(); }
    const Place& end() const { return end_.place(); }
    bool IsEmpty() const { return start().block == end().block && start().offset == end().offset; }
    /// Makes this the range's text, without marks of its ends.
    void MoveTo(const Place& start, const Place& end);
    /// Looks for a text as `Find` (find_replace.h) says, from the range on.
    find::FindResult FindIn(const find::FindRequest& request);
    /// Takes out the text between the ends and gives the place that is left. Throws where it is protected.
    Place BeginInsertion();
    /// The font for what is put in here: the insertion point's when that is the place.
    FormatId InsertionFormat();

    OpenDocument& document() override { return *document_; }
    ObjectPtr Keep(Object& part) override { return Share(part); }
    void RequireEditable() override { document_->RequireEditable(start()); }
    void ChangeFont(const CharFormat& patch) override;
    void ForEachFont(const std::function<void(const CharFormat&)>& look) override;
    void ForEachParagraph(const std::function<void(Paragraph&)>& visit) override;

 private:
    struct Parts;
    friend struct RangeMembers;

    /// The story that the range is in: the document's main text, or a header's or footer's.
    Blocks& Story();
    int StoryLength();
    std::string Text();
    void SetText(const std::string& text);
    void MoveStart(Arguments arguments);
    void InsertAfter(const std::string& text);
    void InsertBreak(Arguments arguments);
    void Select();
    /// Empties the range when edits have brought its ends out of order: its start went into a table, say.
    void Settle();
    bool WithLastMark() const { return extent_ != Extent::Text; }

    std::shared_ptr<OpenDocument> document_;
    edit::Mark start_;
    edit::Mark end_;
    Extent extent_;
    int storyType_;
    std::unique_ptr<Parts> parts_;
};

/// All of a body's, footer's or cell's text as a range.
std::shared_ptr<RangeObject> RangeOver(OpenDocument& document, Blocks& blocks, RangeObject::Extent extent,
                                       int storyType = MainTextStory);

}  // namespace quillmark::word::docx::objects
