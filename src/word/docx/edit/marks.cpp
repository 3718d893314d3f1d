#include "word/docx/edit/marks.h"

#include <algorithm>

namespace quillmark::word::docx::edit {
namespace {

template <class T>
bool Holds(const std::vector<const T*>& list, const T* wanted) {
    return std::find(list.begin(), list.end(), wanted) != list.end();
}

bool IsBehind(const Mark& mark, std::size_t offset) {
    return mark.place().offset > offset ||
           (mark.place().offset == offset && mark.gravity() == Gravity::Behind);
}

}  // namespace

Mark::Mark(MarkList& list, const Place& place, Gravity gravity)
    : list_(list), place_(place), gravity_(gravity), next_(list.first_) {
    if (next_) next_->previous_ = this;
    list.first_ = this;
}

Mark::~Mark() {
    if (next_) next_->previous_ = previous_;
    (previous_ ? previous_->next_ : list_.first_) = next_;
}

void MarkList::Inserted(Blocks::iterator block, std::size_t offset, std::size_t length) {
    for (Mark* mark = first_; mark; mark = mark->next_)
        if (mark->place_.block == block && IsBehind(*mark, offset)) mark->place_.offset += length;
}

void MarkList::Removed(Blocks::iterator block, std::size_t from, std::size_t to) {
    ForEach([&](Mark& mark) {
        if (mark.place_.block != block || mark.place_.offset <= from) return;
        mark.place_.offset = mark.place_.offset <= to ? from : mark.place_.offset - (to - from);
    });
}

void MarkList::TailMoved(Blocks::iterator block, std::size_t offset, Blocks::iterator target) {
    ForEach([&](Mark& mark) {
        if (mark.place_.block != block || !IsBehind(mark, offset)) return;
        mark.place_.block = target;
        mark.place_.offset -= offset;
    });
}

void MarkList::ParagraphPutBefore(Blocks::iterator block, Blocks::iterator before) {
    ForEach([&](Mark& mark) {
        if (mark.place_.block == block && !IsBehind(mark, 0)) mark.place_.block = before;
    });
}

void MarkList::Appended(Blocks::iterator block, Blocks::iterator target, std::size_t offset) {
    ForEach([&](Mark& mark) {
        if (mark.place_.block != block) return;
        mark.place_.block = target;
        mark.place_.offset += offset;
    });
}

void MarkList::Rehomed(const Blocks* from, Blocks& to) {
    ForEach([&](Mark& mark) {
        if (mark.place_.blocks == from) mark.place_.blocks = &to;
    });
}

void MarkList::Abandon(const std::vector<const Block*>& blocks, const std::vector<const Blocks*>& containers,
                       const Place& refuge) {
    ForEach([&](Mark& mark) {
        const Blocks* const container = mark.place_.blocks;
        if (Holds(containers, container) || Holds<Block>(blocks, &*mark.place_.block)) mark.place_ = refuge;
    });
}

}  // namespace quillmark::word::docx::edit
