#include <algorithm>
#include <charconv>
#include <numeric>

#include "word/docx/read/formats.h"
#include "word/docx/read/review.h"
#include "word/docx/read/story.h"
#include "word/docx/xml/property_element.h"

/// The properties of tables.
namespace quillmark::word::docx::read {

namespace {

struct NumberedName {
    int number;
    std::string_view name;
};

// clang-format off
constexpr const char* kSides[] = {"w:top", "w:left", "w:bottom", "w:right", "w:insideH", "w:insideV"};
constexpr NumberedName kLines[] = {
    {0, "nil"}, {1, "single"}, {2, "dotted"}, {3, "dashSmallGap"}, {4, "dashed"}, {5, "dotDash"},
    {6, "dotDotDash"}, {7, "double"}, {8, "triple"},
};
constexpr NumberedName kVerticalAlignments[] = {{0, "top"}, {1, "center"}, {3, "bottom"}};
// clang-format on

constexpr int kMostColumns = 63;
constexpr int kUsualColumn = 1440;
constexpr int kUsualCellMargin = 108;

std::optional<int> NumberOf(std::span<const NumberedName> names, std::string_view name) {
    const auto found = std::ranges::find(names, name, &NumberedName::name);
    return found == names.end() ? std::nullopt : std::optional(found->number);
}

/// The line, when it has the width and colour that the model's lines have.
std::optional<BorderLine> ReadLine(pugi::xml_node side) {
    const auto style = NumberOf(kLines, xml::Val(side));
    if (style == 0) return side.attribute("w:sz") ? std::nullopt : std::optional(BorderLine{0});
    const bool isUsual = xml::Attribute(side, "w:sz") == "4" && xml::Attribute(side, "w:space") == "0" &&
                         xml::Attribute(side, "w:color") == "auto" && !side.attribute("w:shadow") &&
                         !side.attribute("w:frame");
    return style && isUsual ? std::optional(BorderLine{*style}) : std::nullopt;
}

/// All lines, or none when the model lacks one of them.
bool TakeBorders(pugi::xml_node element, Borders& borders) {
    Borders read;
    for (const pugi::xml_node side : element.children()) {
        const auto* known = std::ranges::find(kSides, std::string_view(side.name()));
        const auto line = ReadLine(side);
        if (known == std::end(kSides) || !line) return false;
        read[static_cast<std::size_t>(known - kSides)] = line;
    }
    borders = read;
    return true;
}

int HexDigits(std::string_view text) {
    int value = -1;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    return failure == std::errc() && end == text.data() + text.size() ? value : -1;
}

/// A plain fill as the model's colour number; a negative one is automatic.
std::optional<int> ReadFill(pugi::xml_node shading) {
    const std::string_view fill = xml::Attribute(shading, "w:fill");
    if (xml::Val(shading) != "clear" || xml::Attribute(shading, "w:color") != "auto") return {};
    const int rgb = fill.size() == 6 ? HexDigits(fill) : -1;
    if (rgb < 0) return {};
    return (rgb >> 16 & 0xFF) | (rgb & 0xFF00) | (rgb & 0xFF) << 16;
}

bool IsElement(const std::pair<std::string, std::string>& extra, std::string_view name) {
    return extra.first == name;
}

/// Tables of older layout rules stick out by their left cell margin; those of 15 start at the text's edge.
void MoveOutByCellMargin(pugi::xml_node properties, Table& table) {
    const std::string_view alignment = xml::Val(properties.child("w:jc"));
    if (alignment == "center" || alignment == "right" || alignment == "end" || properties.child("w:tblpPr"))
        return;
    const pugi::xml_node indent = properties.child("w:tblInd");
    const std::string_view unit = xml::Attribute(indent, "w:type");
    if (indent && unit != "dxa" && unit != "auto" && unit != "nil") return;
    const int margin =
        Twips(properties.child("w:tblCellMar").child("w:left"), "w:w").value_or(kUsualCellMargin);
    const int moved = (unit == "dxa" ? Twips(indent, "w:w").value_or(0) : 0) - margin;
    std::erase_if(table.extra, [](const auto& extra) { return IsElement(extra, "tblInd"); });
    table.extra.emplace_back("tblInd", "<w:tblInd w:w=\"" + std::to_string(moved) + "\" w:type=\"dxa\"/>");
}

bool IsWidth(const pugi::xml_node& element, int twips) {
    return xml::Attribute(element, "w:type") == "dxa" && Twips(element, "w:w") == twips;
}

/// Columns that the row leaves free at its beginning or end.
int FreeColumns(pugi::xml_node row, const char* which) {
    const auto columns = xml::NumberAttribute(row.child("w:trPr").child(which), "w:val");
    return std::clamp(columns.value_or(0), 0, kMostColumns);
}

void ReadGrid(pugi::xml_node node, Table& table) {
    for (const pugi::xml_node column : node.child("w:tblGrid").children("w:gridCol")) {
        if (table.grid.size() < kMostColumns)
            table.grid.push_back(std::max(Twips(column, "w:w").value_or(0), 0));
    }
}

void ReadTableProperties(const ReadPart& part, pugi::xml_node properties, Table& table) {
    for (const pugi::xml_node child : properties.children()) {
        const bool isStyle = xml::IsNamed(child, "w:tblStyle");
        if (isStyle && part.context.tableStyles.contains(xml::Val(child))) table.style = xml::Val(child);
        if (isStyle || (xml::IsNamed(child, "w:tblBorders") && TakeBorders(child, table.borders))) continue;
        KeepExtra(part, child, xml::kTableOrder, table.extra);
    }
    // What the file leaves open is not what a table of the model is without these.
    if (!properties.child("w:tblW")) table.extra.emplace_back("tblW", R"(<w:tblW w:w="0" w:type="auto"/>)");
    if (!properties.child("w:tblLayout")) {
        table.extra.emplace_back("tblLayout", R"(<w:tblLayout w:type="autofit"/>)");
    }
}

void ReadRowFormat(const ReadPart& part, pugi::xml_node node, TableRow& row) {
    const pugi::xml_node properties = node.child("w:trPr");
    for (const pugi::xml_node child : properties.children()) {
        if (!xml::IsNamed(child, "w:trHeight")) {
            KeepExtra(part, child, xml::kRowOrder, row.extra);
            continue;
        }
        row.height = Twips(child, "w:val");
        const std::string_view rule = xml::Attribute(child, "w:hRule");
        if (rule == "exact" || rule == "atLeast") row.heightRule = rule;
    }
    if (const pugi::xml_node exceptions = node.child("w:tblPrEx")) {
        if (std::string xml = part.Keep(exceptions); !xml.empty())
            row.extra.emplace_back("tblPrEx", std::move(xml));
    }
}

void ReadCellFormat(const ReadPart& part, pugi::xml_node properties, TableCell& cell) {
    for (const pugi::xml_node child : properties.children()) {
        const std::string_view name = child.name();
        if (name == "w:gridSpan") {
            cell.span = std::clamp(xml::NumberAttribute(child, "w:val").value_or(1), 1, kMostColumns);
        } else if (name == "w:vMerge") {
            cell.vertical = xml::Val(child) == "restart" ? Merge::Start : Merge::Continued;
        } else if (name == "w:tcBorders" && TakeBorders(child, cell.borders)) {
            continue;
        } else if (name == "w:shd" && (cell.fill = ReadFill(child))) {
            continue;
        } else if (name == "w:vAlign" &&
                   (cell.verticalAlignment = NumberOf(kVerticalAlignments, xml::Val(child)))) {
            continue;
        } else if (name != "w:hMerge") {
            KeepExtra(part, child, xml::kCellOrder, cell.extra);
        }
    }
}

/// The grid has a column for every one that the rows cover.
void CompleteGrid(pugi::xml_node node, Table& table) {
    int widest = 0;
    for (const TableRow& row : table.rows) {
        int columns = 0;
        for (const TableCell& cell : row.cells) columns += cell.span;
        widest = std::max(widest, columns);
    }
    for (const pugi::xml_node row : node.children("w:tr")) {
        int columns = FreeColumns(row, "w:gridBefore") + FreeColumns(row, "w:gridAfter");
        for (const pugi::xml_node cell : row.children("w:tc")) {
            const auto span = xml::NumberAttribute(cell.child("w:tcPr").child("w:gridSpan"), "w:val");
            columns += std::clamp(span.value_or(1), 1, kMostColumns);
        }
        widest = std::max(widest, columns);
    }
    while (std::ssize(table.grid) < widest) table.grid.push_back(kUsualColumn);
}

/// Widths that only repeat what the grid says are left to it.
void ForgetGridWidths(pugi::xml_node node, Table& table) {
    const auto repeats = [](const std::pair<std::string, std::string>& extra, std::string_view name,
                            int width) {
        return IsElement(extra, name) && IsWidth(xml::ParseFragment(extra.second)->document_element(), width);
    };
    const int whole = std::accumulate(table.grid.begin(), table.grid.end(), 0);
    std::erase_if(table.extra, [&](const auto& extra) { return repeats(extra, "tblW", whole); });
    if (xml::Attribute(node.child("w:tblPr").child("w:tblLayout"), "w:type") == "fixed") {
        std::erase_if(table.extra, [](const auto& extra) { return IsElement(extra, "tblLayout"); });
    }
    for (TableRow& row : table.rows) {
        if (std::ranges::any_of(row.extra, [](const auto& extra) { return IsElement(extra, "gridBefore"); }))
            continue;
        std::size_t column = 0;
        for (TableCell& cell : row.cells) {
            const auto first = table.grid.begin() + static_cast<std::ptrdiff_t>(column);
            const int width = std::accumulate(first, first + cell.span, 0);
            std::erase_if(cell.extra, [&](const auto& extra) { return repeats(extra, "tcW", width); });
            column += static_cast<std::size_t>(cell.span);
        }
    }
}

/// A cell that older programs merged with the one before it.
bool IsMergedAway(pugi::xml_node cell, const TableRow& row) {
    const pugi::xml_node merge = cell.child("w:tcPr").child("w:hMerge");
    return merge && xml::Val(merge) != "restart" && !row.cells.empty();
}

}  // namespace

std::unique_ptr<Table> StoryReader::ReadTable(pugi::xml_node node) {
    auto table = std::make_unique<Table>();
    const pugi::xml_node properties = node.child("w:tblPr");
    ReadGrid(node, *table);
    ReadTableProperties(part_, properties, *table);
    constexpr int kRulesOf2013 = 15;
    if (tableDepth_ == 0 && part_.context.compatibilityMode < kRulesOf2013)
        MoveOutByCellMargin(properties, *table);
    ++tableDepth_;
    ReadRows(node, *table);
    --tableDepth_;
    if (table->rows.empty()) return nullptr;
    CompleteGrid(node, *table);
    ForgetGridWidths(node, *table);
    return table;
}

void StoryReader::ReadRows(pugi::xml_node parent, Table& table) {
    for (const pugi::xml_node child : parent.children()) {
        if (xml::IsNamed(child, "w:sdt")) {
            const std::size_t before = table.rows.size();
            ReadRows(ContentOf(child), table);
            if (table.rows.size() > before) Frame(child, table.rows[before].frames, table.rows.back().frames);
        }
        if (xml::IsNamed(child, "w:customXml")) ReadRows(child, table);
        if (xml::IsNamed(child, "w:bookmarkStart") || xml::IsNamed(child, "w:bookmarkEnd")) {
            ReadBookmark(child, pendingAnchors_, 0);
        }
        if (IsCommentMark(child.name())) ReadAlone(part_.Keep(child), pendingAnchors_, 0);
        if (!xml::IsNamed(child, "w:tr")) continue;
        TableRow row;
        ReadRowFormat(part_, child, row);
        ReadCells(child, row);
        if (!row.cells.empty()) table.rows.push_back(std::move(row));
    }
}

void StoryReader::ReadCells(pugi::xml_node parent, TableRow& row) {
    for (const pugi::xml_node child : parent.children()) {
        if (xml::IsNamed(child, "w:sdt")) {
            const std::size_t before = row.cells.size();
            ReadCells(ContentOf(child), row);
            if (row.cells.size() > before) Frame(child, row.cells[before].frames, row.cells.back().frames);
        }
        if (xml::IsNamed(child, "w:customXml")) ReadCells(child, row);
        if (xml::IsNamed(child, "w:bookmarkStart") || xml::IsNamed(child, "w:bookmarkEnd")) {
            ReadBookmark(child, pendingAnchors_, 0);
        }
        if (IsCommentMark(child.name())) ReadAlone(part_.Keep(child), pendingAnchors_, 0);
        if (!xml::IsNamed(child, "w:tc")) continue;
        if (IsMergedAway(child, row)) {
            row.cells.back().span = std::min(row.cells.back().span + 1, kMostColumns);
            continue;
        }
        TableCell cell;
        ReadCellFormat(part_, child.child("w:tcPr"), cell);
        cell.blocks = ReadContainer(child);
        row.cells.push_back(std::move(cell));
    }
}

}  // namespace quillmark::word::docx::read
