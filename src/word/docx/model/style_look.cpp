#include "word/docx/model/style_look.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <pugixml.hpp>
#include <sstream>

namespace quillmark::word::docx::inline model {
namespace {

using pugi::xml_node;

/// Styles that are based on one another in a ring stop here.
constexpr int kDeepestStyle = 20;

bool SameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

template <class T>
void FillFrom(std::optional<T>& member, const std::optional<T>& source) {
    if (!member) member = source;
}

std::optional<int> Number(xml_node node, const char* attribute) {
    const auto found = node.attribute(attribute);
    return found ? std::optional(found.as_int()) : std::nullopt;
}

std::optional<bool> Switch(xml_node node) {
    if (!node) return std::nullopt;
    const std::string_view value = node.attribute("w:val").as_string("1");
    return value != "0" && value != "false" && value != "off";
}

std::optional<int> UnderlineOf(xml_node node) {
    if (!node) return std::nullopt;
    const std::string_view value = node.attribute("w:val").as_string("none");
    return value == "none" ? 0 : value == "double" ? 3 : 1;
}

std::optional<int> AlignmentOf(xml_node node) {
    if (!node) return std::nullopt;
    const std::string_view value = node.attribute("w:val").as_string();
    if (value == "center") return 1;
    if (value == "right" || value == "end") return 2;
    return value == "both" || value == "distribute" ? 3 : 0;
}

void FillFont(CharFormat& format, xml_node properties) {
    if (format.font.empty()) format.font = properties.child("w:rFonts").attribute("w:ascii").as_string();
    FillFrom(format.bold, Switch(properties.child("w:b")));
    FillFrom(format.italic, Switch(properties.child("w:i")));
    FillFrom(format.halfPoints, Number(properties.child("w:sz"), "w:val"));
    FillFrom(format.underline, UnderlineOf(properties.child("w:u")));
    if (const auto position = properties.child("w:vertAlign"))
        FillFrom(format.superscript,
                 std::optional(std::strcmp(position.attribute("w:val").as_string(), "superscript") == 0));
}

std::optional<int> FirstLineOf(xml_node indent) {
    if (const auto hanging = indent.attribute("w:hanging")) return -hanging.as_int();
    return Number(indent, "w:firstLine");
}

void FillTabs(ParaFormat& format, xml_node tabs) {
    for (xml_node tab : tabs.children("w:tab")) {
        TabStop stop{tab.attribute("w:pos").as_int(), tab.attribute("w:val").as_string(),
                     tab.attribute("w:leader").as_string()};
        const auto isThere = [&](const TabStop& other) { return other.position == stop.position; };
        if (std::none_of(format.tabs.begin(), format.tabs.end(), isThere))
            format.tabs.push_back(std::move(stop));
    }
}

void FillParagraph(ParaFormat& format, xml_node properties) {
    const xml_node spacing = properties.child("w:spacing");
    FillFrom(format.spaceBefore, Number(spacing, "w:before"));
    FillFrom(format.spaceAfter, Number(spacing, "w:after"));
    if (!format.line && spacing.attribute("w:line")) {
        const std::string_view rule = spacing.attribute("w:lineRule").as_string("auto");
        format.line = spacing.attribute("w:line").as_int();
        format.lineRule = rule == "exact"     ? LineRule::Exact
                          : rule == "atLeast" ? LineRule::AtLeast
                                              : LineRule::Auto;
    }
    const xml_node indent = properties.child("w:ind");
    FillFrom(format.leftIndent, Number(indent, indent.attribute("w:left") ? "w:left" : "w:start"));
    FillFrom(format.rightIndent, Number(indent, indent.attribute("w:right") ? "w:right" : "w:end"));
    FillFrom(format.firstLine, FirstLineOf(indent));
    FillFrom(format.alignment, AlignmentOf(properties.child("w:jc")));
    FillTabs(format, properties.child("w:tabs"));
    if (const auto number = properties.child("w:numPr"))
        FillFrom(format.numId, Number(number.child("w:numId"), "w:val"));
}

const StyleDefinition* StyleById(const Document& document, std::string_view id) {
    const auto found = std::find_if(document.styles.begin(), document.styles.end(),
                                    [&](const StyleDefinition& style) { return style.id == id; });
    return found == document.styles.end() ? nullptr : &*found;
}

const StyleDefinition* DefaultParagraphStyle(const Document& document) {
    for (const StyleDefinition& style : document.styles)
        if (style.type == "paragraph" && style.xml.find("w:default=\"1\"") != std::string::npos)
            return &style;
    return nullptr;
}

/// Calls the function with the w:style elements from the paragraph's style down to the first it is based on.
template <class Function>
void ForEachStyle(const Document& document, const ParaFormat& paragraph, const Function& function) {
    const StyleDefinition* style =
        paragraph.style.empty() ? DefaultParagraphStyle(document) : StyleById(document, paragraph.style);
    for (int depth = 0; style && depth < kDeepestStyle; ++depth) {
        pugi::xml_document xml;
        xml.load_buffer(style->xml.data(), style->xml.size());
        const xml_node root = xml.child("w:style");
        function(root);
        style = StyleById(document, root.child("w:basedOn").attribute("w:val").as_string());
    }
}

ParaFormat StyleFormat(const Document& document, const ParaFormat& paragraph) {
    ParaFormat format;
    ForEachStyle(document, paragraph, [&](xml_node style) { FillParagraph(format, style.child("w:pPr")); });
    return format;
}

void FillFromList(const Document& document, ParaFormat& format) {
    const int numId = format.numId.value_or(0);
    if (numId < 1 || numId > static_cast<int>(document.lists.size())) return;
    const auto& levels = document.abstractLists[document.lists[numId - 1].abstractIndex].levels;
    if (format.listLevel >= static_cast<int>(levels.size())) return;
    FillFrom(format.leftIndent, std::optional(levels[format.listLevel].leftIndent));
    FillFrom(format.firstLine, std::optional(levels[format.listLevel].firstLine));
}

}  // namespace

StyleDefinition* FindStyle(Document& document, std::string_view name) {
    const auto found = std::find_if(document.styles.begin(), document.styles.end(),
                                    [&](const StyleDefinition& style) { return SameName(style.name, name); });
    return found == document.styles.end() ? nullptr : &*found;
}

CharFormat EffectiveFont(const Document& document, const ParaFormat& paragraph, const CharFormat& direct) {
    CharFormat format = direct;
    ParaFormat characterStyle;
    characterStyle.style = direct.style;
    const auto fill = [&](xml_node style) { FillFont(format, style.child("w:rPr")); };
    if (!direct.style.empty()) ForEachStyle(document, characterStyle, fill);
    ForEachStyle(document, paragraph, fill);
    pugi::xml_document defaults;
    defaults.load_buffer(document.docDefaults.data(), document.docDefaults.size());
    FillFont(format, defaults.child("w:docDefaults").child("w:rPrDefault").child("w:rPr"));
    if (format.font.empty()) format.font = "Times New Roman";
    FillFrom(format.bold, std::optional(false));
    FillFrom(format.italic, std::optional(false));
    FillFrom(format.halfPoints, std::optional(20));
    FillFrom(format.underline, std::optional(0));
    FillFrom(format.superscript, std::optional(false));
    return format;
}

ParaFormat EffectiveParagraph(const Document& document, const ParaFormat& direct) {
    ParaFormat format = direct;
    FillFromList(document, format);
    ForEachStyle(document, direct, [&](xml_node style) { FillParagraph(format, style.child("w:pPr")); });
    pugi::xml_document defaults;
    defaults.load_buffer(document.docDefaults.data(), document.docDefaults.size());
    FillParagraph(format, defaults.child("w:docDefaults").child("w:pPrDefault").child("w:pPr"));
    for (auto* member : {&format.spaceBefore, &format.spaceAfter, &format.leftIndent, &format.rightIndent,
                         &format.firstLine, &format.alignment})
        FillFrom(*member, std::optional(0));
    FillFrom(format.line, std::optional(240));
    std::erase_if(format.tabs, [](const TabStop& stop) { return stop.alignment == "clear"; });
    std::sort(format.tabs.begin(), format.tabs.end(),
              [](const TabStop& a, const TabStop& b) { return a.position < b.position; });
    return format;
}

bool StyleHasTabStop(const Document& document, const ParaFormat& paragraph, int position) {
    const ParaFormat style = StyleFormat(document, paragraph);
    return std::any_of(style.tabs.begin(), style.tabs.end(), [&](const TabStop& stop) {
        return stop.position == position && stop.alignment != "clear";
    });
}

bool StyleHasNumbering(const Document& document, const ParaFormat& paragraph) {
    return StyleFormat(document, paragraph).numId.value_or(0) != 0;
}

bool HasContextualSpacing(const StyleDefinition& style) {
    pugi::xml_document xml;
    xml.load_buffer(style.xml.data(), style.xml.size());
    return Switch(xml.child("w:style").child("w:pPr").child("w:contextualSpacing")).value_or(false);
}

void SetContextualSpacing(StyleDefinition& style, bool on) {
    if (HasContextualSpacing(style) == on) return;
    pugi::xml_document xml;
    xml.load_buffer(style.xml.data(), style.xml.size(), pugi::parse_default | pugi::parse_ws_pcdata);
    xml_node properties = xml.child("w:style").child("w:pPr");
    properties.remove_child("w:contextualSpacing");
    if (on) {
        // Behind these in the schema's order; whatever else a style's w:pPr holds stands further on.
        static constexpr const char* kBefore[] = {"w:ind",       "w:spacing",      "w:tabs",
                                                  "w:numPr",     "w:widowControl", "w:pageBreakBefore",
                                                  "w:keepLines", "w:keepNext"};
        xml_node root = xml.child("w:style");
        if (!properties && root.child("w:rPr"))
            properties = root.insert_child_before("w:pPr", root.child("w:rPr"));
        if (!properties) properties = root.append_child("w:pPr");
        xml_node before;
        for (const char* name : kBefore)
            if (!before) before = properties.child(name);
        before ? properties.insert_child_after("w:contextualSpacing", before)
               : properties.prepend_child("w:contextualSpacing");
    }
    std::ostringstream out;
    xml.child("w:style").print(out, "", pugi::format_raw);
    style.xml = out.str();
}

}  // namespace quillmark::word::docx::inline model
