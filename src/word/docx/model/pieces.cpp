#include "word/docx/model/pieces.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "word/docx/model/spans.h"

namespace quillmark::word::docx::inline model {
namespace {

/// Moves the elements from `first` on to an empty list.
template <class T>
void MoveTail(std::vector<T>& list, typename std::vector<T>::iterator first, std::vector<T>& tail) {
    tail.assign(std::make_move_iterator(first), std::make_move_iterator(list.end()));
    list.erase(first, list.end());
}

}  // namespace

Paragraph CutTail(Paragraph& paragraph, std::size_t offset) {
    Paragraph tail;
    tail.format = paragraph.format;
    tail.markFormat = paragraph.markFormat;
    tail.section = std::move(paragraph.section);
    tail.frames.closes = std::exchange(paragraph.frames.closes, 0);
    tail.text = paragraph.text.substr(offset);
    paragraph.text.resize(offset);
    tail.spans = CutLastSpans(paragraph.spans, tail.text.size());
    const auto objects = std::ranges::count(tail.text, character::kObject);
    MoveTail(paragraph.objects, paragraph.objects.end() - objects, tail.objects);
    auto anchor = paragraph.anchors.end();
    while (anchor != paragraph.anchors.begin() && std::prev(anchor)->offset > offset) --anchor;
    MoveTail(paragraph.anchors, anchor, tail.anchors);
    for (Anchor& moved : tail.anchors) moved.offset -= offset;
    return tail;
}

void DropFront(Paragraph& paragraph, std::size_t length) {
    paragraph.text.erase(0, length);
    EraseFromSpans(paragraph.spans, 0, length);
    for (Anchor& anchor : paragraph.anchors) anchor.offset -= std::min(anchor.offset, length);
}

void AppendText(Paragraph& paragraph, Paragraph&& next) {
    for (Anchor& anchor : next.anchors) {
        anchor.offset += paragraph.text.size();
        paragraph.anchors.push_back(std::move(anchor));
    }
    paragraph.text += next.text;
    AppendSpans(paragraph.spans, next.spans);
    std::ranges::move(next.objects, std::back_inserter(paragraph.objects));
    std::ranges::move(next.frames.opens, std::back_inserter(paragraph.frames.opens));
    paragraph.frames.closes += next.frames.closes;
}

void Append(Paragraph& paragraph, Paragraph&& next) {
    paragraph.format = next.format;
    paragraph.markFormat = next.markFormat;
    paragraph.section = std::move(next.section);
    AppendText(paragraph, std::move(next));
}

std::vector<Paragraph> SplitAtReturns(Paragraph& paragraph) {
    std::vector<Paragraph> behind;  // the last one first
    for (auto at = paragraph.text.rfind('\r'); at != std::string::npos; at = paragraph.text.rfind('\r')) {
        behind.push_back(CutTail(paragraph, at));
        DropFront(behind.back(), 1);
    }
    std::vector<Paragraph> before;
    for (; !behind.empty(); behind.pop_back())
        before.push_back(std::exchange(paragraph, std::move(behind.back())));
    return before;
}

}  // namespace quillmark::word::docx::inline model
