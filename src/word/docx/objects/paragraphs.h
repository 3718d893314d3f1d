#pragma once

#include "word/docx/objects/text_target.h"

/// `ParagraphFormat`, `Paragraphs` and `TabStops`: the paragraphs that a selection or range touches.
namespace quillmark::word::docx::objects {

class ParagraphFormatObject final : public LateBound<ParagraphFormatObject> {
 public:
    static constexpr const char* kName = "ParagraphFormat";
    static const MemberTable<ParagraphFormatObject>& Members();

    explicit ParagraphFormatObject(TextTarget& target) : target_(target) {}
    TextTarget& target() { return target_; }
    void CheckAlive() const;

 private:
    TextTarget& target_;
};

/// `Add` puts a left stop (or one of the alignment and leader given) at a position in points from the margin
/// and replaces one that is there. `Item` takes a position, or else an index from 1; its `Clear` takes the
/// stop away, one that comes from the style by a stop that says so.
class TabStopsObject final : public LateBound<TabStopsObject> {
 public:
    static constexpr const char* kName = "TabStops";
    static const MemberTable<TabStopsObject>& Members();

    explicit TabStopsObject(TextTarget& target) : target_(target) {}
    void CheckAlive() const;

 private:
    void Add(Arguments arguments);
    Value Item(Arguments arguments);
    void ClearAll();
    Value Count();

    TextTarget& target_;
};

class ParagraphsObject final : public LateBound<ParagraphsObject> {
 public:
    static constexpr const char* kName = "Paragraphs";
    static const MemberTable<ParagraphsObject>& Members();

    explicit ParagraphsObject(TextTarget& target) : target_(target), tabStops_(target) {}
    TextTarget& target() { return target_; }
    void CheckAlive() const;

 private:
    /// Moves the left indent to a default tab stop: the next one with 1, the one before with -1.
    void MoveIndent(int direction);

    TextTarget& target_;
    TabStopsObject tabStops_;
};

/// What setting the line spacing to a number of points makes of a paragraph's spacing. A rule of "at least"
/// or "exactly" stays and takes the number; otherwise the number means lines, 12 points to the line, and 0 is
/// a single line.
void SetLineSpacing(ParaFormat& format, int twips);

}  // namespace quillmark::word::docx::objects
