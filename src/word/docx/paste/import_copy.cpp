#include "word/docx/paste/import_copy.h"

namespace quillmark::word::docx::paste {

namespace {

Blocks Clone(const Blocks& blocks);

SectionProperties Clone(const SectionProperties& section) {
    SectionProperties copy = section.CopyWithoutStories();
    for (std::size_t pages = 0; pages < section.headers.size(); ++pages) {
        const auto clone = [](const std::unique_ptr<Story>& story) {
            return story ? std::make_unique<Story>(Story{Clone(story->blocks)}) : nullptr;
        };
        copy.headers[pages] = clone(section.headers[pages]);
        copy.footers[pages] = clone(section.footers[pages]);
    }
    return copy;
}

Paragraph Clone(const Paragraph& paragraph) {
    Paragraph copy;
    copy.text = paragraph.text;
    copy.spans = paragraph.spans;
    copy.objects = paragraph.objects;
    copy.anchors = paragraph.anchors;
    copy.format = paragraph.format;
    copy.markFormat = paragraph.markFormat;
    copy.frames = paragraph.frames;
    if (paragraph.section) copy.section = std::make_unique<SectionProperties>(Clone(*paragraph.section));
    return copy;
}

std::unique_ptr<Table> Clone(const Table& table) {
    auto copy = std::make_unique<Table>();
    copy->grid = table.grid;
    copy->borders = table.borders;
    copy->style = table.style;
    copy->extra = table.extra;
    copy->frames = table.frames;
    for (const TableRow& row : table.rows) {
        TableRow& newRow =
            copy->rows.emplace_back(TableRow{{}, row.height, row.heightRule, row.extra, row.frames});
        for (const TableCell& cell : row.cells) {
            newRow.cells.push_back({Clone(cell.blocks), cell.span, cell.vertical, cell.fill,
                                    cell.verticalAlignment, cell.borders, cell.extra, cell.frames});
        }
    }
    return copy;
}

Blocks Clone(const Blocks& blocks) {
    Blocks copy;
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block)) copy.emplace_back(Clone(*paragraph));
        if (const auto* table = std::get_if<std::unique_ptr<Table>>(&block))
            copy.emplace_back(Clone(**table));
        if (const auto* raw = std::get_if<RawBlock>(&block)) copy.emplace_back(*raw);
    }
    return copy;
}

}  // namespace

std::unique_ptr<Document> CloneDocument(const Document& document) {
    auto copy = std::make_unique<Document>();
    copy->body = Clone(document.body);
    copy->lastSection = Clone(document.lastSection);
    copy->charFormats = document.charFormats;
    copy->paraFormats = document.paraFormats;
    copy->abstractLists = document.abstractLists;
    copy->lists = document.lists;
    copy->styles = document.styles;
    copy->docDefaults = document.docDefaults;
    copy->relations = document.relations;
    copy->defaultTabStop = document.defaultTabStop;
    copy->protection = document.protection;
    copy->evenAndOddHeaders = document.evenAndOddHeaders;
    copy->nextBookmarkId = document.nextBookmarkId;
    copy->nextFormField[0] = document.nextFormField[0];
    copy->nextFormField[1] = document.nextFormField[1];
    copy->zoomPercent = document.zoomPercent;
    copy->zoomToPageWidth = document.zoomToPageWidth;
    return copy;
}

}  // namespace quillmark::word::docx::paste
