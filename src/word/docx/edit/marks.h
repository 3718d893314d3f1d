#pragma once

#include <vector>

#include "word/docx/model/document.h"

namespace quillmark::word::docx::edit {

/// Which side a mark stays on when something is inserted exactly where it stands.
enum class Gravity {
    Before,  ///< it stays in front of what is inserted: a range that was kept
    Behind,  ///< it goes behind what is inserted: the insertion point
};

class Mark;

/// The marks of one document. Each kind of edit tells it what happened to the text.
class MarkList {
 public:
    MarkList() = default;
    MarkList(const MarkList&) = delete;
    MarkList& operator=(const MarkList&) = delete;

    void Inserted(Blocks::iterator block, std::size_t offset, std::size_t length);
    void Removed(Blocks::iterator block, std::size_t from, std::size_t to);
    /// What stood from `offset` on in one paragraph now begins another.
    void TailMoved(Blocks::iterator block, std::size_t offset, Blocks::iterator target);
    /// An empty paragraph was put in front of this one; what stays before it goes there.
    void ParagraphPutBefore(Blocks::iterator block, Blocks::iterator before);
    /// All of a paragraph now stands at `offset` of another.
    void Appended(Blocks::iterator block, Blocks::iterator target, std::size_t offset);
    /// The paragraphs of one container now stand in another.
    void Rehomed(const Blocks* from, Blocks& to);
    /// These blocks, or all that is in these containers, go away; their marks go to `refuge`.
    void Abandon(const std::vector<const Block*>& blocks, const std::vector<const Blocks*>& containers,
                 const Place& refuge);

    template <class Function>
    void ForEach(Function function);

 private:
    friend class Mark;
    Mark* first_ = nullptr;
};

/// A place that stays where it is in the text while other text comes and goes around it.
class Mark {
 public:
    Mark(MarkList& list, const Place& place, Gravity gravity);
    ~Mark();
    Mark(const Mark&) = delete;
    Mark& operator=(const Mark&) = delete;

    const Place& place() const { return place_; }
    Gravity gravity() const { return gravity_; }
    void MoveTo(const Place& place) { place_ = place; }
    void SetGravity(Gravity gravity) { gravity_ = gravity; }

 private:
    friend class MarkList;
    MarkList& list_;
    Place place_;
    Gravity gravity_;
    Mark* previous_ = nullptr;
    Mark* next_ = nullptr;
};

template <class Function>
void MarkList::ForEach(Function function) {
    for (Mark* mark = first_; mark; mark = mark->next_) function(*mark);
}

}  // namespace quillmark::word::docx::edit
