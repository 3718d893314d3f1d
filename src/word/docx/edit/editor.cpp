#include "word/docx/edit/editor.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "word/docx/model/pieces.h"
#include "word/docx/model/spans.h"
#include "word/docx/model/walk.h"
#include "word/seam/automation.h"

namespace quillmark::word::docx::edit {
namespace {

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < 0x20;
}

/// Control characters that are text of a paragraph.
bool IsTextControl(char c) {
    return c == character::kTab || c == character::kLineBreak || c == character::kPageBreak ||
           c == character::kColumnBreak;
}

void ShiftAnchors(Paragraph& paragraph, std::size_t offset, std::size_t length) {
    for (Anchor& anchor : paragraph.anchors)
        if (anchor.offset > offset) anchor.offset += length;
}

/// Bookmarks that lay wholly in what was taken out go with it; of others the ends move to where it was.
void EraseAnchors(Paragraph& paragraph, std::size_t from, std::size_t to) {
    const auto isInside = [&](const Anchor& anchor) { return anchor.offset > from && anchor.offset < to; };
    const auto goes = [&](const Anchor& anchor) {
        return isInside(anchor) &&
               std::count_if(paragraph.anchors.begin(), paragraph.anchors.end(), [&](const Anchor& other) {
                   return other.id == anchor.id && isInside(other);
               }) == 2;
    };
    std::vector<Anchor> kept;
    std::copy_if(paragraph.anchors.begin(), paragraph.anchors.end(), std::back_inserter(kept),
                 std::not_fn(goes));
    for (Anchor& anchor : kept)
        if (anchor.offset > from) anchor.offset = anchor.offset <= to ? from : anchor.offset - (to - from);
    paragraph.anchors = std::move(kept);
}

/// Bookmarks' marks in blocks that go, of bookmarks whose other mark stays.
std::vector<Anchor> LoneAnchors(Blocks::const_iterator first, Blocks::const_iterator end) {
    std::vector<Anchor> anchors;
    const auto collect = [&](const Paragraph& paragraph) {
        anchors.insert(anchors.end(), paragraph.anchors.begin(), paragraph.anchors.end());
    };
    for (auto block = first; block != end; ++block) {
        if (const auto* paragraph = std::get_if<Paragraph>(&*block)) collect(*paragraph);
        if (const auto* table = std::get_if<std::unique_ptr<Table>>(&*block))
            for (const TableRow& row : (*table)->rows)
                for (const TableCell& cell : row.cells) ForEachParagraph(cell.blocks, collect);
    }
    std::map<int, int> marks;
    for (const Anchor& anchor : anchors) ++marks[anchor.id];
    std::erase_if(anchors, [&](const Anchor& anchor) { return marks[anchor.id] != 1; });
    return anchors;
}

/// Whether the character is a mark of a field that goes on in another paragraph.
bool IsLoneFieldMark(const Paragraph& paragraph, std::size_t from, std::size_t to) {
    if (paragraph.text[from] != character::kObject) return false;
    const InlineObject& object = paragraph.objects[ObjectsBefore(paragraph.text, from)];
    const bool isMark =
        std::holds_alternative<FieldBegin>(object) || std::holds_alternative<FieldInstruction>(object) ||
        std::holds_alternative<FieldSeparator>(object) || std::holds_alternative<FieldEnd>(object);
    return isMark && WithWholeFields(paragraph, {from, to}) == TextPart{from, to};
}

void CollectContainers(Block& block, std::vector<const Blocks*>& containers) {
    const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
    if (!table) return;
    for (TableRow& row : (*table)->rows)
        for (TableCell& cell : row.cells) {
            containers.push_back(&cell.blocks);
            for (Block& inner : cell.blocks) CollectContainers(inner, containers);
        }
}

void CollectStories(Block& block, std::vector<const Blocks*>& containers) {
    auto* paragraph = std::get_if<Paragraph>(&block);
    if (!paragraph || !paragraph->section) return;
    for (auto* stories : {&paragraph->section->headers, &paragraph->section->footers})
        for (auto& story : *stories) {
            if (!story) continue;
            containers.push_back(&story->blocks);
            for (Block& inner : story->blocks) CollectContainers(inner, containers);
        }
}

}  // namespace

Editor::Editor(std::unique_ptr<Document> document) : document_(std::move(document)) {
    CountFormFieldNames();
}

Place Editor::StartOf(Blocks& blocks) {
    return FrontOf(blocks, blocks.begin());
}

Place Editor::FrontOf(Blocks& blocks, Blocks::iterator block) {
    for (; block != blocks.end(); ++block) {
        if (std::holds_alternative<Paragraph>(*block)) return {&blocks, block, 0};
        if (const auto* table = std::get_if<std::unique_ptr<Table>>(&*block))
            return StartOf((*table)->rows.front().cells.front().blocks);
    }
    return EndOf(blocks);
}

Place Editor::EndOf(Blocks& blocks) {
    const auto last = std::prev(blocks.end());
    return {&blocks, last, std::get<Paragraph>(*last).text.size()};
}

FormatId Editor::FormatAt(const Place& place) {
    const Paragraph& paragraph = ParagraphAt(place);
    return paragraph.text.empty() ? paragraph.markFormat : SpanFormatBefore(paragraph.spans, place.offset);
}

bool Editor::InOrder(const Place& first, const Place& second) {
    if (first.blocks != second.blocks) return false;
    if (first.block == second.block) return first.offset <= second.offset;
    for (auto block = first.block; block != first.blocks->end(); ++block)
        if (block == second.block) return true;
    return false;
}

Place Editor::InParagraph(const Place& place) {
    if (std::holds_alternative<Paragraph>(*place.block)) return place;
    return {place.blocks, InsertParagraphBefore(*place.blocks, place.block, 0, 0), 0};
}

// ---- Putting in ----

Place Editor::InsertPlain(const Place& at, std::string_view text, FormatId format) {
    Paragraph& paragraph = ParagraphAt(at);
    if (at.offset == paragraph.text.size() && !paragraph.spans.empty() &&
        paragraph.spans.back().format == format)
        paragraph.spans.back().length += text.size();
    else
        InsertIntoSpans(paragraph.spans, at.offset, text.size(), format);
    paragraph.text.insert(at.offset, text);
    if (!paragraph.anchors.empty()) ShiftAnchors(paragraph, at.offset, text.size());
    marks_.Inserted(at.block, at.offset, text.size());
    return {at.blocks, at.block, at.offset + text.size()};
}

Place Editor::InsertText(const Place& at, std::string_view text, FormatId format) {
    Place place = at;
    while (!text.empty()) {
        const auto stop =
            std::find_if(text.begin(), text.end(), [](char c) { return IsControl(c) && !IsTextControl(c); });
        const auto length = static_cast<std::size_t>(stop - text.begin());
        if (length > 0) place = InsertPlain(place, text.substr(0, length), format);
        text.remove_prefix(length);
        if (text.empty()) break;
        if (text.front() == '\r' || text.front() == '\n') place = Split(place, format);
        text.remove_prefix(text.substr(0, 2) == "\r\n" ? 2 : 1);
    }
    return place;
}

Place Editor::InsertObject(const Place& at, InlineObject object, FormatId format) {
    Paragraph& paragraph = ParagraphAt(at);
    const std::size_t index = ObjectsBefore(paragraph.text, at.offset);
    const bool isFormField = std::holds_alternative<FormFieldData>(object);
    const bool isLast = at.blocks == &document_->body && std::next(at.block) == document_->body.end() &&
                        index == paragraph.objects.size();
    paragraph.objects.insert(paragraph.objects.begin() + index, std::move(object));
    if (!isLast) ForgetObjectPlaces();
    if (isLast && isFormField && formFieldsKnown_) formFields_.push_back({at, index});
    return InsertPlain(at, std::string_view(&character::kObject, 1), format);
}

Blocks::iterator Editor::InsertParagraphBefore(Blocks& blocks, Blocks::iterator block, FormatId format,
                                               FormatId markFormat) {
    Paragraph paragraph;
    paragraph.format = format;
    paragraph.markFormat = markFormat;
    return blocks.emplace(block, std::move(paragraph));
}

Place Editor::Split(const Place& at, FormatId markFormat) {
    Paragraph& first = ParagraphAt(at);
    if (at.offset == 0 && !first.text.empty()) {
        const auto before = InsertParagraphBefore(*at.blocks, at.block, first.format, markFormat);
        marks_.ParagraphPutBefore(at.block, before);
        return {at.blocks, at.block, 0};
    }
    Paragraph second = CutTail(first, at.offset);
    if (second.text.empty()) second.markFormat = markFormat;
    first.markFormat = markFormat;
    if (second.section) sectionsKnown_ = false;
    if (!second.objects.empty()) ForgetObjectPlaces();
    const auto target = at.blocks->emplace(std::next(at.block), std::move(second));
    marks_.TailMoved(at.block, at.offset, target);
    return {at.blocks, target, 0};
}

Table& Editor::InsertTable(const Place& at, std::unique_ptr<Table> table) {
    ForgetObjectPlaces();
    const Paragraph& paragraph = ParagraphAt(at);
    const Place behind = at.offset > 0 ? Split(at, paragraph.markFormat) : at;
    // Two tables without a paragraph between them would be shown as one.
    if (behind.block != behind.blocks->begin() &&
        std::holds_alternative<std::unique_ptr<Table>>(*std::prev(behind.block)))
        InsertParagraphBefore(*behind.blocks, behind.block, ParagraphAt(behind).format,
                              ParagraphAt(behind).markFormat);
    const auto block = behind.blocks->emplace(behind.block, std::move(table));
    Table& inserted = *std::get<std::unique_ptr<Table>>(*block);
    const Place firstCell = StartOf(inserted.rows.front().cells.front().blocks);
    marks_.ForEach([&](Mark& mark) {
        const bool isHere = mark.place().block == at.block && mark.place().offset == at.offset;
        const bool isBehind = mark.place().block == behind.block && mark.place().offset == 0;
        if (isHere || isBehind) mark.MoveTo(firstCell);
    });
    return inserted;
}

// ---- Taking out ----

std::size_t Editor::EraseInParagraph(Blocks::iterator block, std::size_t first, std::size_t last) {
    if (first == last) return first;
    Paragraph& paragraph = std::get<Paragraph>(*block);
    const auto [from, to] =
        paragraph.objects.empty() ? TextPart{first, last} : WithWholeFields(paragraph, {first, last});
    const std::size_t firstObject = ObjectsBefore(paragraph.text, from);
    const std::size_t lastObject = ObjectsBefore(paragraph.text, to);
    if (lastObject > firstObject) ForgetObjectPlaces();
    paragraph.objects.erase(paragraph.objects.begin() + firstObject, paragraph.objects.begin() + lastObject);
    EraseAnchors(paragraph, from, to);
    EraseFromSpans(paragraph.spans, from, to);
    paragraph.text.erase(from, to - from);
    marks_.Removed(block, from, to);
    return from;
}

void Editor::JoinWithNext(Blocks& blocks, Blocks::iterator block) {
    const auto next = std::next(block);
    Paragraph& first = std::get<Paragraph>(*block);
    Paragraph& second = std::get<Paragraph>(*next);
    const std::size_t length = first.text.size();
    if (first.section) {
        std::vector<const Blocks*> stories;
        CollectStories(*block, stories);
        marks_.Abandon({}, stories, StartOf(document_->body));
    }
    if (first.section || second.section) sectionsKnown_ = false;
    if (!second.objects.empty()) ForgetObjectPlaces();
    if (!second.text.empty() || first.text.empty()) {
        first.format = second.format;
        first.markFormat = second.markFormat;
    }
    first.section = std::move(second.section);
    AppendText(first, std::move(second));
    marks_.Appended(next, block, length);
    blocks.erase(next);
}

Place Editor::Erase(const Place& start, const Place& to) {
    Place from = start;
    if (from.block == to.block) {
        from.offset = EraseInParagraph(from.block, from.offset, to.offset);
        return from;
    }
    EraseInParagraph(to.block, 0, to.offset);
    from.offset = EraseInParagraph(from.block, from.offset, ParagraphAt(from).text.size());
    std::vector<const Block*> gone;
    std::vector<const Blocks*> containers;
    for (auto block = std::next(from.block); block != to.block; ++block) {
        gone.push_back(&*block);
        CollectContainers(*block, containers);
        CollectStories(*block, containers);
    }
    if (!gone.empty()) {
        for (Anchor& anchor : LoneAnchors(std::next(from.block), to.block)) {
            anchor.offset = from.offset;
            ParagraphAt(from).anchors.push_back(std::move(anchor));
        }
        ++removals_;
        marks_.Abandon(gone, containers, from);
        from.blocks->erase(std::next(from.block), to.block);
        sectionsKnown_ = false;
        ForgetObjectPlaces();
    }
    JoinWithNext(*from.blocks, from.block);
    return from;
}

bool Editor::EraseBefore(const Place& at) {
    if (at.offset > 0) {
        const Place before = {at.blocks, at.block, CharacterBefore(ParagraphAt(at).text, at.offset)};
        if (IsLoneFieldMark(ParagraphAt(at), before.offset, at.offset)) return false;
        Erase(before, at);
        return true;
    }
    if (at.block == at.blocks->begin() || !std::holds_alternative<Paragraph>(*std::prev(at.block)))
        return false;
    JoinWithNext(*at.blocks, std::prev(at.block));
    return true;
}

void Editor::Abandon(Blocks& blocks, const Place& refuge) {
    std::vector<const Blocks*> containers = {&blocks};
    for (Block& block : blocks) CollectContainers(block, containers);
    marks_.Abandon({}, containers, refuge);
    ForgetObjectPlaces();
    ++removals_;
}

}  // namespace quillmark::word::docx::edit
