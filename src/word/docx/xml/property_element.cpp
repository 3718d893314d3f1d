#include "word/docx/xml/property_element.h"

#include <algorithm>

namespace quillmark::word::docx::xml {

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
// clang-format on

constexpr std::string_view kPrefix = "w:";

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

}  // namespace quillmark::word::docx::xml
