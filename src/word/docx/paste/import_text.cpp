#include "word/docx/paste/import_text.h"

#include <algorithm>

#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::paste {

namespace {

constexpr std::size_t kLongestBookmark = 40;
constexpr std::size_t kLongestFormField = 20;

struct NoteElement {
    std::string_view name;
    const char* notes;  ///< the part that its w:id counts in
};

// clang-format off
constexpr NoteElement kNoteElements[] = {
    {"w:footnoteReference",  "footnotes"},
    {"w:endnoteReference",   "endnotes"},
    {"w:commentReference",   "comments"},
    {"w:commentRangeStart",  "comments"},
    {"w:commentRangeEnd",    "comments"},
};
/// What ties a content control to the file it came from: its number there, and the data that it shows.
constexpr const char* kTiesOfControls[] = {"w:id", "w:dataBinding", "w15:dataBinding"};
// clang-format on

/// Whether the element would name a style and there is none that it could mean.
bool NamesNoStyle(pugi::xml_node node) {
    const std::string_view name = node.name();
    return (name == "w:pStyle" || name == "w:rStyle" || name == "w:tblStyle") && xml::Val(node).empty();
}

}  // namespace

TextImport::TextImport(const Document& source, Document& target, bool keepsSourceFormatting)
    : source_(source),
      target_(target),
      sheet_(source),
      styles_(sheet_, UsedStyles(source), target, !keepsSourceFormatting),
      lists_(source, sheet_, target),
      relations_(source, target),
      names_(target),
      notes_(source, target, [this](pugi::xml_node notes) { TranslateNotes(notes); }) {
    names_.Prepare(source.body);
}

Blocks TextImport::Body() {
    return Convert(source_.body, nullptr);
}

void TextImport::Finish() {
    if (usesTheme_) relations_.TakeSole("theme");
}

Blocks TextImport::Convert(const Blocks& blocks, const TableLook* look) {
    Blocks converted;
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
            converted.emplace_back(Convert(*paragraph, look));
        } else if (const auto* table = std::get_if<std::unique_ptr<Table>>(&block)) {
            converted.emplace_back(Convert(**table));
        } else if (std::string xml = Raw(std::get<RawBlock>(block).xml); !xml.empty()) {
            converted.emplace_back(RawBlock{std::move(xml)});
        }
    }
    return converted;
}

Paragraph TextImport::Convert(const Paragraph& paragraph, const TableLook* look) {
    Paragraph converted;
    converted.text = paragraph.text;
    converted.format = MapParagraph(paragraph.format, look);
    converted.markFormat = MapCharacters(paragraph.markFormat, paragraph.format, look);
    for (const Span& span : paragraph.spans) {
        converted.spans.push_back({span.length, MapCharacters(span.format, paragraph.format, look)});
    }
    for (const InlineObject& object : paragraph.objects) converted.objects.push_back(Convert(object));
    for (Anchor anchor : paragraph.anchors) {
        anchor.id = names_.MapId(anchor.id);
        const bool isBookmark = anchor.kind == Anchor::Kind::Bookmark;
        if (isBookmark && anchor.isStart) anchor.name = names_.Map(anchor.name, kLongestBookmark);
        anchor.xml = Raw(anchor.xml);
        converted.anchors.push_back(std::move(anchor));
    }
    converted.frames = Convert(paragraph.frames);
    if (paragraph.section)
        converted.section = std::make_unique<SectionProperties>(Section(*paragraph.section));
    return converted;
}

Frames TextImport::Convert(const Frames& frames) {
    Frames converted = frames;
    for (std::string& control : converted.opens) control = Raw(control);
    return converted;
}

InlineObject TextImport::Convert(const InlineObject& object) {
    InlineObject converted = object;
    if (auto* field = std::get_if<FormFieldData>(&converted)) field->name = names_.FormFieldName(*field);
    if (auto* instruction = std::get_if<FieldInstruction>(&converted)) {
        instruction->text = names_.Instruction(instruction->text);
    }
    if (auto* begin = std::get_if<FieldBegin>(&converted)) begin->formData = Raw(begin->formData);
    if (auto* raw = std::get_if<RawInline>(&converted)) raw->xml = Raw(raw->xml);
    return converted;
}

std::unique_ptr<Table> TextImport::Convert(const Table& table) {
    auto converted = std::make_unique<Table>();
    const TableLook& look = LookOf(table.style.empty() ? sheet_.DefaultOf("table") : table.style);
    converted->grid = table.grid;
    converted->borders = table.borders;
    converted->style = styles_.Map(table.style, "table");
    converted->extra = table.extra;
    converted->frames = Convert(table.frames);
    RawExtra(converted->extra);
    for (const TableRow& row : table.rows) {
        TableRow& newRow = converted->rows.emplace_back(
            TableRow{{}, row.height, row.heightRule, row.extra, Convert(row.frames)});
        RawExtra(newRow.extra);
        for (const TableCell& cell : row.cells) {
            newRow.cells.push_back({Convert(cell.blocks, &look), cell.span, cell.vertical, cell.fill,
                                    cell.verticalAlignment, cell.borders, cell.extra, Convert(cell.frames)});
            RawExtra(newRow.cells.back().extra);
        }
    }
    return converted;
}

SectionProperties TextImport::Section(const SectionProperties& section) {
    SectionProperties converted = section.CopyWithoutStories();
    RawExtra(converted.extra);
    for (std::size_t pages = 0; pages < section.headers.size(); ++pages) {
        const auto convert = [&](const std::unique_ptr<Story>& story) {
            return story ? std::make_unique<Story>(Story{Convert(story->blocks, nullptr)}) : nullptr;
        };
        converted.headers[pages] = convert(section.headers[pages]);
        converted.footers[pages] = convert(section.footers[pages]);
    }
    return converted;
}

// ---- Kept XML ------------------------------------------------------------------------------------------

void TextImport::RawExtra(std::vector<std::pair<std::string, std::string>>& extra) {
    for (auto& [name, xml] : extra) {
        // Most of it refers to nothing.
        if (xml.find("r:") != std::string::npos || xml.find("w:numId") != std::string::npos) xml = Raw(xml);
    }
    std::erase_if(extra, [](const auto& element) { return element.second.empty(); });
}

std::string TextImport::Raw(const std::string& xml) {
    if (xml.empty()) return xml;
    const auto tree = xml::ParseFragment(xml);
    return Translate(tree->document_element()) ? xml::PrintFragment(*tree) : std::string();
}

/// The relationships that notes name are those of their own part.
void TextImport::TranslateNotes(pugi::xml_node notes) {
    const bool wasInNotes = std::exchange(inNotes_, true);
    Translate(notes);
    inNotes_ = wasInNotes;
}

bool TextImport::TranslateAttributes(pugi::xml_node element) {
    if (inNotes_) return true;
    for (pugi::xml_attribute attribute : element.attributes()) {
        if (!std::string_view(attribute.name()).starts_with("r:") || !*attribute.value()) continue;
        const auto newId = relations_.Map(attribute.value());
        if (!newId) return false;
        attribute.set_value(newId->c_str());
    }
    return true;
}

/// Text of kept XML that names no style has the copied document's usual one, not the target's.
void TextImport::TranslateParagraph(pugi::xml_node paragraph) {
    pugi::xml_node properties = paragraph.child("w:pPr");
    if (!properties) properties = paragraph.prepend_child("w:pPr");
    if (properties.child("w:pStyle")) return;
    const std::string& style = styles_.Map("", "paragraph");
    if (!style.empty()) properties.prepend_child("w:pStyle").append_attribute("w:val") = style.c_str();
}

bool TextImport::Translate(pugi::xml_node element) {
    if (!TranslateAttributes(element)) return false;
    const std::string_view name = element.name();
    pugi::xml_attribute value = element.attribute("w:val");
    for (pugi::xml_node child = element.first_child(); child;) {
        const pugi::xml_node next = child.next_sibling();
        const bool isBookmark =
            xml::IsNamed(child, "w:bookmarkStart") || xml::IsNamed(child, "w:bookmarkEnd");
        if (isBookmark) element.remove_child(child);
        if (!isBookmark && child.type() == pugi::node_element && !Translate(child)) return false;
        if (NamesNoStyle(child)) element.remove_child(child);
        child = next;
    }
    if (name == "w:pStyle") value.set_value(styles_.Map(value.value(), "paragraph").c_str());
    if (name == "w:rStyle") value.set_value(styles_.Map(value.value(), "character").c_str());
    if (name == "w:tblStyle") value.set_value(styles_.Map(value.value(), "table").c_str());
    if (name == "w:sdtPr")
        for (const char* tie : kTiesOfControls) element.remove_child(tie);
    if (name == "w:numId") value.set_value(lists_.Map(xml::NumberAttribute(element, "w:val").value_or(0)));
    if (name == "w:ffData") {
        pugi::xml_attribute own = element.child("w:name").attribute("w:val");
        if (own && *own.value()) own.set_value(names_.Map(own.value(), kLongestFormField).c_str());
    }
    if (name == "w:p") TranslateParagraph(element);
    if (name == "a:schemeClr") usesTheme_ = true;
    const auto* note = std::ranges::find(kNoteElements, name, &NoteElement::name);
    if (note != std::end(kNoteElements)) {
        const int number = xml::NumberAttribute(element, "w:id").value_or(0);
        element.attribute("w:id").set_value(number + notes_.Offset(note->notes));
    }
    return true;
}

}  // namespace quillmark::word::docx::paste
