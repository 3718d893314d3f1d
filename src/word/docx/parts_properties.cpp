#include "word/docx/parts_properties.h"

#include <algorithm>

namespace quillmark::word::docx {

namespace {

// clang-format off
constexpr std::string_view kParagraphNames[] = {
    "pStyle", "keepNext", "keepLines", "pageBreakBefore", "framePr", "widowControl", "numPr",
    "suppressLineNumbers", "pBdr", "shd", "tabs", "suppressAutoHyphens", "kinsoku", "wordWrap",
    "overflowPunct", "topLinePunct", "autoSpaceDE", "autoSpaceDN", "bidi", "adjustRightInd", "snapToGrid",
    "spacing", "ind", "contextualSpacing", "mirrorIndents", "suppressOverlap", "jc", "textDirection",
    "textAlignment", "textboxTightWrap", "outlineLvl", "divId", "cnfStyle", "rPr", "sectPr", "pPrChange",
};
constexpr std::string_view kRunNames[] = {
    "ins", "del", "moveFrom", "moveTo", "rStyle", "rFonts", "b", "bCs", "i", "iCs", "caps", "smallCaps",
    "strike", "dstrike", "outline", "shadow", "emboss", "imprint", "noProof", "snapToGrid", "vanish",
    "webHidden", "color", "spacing", "w", "kern", "position", "sz", "szCs", "highlight", "u", "effect",
    "bdr", "shd", "fitText", "vertAlign", "rtl", "cs", "em", "lang", "eastAsianLayout", "specVanish",
    "oMath", "rPrChange",
};
constexpr std::string_view kSectionNames[] = {
    "headerReference", "footerReference", "footnotePr", "endnotePr", "type", "pgSz", "pgMar", "paperSrc",
    "pgBorders", "lnNumType", "pgNumType", "cols", "formProt", "vAlign", "noEndnote", "titlePg",
    "textDirection", "bidi", "rtlGutter", "docGrid", "printerSettings", "sectPrChange",
};
constexpr std::string_view kTableNames[] = {
    "tblStyle", "tblpPr", "tblOverlap", "bidiVisual", "tblStyleRowBandSize", "tblStyleColBandSize", "tblW",
    "jc", "tblCellSpacing", "tblInd", "tblBorders", "shd", "tblLayout", "tblCellMar", "tblLook",
    "tblCaption", "tblDescription", "tblPrChange",
};
constexpr std::string_view kRowNames[] = {
    "cnfStyle", "divId", "gridBefore", "gridAfter", "wBefore", "wAfter", "cantSplit", "trHeight",
    "tblHeader", "tblCellSpacing", "jc", "hidden", "ins", "del", "trPrChange",
};
constexpr std::string_view kCellNames[] = {
    "cnfStyle", "tcW", "gridSpan", "hMerge", "vMerge", "tcBorders", "shd", "noWrap", "tcMar",
    "textDirection", "tcFitText", "vAlign", "hideMark", "headers", "cellIns", "cellDel", "cellMerge",
    "tcPrChange",
};

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

constexpr std::string_view kPrefix = "w:";

void AddTabs(PropertyElement& properties, const std::vector<TabStop>& tabs) {
    if (tabs.empty()) return;
    XmlWriter& xml = properties.Add("w:tabs");
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

void AddSpacing(PropertyElement& properties, const ParaFormat& format) {
    if (!format.spaceBefore && !format.spaceAfter && !format.line) return;
    XmlWriter& xml = properties.Add("w:spacing");
    if (format.spaceBefore) xml.Attribute("w:before", *format.spaceBefore);
    if (format.spaceAfter) xml.Attribute("w:after", *format.spaceAfter);
    if (!format.line) return;
    xml.Attribute("w:line", *format.line);
    xml.Attribute("w:lineRule", RuleName(format.lineRule));
}

void AddIndents(PropertyElement& properties, const ParaFormat& format) {
    if (!format.leftIndent && !format.rightIndent && !format.firstLine) return;
    XmlWriter& xml = properties.Add("w:ind");
    if (format.leftIndent) xml.Attribute("w:left", *format.leftIndent);
    if (format.rightIndent) xml.Attribute("w:right", *format.rightIndent);
    if (!format.firstLine) return;
    if (*format.firstLine < 0) xml.Attribute("w:hanging", -*format.firstLine);
    if (*format.firstLine >= 0) xml.Attribute("w:firstLine", *format.firstLine);
}

}  // namespace

const ChildOrder kParagraphOrder = kParagraphNames;
const ChildOrder kRunOrder = kRunNames;
const ChildOrder kSectionOrder = kSectionNames;
const ChildOrder kTableOrder = kTableNames;
const ChildOrder kRowOrder = kRowNames;
const ChildOrder kCellOrder = kCellNames;

std::size_t PropertyElement::Rank(std::string_view localName) const {
    return static_cast<std::size_t>(std::ranges::find(order_, localName) - order_.begin());
}

void PropertyElement::FinishChild() {
    if (inChild_) children_.Close();
    inChild_ = false;
    if (!placed_.empty()) placed_.back().end = children_.xml().size();
}

XmlWriter& PropertyElement::Add(std::string_view tag) {
    FinishChild();
    placed_.push_back({.rank = Rank(tag.substr(kPrefix.size())), .start = children_.xml().size()});
    children_.Open(tag);
    inChild_ = true;
    return children_;
}

void PropertyElement::Flag(std::string_view tag, bool on) {
    XmlWriter& xml = Add(tag);
    if (!on) xml.Attribute("w:val", 0);
}

void PropertyElement::Raw(std::string_view localName, std::string_view xml) {
    if (xml.empty()) return;
    FinishChild();
    placed_.push_back({.rank = Rank(localName), .start = children_.xml().size()});
    children_.Raw(xml);
}

bool PropertyElement::Has(std::string_view localName) const {
    const std::size_t rank = Rank(localName);
    return std::ranges::find(placed_, rank, &Child::rank) != placed_.end();
}

void PropertyElement::Extra(const std::vector<std::pair<std::string, std::string>>& elements) {
    FinishChild();
    const std::vector<Child> own = placed_;
    for (const auto& [name, xml] : elements) {
        const bool foreign = !xml.starts_with("<w:");
        const bool repeated = std::ranges::find(own, Rank(name), &Child::rank) != own.end();
        if (foreign || !repeated) Raw(foreign ? std::string_view() : std::string_view(name), xml);
    }
}

std::string PropertyElement::Take() {
    FinishChild();
    if (placed_.empty()) return {};
    std::ranges::stable_sort(placed_, {}, &Child::rank);
    XmlWriter element;
    element.Open(tag_);
    for (const Child& child : placed_) {
        element.Raw(std::string_view(children_.xml()).substr(child.start, child.end - child.start));
    }
    element.Close();
    return element.Take();
}

std::string RunProperties(const CharFormat& format) {
    PropertyElement properties("w:rPr", kRunOrder);
    if (!format.style.empty()) properties.Value("w:rStyle", format.style);
    if (!format.font.empty()) {
        XmlWriter& fonts = properties.Add("w:rFonts");
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

std::string ParagraphProperties(const ParaFormat& format, std::string_view markProperties,
                                std::string_view section) {
    PropertyElement properties("w:pPr", kParagraphOrder);
    if (!format.style.empty()) properties.Value("w:pStyle", format.style);
    if (format.numId) {
        XmlWriter& number = properties.Add("w:numPr");
        number.Empty("w:ilvl", format.listLevel);
        number.Empty("w:numId", *format.numId);
    }
    AddTabs(properties, format.tabs);
    AddSpacing(properties, format);
    AddIndents(properties, format);
    if (format.alignment) properties.Value("w:jc", NameOf(kAlignments, *format.alignment));
    properties.Raw("rPr", markProperties);
    properties.Raw("sectPr", section);
    properties.Extra(format.extra);
    return properties.Take();
}

}  // namespace quillmark::word::docx
