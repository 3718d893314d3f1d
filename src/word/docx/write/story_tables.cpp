#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <numeric>
#include <string>

#include "word/docx/write/story.h"
#include "word/docx/xml/property_element.h"

/// Tables of a story.
namespace quillmark::word::docx::write {

namespace {

using Extra = std::vector<std::pair<std::string, std::string>>;

struct LineName {
    int style;
    std::string_view name;
    int eighths;  ///< of a point: the width of the line
};

// clang-format off
// The model's line styles and the format's.
constexpr LineName kLines[] = {
    {0, "nil",          0},
    {1, "single",       4},
    {2, "dotted",       4},
    {3, "dashSmallGap", 4},
    {4, "dashed",       4},
    {5, "dotDash",      4},
    {6, "dotDotDash",   4},
    {7, "double",       4},
    {8, "triple",       4},
};
constexpr std::string_view kSides[] = {"w:top", "w:left", "w:bottom", "w:right", "w:insideH", "w:insideV"};
// clang-format on

const LineName& LineOf(int style) {
    const auto* found = std::ranges::find(kLines, style, &LineName::style);
    return found == std::end(kLines) ? kLines[1] : *found;
}

void AddBorders(xml::PropertyElement& properties, std::string_view tag, const Borders& borders) {
    if (std::ranges::none_of(borders, [](const auto& line) { return line.has_value(); })) return;
    xml::XmlWriter& xml = properties.Add(tag);
    for (std::size_t side = 0; side < borders.size(); ++side) {
        if (!borders[side]) continue;
        const LineName& line = LineOf(borders[side]->style);
        xml.Open(kSides[side]);
        xml.Attribute("w:val", line.name);
        if (line.eighths > 0) {
            xml.Attribute("w:sz", line.eighths);
            xml.Attribute("w:space", 0);
            xml.Attribute("w:color", "auto");
        }
        xml.Close();
    }
}

void AddWidth(xml::PropertyElement& properties, std::string_view tag, int twips) {
    xml::XmlWriter& xml = properties.Add(tag);
    xml.Attribute("w:w", twips);
    xml.Attribute("w:type", "dxa");
}

bool Names(const Extra& extra, std::string_view name) {
    return std::ranges::find(extra, name, &std::pair<std::string, std::string>::first) != extra.end();
}

/// The model's colour number, red in the lowest byte; a negative one is the automatic colour.
std::string FillName(int colour) {
    if (colour < 0) return "auto";
    return fmt::format("{:02X}{:02X}{:02X}", colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

std::string_view VerticalAlignmentName(int alignment) {
    if (alignment == 1) return "center";
    return alignment == 3 ? "bottom" : "top";
}

std::string TableProperties(const Table& table) {
    xml::PropertyElement properties("w:tblPr", xml::kTableOrder);
    if (!table.style.empty()) properties.Value("w:tblStyle", table.style);
    AddBorders(properties, "w:tblBorders", table.borders);
    if (!Names(table.extra, "tblW"))
        AddWidth(properties, "w:tblW", std::accumulate(table.grid.begin(), table.grid.end(), 0));
    if (!Names(table.extra, "tblLayout")) properties.Add("w:tblLayout").Attribute("w:type", "fixed");
    properties.Extra(table.extra);
    return properties.Take();
}

std::string CellProperties(const TableCell& cell, int width) {
    xml::PropertyElement properties("w:tcPr", xml::kCellOrder);
    if (!Names(cell.extra, "tcW")) AddWidth(properties, "w:tcW", width);
    if (cell.span > 1) properties.Value("w:gridSpan", cell.span);
    if (cell.vertical == Merge::Start) properties.Value("w:vMerge", "restart");
    if (cell.vertical == Merge::Continued) properties.Flag("w:vMerge", true);
    AddBorders(properties, "w:tcBorders", cell.borders);
    if (cell.fill) {
        xml::XmlWriter& shading = properties.Add("w:shd");
        shading.Attribute("w:val", "clear");
        shading.Attribute("w:color", "auto");
        shading.Attribute("w:fill", FillName(*cell.fill));
    }
    if (cell.verticalAlignment) properties.Value("w:vAlign", VerticalAlignmentName(*cell.verticalAlignment));
    properties.Extra(cell.extra);
    return properties.Take();
}

/// Row properties without the exceptions to the table's, which are an element of their own.
std::string RowProperties(const TableRow& row) {
    xml::PropertyElement properties("w:trPr", xml::kRowOrder);
    if (row.height) {
        xml::XmlWriter& height = properties.Add("w:trHeight");
        height.Attribute("w:val", *row.height);
        if (!row.heightRule.empty()) height.Attribute("w:hRule", row.heightRule);
    }
    Extra extra = row.extra;
    std::erase_if(extra, [](const auto& element) { return element.first == "tblPrEx"; });
    properties.Extra(extra);
    return properties.Take();
}

/// Grid columns that the row leaves free before its first cell.
std::size_t ColumnsBefore(const TableRow& row) {
    constexpr std::string_view kValue = "w:val=\"";
    for (const auto& [name, xml] : row.extra) {
        const std::size_t value = xml.find(kValue);
        if (name != "gridBefore" || value == std::string::npos) continue;
        std::size_t columns = 0;
        std::from_chars(xml.data() + value + kValue.size(), xml.data() + xml.size(), columns);
        return columns;
    }
    return 0;
}

/// Width of so many grid columns from this one on, as far as there are any.
int WidthOf(const std::vector<int>& grid, std::size_t first, int span) {
    const std::size_t start = std::min(first, grid.size());
    const std::size_t count = std::min(grid.size() - start, static_cast<std::size_t>(std::max(span, 0)));
    const auto begin = grid.begin() + static_cast<std::ptrdiff_t>(start);
    return std::accumulate(begin, begin + static_cast<std::ptrdiff_t>(count), 0);
}

bool HasCells(const TableRow& row) {
    return !row.cells.empty();
}

}  // namespace

void StoryWriter::WriteTable(const Table& table) {
    if (std::ranges::none_of(table.rows, HasCells)) return;
    xml_.Open("w:tbl");
    xml_.Raw(TableProperties(table));
    xml_.Open("w:tblGrid");
    for (const int width : table.grid) {
        xml_.Open("w:gridCol");
        xml_.Attribute("w:w", width);
        xml_.Close();
    }
    xml_.Close();
    int depth = 0;
    for (const TableRow& row : table.rows) {
        if (!HasCells(row)) continue;
        OpenFrames(row.frames, depth);
        WriteRow(table, row);
        CloseFrames(row.frames.closes, depth);
    }
    CloseFrames(depth, depth);
    xml_.Close();
}

void StoryWriter::WriteRow(const Table& table, const TableRow& row) {
    xml_.Open("w:tr");
    for (const auto& [name, xml] : row.extra) {
        if (name == "tblPrEx") xml_.Raw(xml);
    }
    xml_.Raw(RowProperties(row));
    std::size_t column = ColumnsBefore(row);
    int depth = 0;
    for (const TableCell& cell : row.cells) {
        OpenFrames(cell.frames, depth);
        WriteCell(cell, WidthOf(table.grid, column, cell.span));
        CloseFrames(cell.frames.closes, depth);
        column += static_cast<std::size_t>(std::max(cell.span, 1));
    }
    CloseFrames(depth, depth);
    xml_.Close();
}

void StoryWriter::WriteCell(const TableCell& cell, int width) {
    xml_.Open("w:tc");
    xml_.Raw(CellProperties(cell, width));
    Write(cell.blocks);
    xml_.Close();
}

}  // namespace quillmark::word::docx::write
