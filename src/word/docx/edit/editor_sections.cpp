#include <algorithm>
#include <charconv>
#include <unordered_map>

#include "word/docx/edit/editor.h"
#include "word/docx/model/spans.h"
#include "word/docx/model/walk.h"
#include "word/seam/automation.h"

namespace quillmark::word::docx::edit {
namespace {

bool IsBelow(const Blocks& blocks, const Blocks* wanted);

bool HoldsContainer(const Block& block, const Blocks* wanted) {
    const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
    if (!table) return false;
    for (const TableRow& row : (*table)->rows)
        for (const TableCell& cell : row.cells)
            if (IsBelow(cell.blocks, wanted)) return true;
    return false;
}

bool IsBelow(const Blocks& blocks, const Blocks* wanted) {
    return &blocks == wanted || std::any_of(blocks.begin(), blocks.end(), [&](const Block& block) {
        return HoldsContainer(block, wanted);
    });
}

bool IsInFirstRow(const Table& table, const Blocks* wanted) {
    const auto& cells = table.rows.front().cells;
    return std::any_of(cells.begin(), cells.end(),
                       [&](const TableCell& cell) { return IsBelow(cell.blocks, wanted); });
}

/// The number behind a name such as "Text12", 0 for other names.
int NumberOfName(std::string_view name, std::string_view kind) {
    int number = 0;
    if (name.substr(0, kind.size()) != kind) return 0;
    const auto [end, failure] = std::from_chars(name.data() + kind.size(), name.data() + name.size(), number);
    return failure == std::errc() && end == name.data() + name.size() ? number : 0;
}

/// The line of a break has nothing of the text behind it, a list's number least of all.
FormatId PlainFormatLike(Document& document, FormatId format) {
    ParaFormat plain;
    plain.style = document.paraFormats[format].style;
    return document.paraFormats.Intern(plain);
}

constexpr std::string_view kFormFieldKinds[] = {"Text", "Check"};

}  // namespace

Blocks::iterator Editor::TopLevelBlock(const Place& place) {
    Blocks& body = document_->body;
    if (place.blocks == &body) return place.block;
    for (auto block = body.end(); block != body.begin();)
        if (HoldsContainer(*--block, place.blocks)) return block;
    return body.end();
}

const std::vector<SectionProperties*>& Editor::Sections() {
    if (sectionsKnown_) return sections_;
    sections_.clear();
    for (Block& block : document_->body)
        if (auto* paragraph = std::get_if<Paragraph>(&block); paragraph && paragraph->section)
            sections_.push_back(paragraph->section.get());
    sections_.push_back(&document_->lastSection);
    sectionsKnown_ = true;
    return sections_;
}

SectionProperties* Editor::SectionAt(const Place& place) {
    auto block = TopLevelBlock(place);
    if (block == document_->body.end()) return nullptr;
    for (; block != document_->body.end(); ++block)
        if (auto* paragraph = std::get_if<Paragraph>(&*block); paragraph && paragraph->section)
            return paragraph->section.get();
    return &document_->lastSection;
}

Place Editor::InsertSectionBreak(const Place& at, int kind) {
    SectionProperties* const section = SectionAt(at);
    const auto block = TopLevelBlock(at);
    if (!section || block == document_->body.end())
        throw AutomationError(error::kNotAvailable, "A section break cannot stand in a header or footer.");
    Place behind = at;
    Blocks::iterator end;
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&*block)) {
        if (!IsInFirstRow(**table, at.blocks))
            throw AutomationError(error::kNotAvailable, "A section break cannot stand inside a table.");
        end = InsertParagraphBefore(document_->body, block, 0, 0);
    } else {
        Paragraph& paragraph = ParagraphAt(at);
        const bool isOwnParagraph = at.offset == 0;
        behind = Split(at, paragraph.markFormat);
        end = std::prev(behind.block);
        if (isOwnParagraph) std::get<Paragraph>(*end).format = PlainFormatLike(*document_, paragraph.format);
    }
    auto before = std::make_unique<SectionProperties>(section->CopyWithoutStories());
    before->headers.swap(section->headers);
    before->footers.swap(section->footers);
    section->start = kind;
    std::get<Paragraph>(*end).section = std::move(before);
    sectionsKnown_ = false;
    return behind;
}

void Editor::Reattach() {
    ++removals_;
    sectionsKnown_ = false;
    ForgetObjectPlaces();
    std::unordered_map<const Block*, Place> places;
    const auto note = [&](Blocks& blocks, Blocks::iterator block) {
        places.emplace(&*block, Place{&blocks, block, 0});
    };
    ForEachParagraph(document_->body, note);
    for (SectionProperties* section : Sections())
        for (auto* stories : {&section->headers, &section->footers})
            for (auto& story : *stories)
                if (story) ForEachParagraph(story->blocks, note);
    marks_.ForEach([&](Mark& mark) {
        const auto found = places.find(&*mark.place().block);
        if (found == places.end()) return mark.MoveTo(StartOf(document_->body));
        Place place = found->second;
        const std::string& text = ParagraphAt(place).text;
        place.offset = std::min(mark.place().offset, text.size());
        while (place.offset < text.size() && (static_cast<unsigned char>(text[place.offset]) & 0xC0) == 0x80)
            --place.offset;
        mark.MoveTo(place);
    });
    CountFormFieldNames();
}

const std::vector<FormFieldPlace>& Editor::FormFields() {
    if (formFieldsKnown_) return formFields_;
    formFields_.clear();
    ForEachParagraph(document_->body, [&](Blocks& blocks, Blocks::iterator block) {
        const auto& objects = std::get<Paragraph>(*block).objects;
        for (std::size_t i = 0; i < objects.size(); ++i)
            if (std::holds_alternative<FormFieldData>(objects[i]))
                formFields_.push_back({{&blocks, block, 0}, i});
    });
    formFieldsKnown_ = true;
    return formFields_;
}

std::string Editor::NewFormFieldName(bool isCheckBox) {
    return std::string(kFormFieldKinds[isCheckBox]) + std::to_string(document_->nextFormField[isCheckBox]++);
}

void Editor::CountFormFieldNames() {
    const auto count = [this](std::string_view name) {
        for (int kind : {0, 1}) {
            int& next = document_->nextFormField[kind];
            next = std::max(next, NumberOfName(name, kFormFieldKinds[kind]) + 1);
        }
    };
    ForEachParagraph(document_->body, [&](Blocks&, Blocks::iterator block) {
        const Paragraph& paragraph = std::get<Paragraph>(*block);
        for (const Anchor& anchor : paragraph.anchors) count(anchor.name);
        for (const InlineObject& object : paragraph.objects)
            if (const auto* field = std::get_if<FormFieldData>(&object)) count(field->name);
    });
}

}  // namespace quillmark::word::docx::edit
