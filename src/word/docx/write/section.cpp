#include "word/docx/write/section.h"

#include <algorithm>
#include <array>

#include "word/docx/xml/property_element.h"

namespace quillmark::word::docx::write {

namespace {

constexpr int kNewColumn = 1;
constexpr int kNewPage = 2;

std::string_view StartName(int start) {
    constexpr std::array<std::string_view, 5> kNames = {"continuous", "nextColumn", "nextPage", "evenPage",
                                                        "oddPage"};
    const bool known = start >= 0 && static_cast<std::size_t>(start) < kNames.size();
    return kNames[static_cast<std::size_t>(known ? start : kNewPage)];
}

std::string_view PagesName(Pages pages) {
    if (pages == Pages::First) return "first";
    return pages == Pages::Even ? "even" : "default";
}

int StartOf(const SectionProperties& section, const SectionProperties* before) {
    const bool samePaper =
        !before || (before->pageWidth == section.pageWidth && before->pageHeight == section.pageHeight);
    return section.start <= kNewColumn && !samePaper ? kNewPage : section.start;
}

void AddReferences(xml::PropertyElement& properties, const std::vector<StoryReference>& references) {
    for (const StoryReference& reference : references) {
        xml::XmlWriter& xml = properties.Add(reference.isHeader ? "w:headerReference" : "w:footerReference");
        xml.Attribute("w:type", PagesName(reference.pages));
        xml.Attribute("r:id", reference.relation);
    }
}

void AddPage(xml::PropertyElement& properties, const SectionProperties& section) {
    xml::XmlWriter& size = properties.Add("w:pgSz");
    size.Attribute("w:w", section.pageWidth);
    size.Attribute("w:h", section.pageHeight);
    if (section.landscape) size.Attribute("w:orient", "landscape");
    xml::XmlWriter& margins = properties.Add("w:pgMar");
    margins.Attribute("w:top", section.topMargin);
    margins.Attribute("w:right", section.rightMargin);
    margins.Attribute("w:bottom", section.bottomMargin);
    margins.Attribute("w:left", section.leftMargin);
    margins.Attribute("w:header", section.headerDistance);
    margins.Attribute("w:footer", section.footerDistance);
    margins.Attribute("w:gutter", section.gutter);
}

void AddColumns(xml::PropertyElement& properties, const SectionProperties& section) {
    xml::XmlWriter& columns = properties.Add("w:cols");
    if (section.unequalColumns.empty()) {
        if (section.columns > 1) columns.Attribute("w:num", section.columns);
        columns.Attribute("w:space", section.columnSpacing);
        return;
    }
    columns.Attribute("w:num", section.unequalColumns.size());
    columns.Attribute("w:equalWidth", 0);
    for (const auto& [width, space] : section.unequalColumns) {
        columns.Open("w:col");
        columns.Attribute("w:w", width);
        columns.Attribute("w:space", space);
        columns.Close();
    }
}

}  // namespace

std::string SectionProperty(const SectionProperties& section, const SectionProperties* before,
                            const std::vector<StoryReference>& references) {
    xml::PropertyElement properties("w:sectPr", xml::kSectionOrder);
    AddReferences(properties, references);
    properties.Value("w:type", StartName(StartOf(section, before)));
    AddPage(properties, section);
    if (section.pageNumberStart) properties.Add("w:pgNumType").Attribute("w:start", *section.pageNumberStart);
    AddColumns(properties, section);
    if (!section.protectedForForms) properties.Flag("w:formProt", false);
    if (section.titlePage) properties.Flag("w:titlePg", true);
    properties.Extra(section.extra);
    return properties.Take();
}

}  // namespace quillmark::word::docx::write
