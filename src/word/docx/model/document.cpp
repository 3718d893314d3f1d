#include "word/docx/model/document.h"

#include <type_traits>

#include "word/docx/model/default_styles.h"

namespace quillmark::word::docx::inline model {
namespace {

/// Mixes the members of a format into one number.
class Mixer {
 public:
    Mixer& operator<<(std::size_t value) {
        hash_ = (hash_ ^ value) * 0x9e3779b97f4a7c15u;
        hash_ ^= hash_ >> 32;
        return *this;
    }
    Mixer& operator<<(const std::string& text) {
        return text.empty() ? *this << std::size_t{1} : *this << std::hash<std::string>()(text);
    }
    template <class T>
    Mixer& operator<<(const std::optional<T>& value) {
        return *this << (value ? static_cast<std::size_t>(*value) + 2 : std::size_t{1});
    }
    std::size_t hash() const { return hash_; }

 private:
    std::size_t hash_ = 0;
};

std::size_t HashOf(const CharFormat& format) {
    Mixer mixer;
    mixer << format.style << format.font << format.bold << format.italic << format.halfPoints
          << format.underline << format.superscript;
    for (const auto& [name, xml] : format.extra) mixer << xml;
    return mixer.hash();
}

std::size_t HashOf(const ParaFormat& format) {
    Mixer mixer;
    mixer << format.style << format.numId << static_cast<std::size_t>(format.listLevel) << format.spaceBefore
          << format.spaceAfter << format.line << static_cast<std::size_t>(format.lineRule)
          << format.leftIndent << format.rightIndent << format.firstLine << format.alignment
          << static_cast<std::size_t>(format.role);
    for (const TabStop& stop : format.tabs) mixer << static_cast<std::size_t>(stop.position);
    for (const auto& [name, xml] : format.extra) mixer << xml;
    return (mixer << format.markReview).hash();
}

InlineObject CopyObject(const InlineObject& object) {
    InlineObject copy = object;
    if (auto* field = std::get_if<FormFieldData>(&copy)) field->name.clear();
    return copy;
}

Paragraph CopyParagraph(const Paragraph& paragraph) {
    Paragraph copy;
    copy.text = paragraph.text;
    copy.spans = paragraph.spans;
    for (const InlineObject& object : paragraph.objects) copy.objects.push_back(CopyObject(object));
    copy.format = paragraph.format;
    copy.markFormat = paragraph.markFormat;
    return copy;
}

TableCell CopyCell(const TableCell& cell) {
    return {CopyBlocks(cell.blocks), cell.span,    cell.vertical, cell.fill,
            cell.verticalAlignment,  cell.borders, cell.extra};
}

std::unique_ptr<Table> CopyTable(const Table& table) {
    auto copy = std::make_unique<Table>();
    copy->grid = table.grid;
    copy->borders = table.borders;
    copy->style = table.style;
    copy->extra = table.extra;
    for (const TableRow& row : table.rows) {
        TableRow& target = copy->rows.emplace_back(TableRow{{}, row.height, row.heightRule, row.extra});
        for (const TableCell& cell : row.cells) target.cells.push_back(CopyCell(cell));
    }
    return copy;
}

Block CopyBlock(const Block& block) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) return CopyParagraph(*paragraph);
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&block)) return CopyTable(**table);
    return std::get<RawBlock>(block);
}

}  // namespace

template <class Format>
FormatId FormatTable<Format>::Intern(const Format& format) {
    const std::size_t hash = HashOf(format);
    const auto [first, last] = byHash_.equal_range(hash);
    for (auto entry = first; entry != last; ++entry)
        if (formats_[entry->second] == format) return entry->second;
    const auto id = static_cast<FormatId>(formats_.size());
    formats_.push_back(format);
    byHash_.emplace(hash, id);
    return id;
}

template class FormatTable<CharFormat>;
template class FormatTable<ParaFormat>;

Blocks CopyBlocks(const Blocks& blocks) {
    Blocks copy;
    for (const Block& block : blocks) copy.push_back(CopyBlock(block));
    return copy;
}

SectionProperties SectionProperties::CopyWithoutStories() const {
    SectionProperties copy;
    copy.start = start;
    copy.pageWidth = pageWidth;
    copy.pageHeight = pageHeight;
    copy.landscape = landscape;
    copy.topMargin = topMargin;
    copy.rightMargin = rightMargin;
    copy.bottomMargin = bottomMargin;
    copy.leftMargin = leftMargin;
    copy.headerDistance = headerDistance;
    copy.footerDistance = footerDistance;
    copy.gutter = gutter;
    copy.pageNumberStart = pageNumberStart;
    copy.columns = columns;
    copy.columnSpacing = columnSpacing;
    copy.unequalColumns = unequalColumns;
    copy.protectedForForms = protectedForForms;
    copy.titlePage = titlePage;
    copy.extra = extra;
    return copy;
}

Document::Document() : styles(DefaultStyles()), docDefaults(DefaultFormats()) {
    charFormats.Intern({});
    paraFormats.Intern({});
    body.emplace_back(Paragraph{});
}

}  // namespace quillmark::word::docx::inline model
