#include <algorithm>

#include "word/docx/read/formats.h"
#include "word/docx/xml/property_element.h"

namespace quillmark::word::docx::read {

namespace {

constexpr int kLargestPage = 31'680;  ///< 22 inches
constexpr int kSmallestPage = 144;
constexpr int kMostColumns = 45;

int StartNumber(std::string_view name) {
    constexpr std::string_view kNames[] = {"continuous", "nextColumn", "nextPage", "evenPage", "oddPage"};
    const auto* found = std::ranges::find(kNames, name);
    return found == std::end(kNames) ? 2 : static_cast<int>(found - kNames);
}

void Set(int& member, pugi::xml_node node, const char* name, int smallest) {
    const auto value = xml::NumberAttribute(node, name);
    if (value) member = std::clamp(*value, smallest, kLargestPage);
}

void ReadMargins(pugi::xml_node margins, SectionProperties& section) {
    Set(section.topMargin, margins, "w:top", -kLargestPage);
    Set(section.bottomMargin, margins, "w:bottom", -kLargestPage);
    Set(section.leftMargin, margins, "w:left", 0);
    Set(section.rightMargin, margins, "w:right", 0);
    Set(section.headerDistance, margins, "w:header", 0);
    Set(section.footerDistance, margins, "w:footer", 0);
    Set(section.gutter, margins, "w:gutter", 0);
}

void ReadColumns(pugi::xml_node columns, SectionProperties& section) {
    section.columns = std::clamp(xml::NumberAttribute(columns, "w:num").value_or(1), 1, kMostColumns);
    Set(section.columnSpacing, columns, "w:space", 0);
    if (xml::IsOnText(xml::Attribute(columns, "w:equalWidth"), true)) return;
    for (const pugi::xml_node column : columns.children("w:col")) {
        int width = 0;
        int space = 0;
        Set(width, column, "w:w", 0);
        Set(space, column, "w:space", 0);
        if (section.unequalColumns.size() < kMostColumns) section.unequalColumns.emplace_back(width, space);
    }
    if (!section.unequalColumns.empty()) section.columns = static_cast<int>(section.unequalColumns.size());
}

/// False for what the model cannot hold whole.
bool TakeSectionProperty(pugi::xml_node child, SectionProperties& section) {
    const std::string_view name = child.name();
    if (name == "w:headerReference" || name == "w:footerReference" || name == "w:printerSettings")
        return true;
    if (name == "w:type") {
        section.start = StartNumber(xml::Val(child));
    } else if (name == "w:pgSz") {
        Set(section.pageWidth, child, "w:w", kSmallestPage);
        Set(section.pageHeight, child, "w:h", kSmallestPage);
        section.landscape = xml::Attribute(child, "w:orient") == "landscape";
    } else if (name == "w:pgMar") {
        ReadMargins(child, section);
    } else if (name == "w:cols") {
        ReadColumns(child, section);
    } else if (name == "w:formProt") {
        section.protectedForForms = xml::IsOn(child);
    } else if (name == "w:titlePg") {
        section.titlePage = xml::IsOn(child);
    } else if (name == "w:pgNumType" && !child.attribute("w:fmt") && !child.attribute("w:chapStyle")) {
        section.pageNumberStart = xml::NumberAttribute(child, "w:start");
    } else {
        return false;
    }
    return true;
}

}  // namespace

SectionProperties ReadSectionFormat(const ReadPart& part, pugi::xml_node properties) {
    SectionProperties section;
    for (const pugi::xml_node child : properties.children()) {
        if (!TakeSectionProperty(child, section)) KeepExtra(part, child, xml::kSectionOrder, section.extra);
    }
    return section;
}

}  // namespace quillmark::word::docx::read
