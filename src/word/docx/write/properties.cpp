#include "word/docx/write/properties.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>

#include "word/docx/xml/property_element.h"

namespace quillmark::word::docx::write {

namespace {

// clang-format off
struct NumberedName {
    int number;
    std::string_view name;
};

// The model's underlines and the format's.
constexpr NumberedName kUnderlines[] = {
    {0, "none"},   {1, "single"}, {2, "words"},   {3, "double"},      {4, "dotted"},
    {6, "thick"},  {7, "dash"},   {9, "dotDash"}, {10, "dotDotDash"}, {11, "wave"},
};
// The model's alignments and the format's.
constexpr NumberedName kAlignments[] = {
    {0, "left"}, {1, "center"}, {2, "right"}, {3, "both"}, {4, "distribute"},
};
// clang-format on

std::string_view NameOf(std::span<const NumberedName> names, int number) {
    const auto found = std::ranges::find(names, number, &NumberedName::number);
    return found == names.end() ? names.front().name : found->name;
}

void AddTabs(xml::PropertyElement& properties, const std::vector<TabStop>& tabs) {
    if (tabs.empty()) return;
    xml::XmlWriter& xml = properties.Add("w:tabs");
    for (const TabStop& tab : tabs) {
        xml.Open("w:tab");
        xml.Attribute("w:val", tab.alignment);
        if (!tab.leader.empty()) xml.Attribute("w:leader", tab.leader);
        xml.Attribute("w:pos", tab.position);
        xml.Close();
    }
}

std::string_view RuleName(LineRule rule) {
    switch (rule) {
        case LineRule::AtLeast:
            return "atLeast";
        case LineRule::Exact:
            return "exact";
        default:
            return "auto";
    }
}

void AddSpacing(xml::PropertyElement& properties, const ParaFormat& format) {
    if (!format.spaceBefore && !format.spaceAfter && !format.line) return;
    xml::XmlWriter& xml = properties.Add("w:spacing");
    if (format.spaceBefore) xml.Attribute("w:before", *format.spaceBefore);
    if (format.spaceAfter) xml.Attribute("w:after", *format.spaceAfter);
    if (!format.line) return;
    xml.Attribute("w:line", *format.line);
    xml.Attribute("w:lineRule", RuleName(format.lineRule));
}

void AddIndents(xml::PropertyElement& properties, const ParaFormat& format) {
    if (!format.leftIndent && !format.rightIndent && !format.firstLine) return;
    xml::XmlWriter& xml = properties.Add("w:ind");
    if (format.leftIndent) xml.Attribute("w:left", *format.leftIndent);
    if (format.rightIndent) xml.Attribute("w:right", *format.rightIndent);
    if (!format.firstLine) return;
    if (*format.firstLine < 0) xml.Attribute("w:hanging", -*format.firstLine);
    if (*format.firstLine >= 0) xml.Attribute("w:firstLine", *format.firstLine);
}

}  // namespace

std::string RunProperties(const CharFormat& format) {
    xml::PropertyElement properties("w:rPr", xml::kRunOrder);
    if (!format.style.empty()) properties.Value("w:rStyle", format.style);
    if (!format.font.empty()) {
        xml::XmlWriter& fonts = properties.Add("w:rFonts");
        for (const char* script : {"w:ascii", "w:eastAsia", "w:hAnsi", "w:cs"})
            fonts.Attribute(script, format.font);
    }
    if (format.bold) properties.Flag("w:b", *format.bold);
    if (format.italic) properties.Flag("w:i", *format.italic);
    if (format.halfPoints) properties.Value("w:sz", *format.halfPoints);
    if (format.halfPoints) properties.Value("w:szCs", *format.halfPoints);
    if (format.underline) properties.Value("w:u", NameOf(kUnderlines, *format.underline));
    if (format.superscript) properties.Value("w:vertAlign", *format.superscript ? "superscript" : "baseline");
    properties.Extra(format.extra);
    return properties.Take();
}

namespace {

/// The mark's properties, with the tracked change of the mark itself in front.
std::string Reviewed(const std::string& review, std::string_view markProperties) {
    constexpr std::string_view kOpening = "<w:rPr>", kClosing = "</w:rPr>";
    if (review.empty()) return std::string(markProperties);
    if (!markProperties.starts_with(kOpening)) return fmt::format("{}{}{}", kOpening, review, kClosing);
    return fmt::format("{}{}{}", kOpening, review, markProperties.substr(kOpening.size()));
}

}  // namespace

std::string ParagraphProperties(const ParaFormat& format, std::string_view markProperties,
                                std::string_view section) {
    xml::PropertyElement properties("w:pPr", xml::kParagraphOrder);
    if (!format.style.empty()) properties.Value("w:pStyle", format.style);
    if (format.numId) {
        xml::XmlWriter& number = properties.Add("w:numPr");
        number.Empty("w:ilvl", format.listLevel);
        number.Empty("w:numId", *format.numId);
    }
    AddTabs(properties, format.tabs);
    AddSpacing(properties, format);
    AddIndents(properties, format);
    if (format.alignment) properties.Value("w:jc", NameOf(kAlignments, *format.alignment));
    properties.Raw("rPr", Reviewed(format.markReview, markProperties));
    properties.Raw("sectPr", section);
    properties.Extra(format.extra);
    return properties.Take();
}

}  // namespace quillmark::word::docx::write
