#include "word/docx/read/formats.h"

#include <algorithm>
#include <array>

#include "word/docx/read/review.h"
#include "word/docx/xml/property_element.h"

namespace quillmark::word::docx::read {

namespace {

struct NumberedName {
    int number;
    std::string_view name;
};

// clang-format off
constexpr NumberedName kUnderlines[] = {{0, "none"}, {1, "single"}, {3, "double"}};
constexpr NumberedName kAlignments[] = {
    {0, "left"}, {0, "start"}, {1, "center"}, {2, "right"}, {2, "end"}, {3, "both"},
};
constexpr std::string_view kTabLeaders[] = {"dot", "hyphen", "underscore", "heavy", "middleDot"};
constexpr std::string_view kTabAlignments[] = {"left", "center", "right", "decimal", "bar", "clear", "num"};
/// Where a web page's text came from, and a cell's place in a table style, which the layout finds by itself.
constexpr std::string_view kDroppedProperties[] = {"cnfStyle", "divId", "cellMerge"};
/// A paragraph mark's tracked changes are kept with the paragraph.
constexpr std::string_view kMarksOfReview[] = {"w:ins", "w:del", "w:moveFrom", "w:moveTo"};
// clang-format on

constexpr double kHalfPoints = 2.0;
/// What the word processor puts before and after paragraphs of web pages.
constexpr int kAutomaticSpace = 280;
constexpr int kLargestHalfPoints = 3276;
constexpr int kDeepestListLevel = 8;

std::optional<int> NumberOf(std::span<const NumberedName> names, std::string_view name) {
    const auto found = std::ranges::find(names, name, &NumberedName::name);
    return found == names.end() ? std::nullopt : std::optional(found->number);
}

bool HasOnly(pugi::xml_node node, std::initializer_list<std::string_view> attributes) {
    return std::ranges::all_of(node.attributes(), [&](pugi::xml_attribute attribute) {
        return std::ranges::find(attributes, attribute.name()) != attributes.end();
    });
}

std::string_view LocalName(pugi::xml_node node) {
    constexpr std::string_view kPrefix = "w:";
    const std::string_view name = node.name();
    return name.starts_with(kPrefix) ? name.substr(kPrefix.size()) : std::string_view();
}

/// The one font of all scripts, or nothing where they differ.
std::string SingleFont(pugi::xml_node fonts) {
    const std::string_view name = xml::Attribute(fonts, "w:ascii");
    if (!HasOnly(fonts, {"w:ascii", "w:hAnsi", "w:eastAsia", "w:cs"})) return {};
    const auto differs = [&](const char* script) {
        const std::string_view other = xml::Attribute(fonts, script);
        return !other.empty() && other != name;
    };
    const bool isSingle = !name.empty() && name == xml::Attribute(fonts, "w:hAnsi");
    return isSingle && !differs("w:eastAsia") && !differs("w:cs") ? std::string(name) : std::string();
}

/// Takes a child of w:rPr into the model; false for one that it has no member for.
bool TakeCharProperty(const ReadPart& part, pugi::xml_node child, CharFormat& format) {
    const std::string_view name = LocalName(child);
    if (name == "rStyle") {
        if (part.context.characterStyles.contains(xml::Val(child))) format.style = xml::Val(child);
    } else if (name == "rFonts") {
        format.font = SingleFont(child);
        return !format.font.empty();
    } else if (name == "b") {
        format.bold = xml::IsOn(child);
    } else if (name == "i") {
        format.italic = xml::IsOn(child);
    } else if (name == "sz") {
        const auto size = xml::ToNumber(xml::Val(child), kHalfPoints);
        if (size) format.halfPoints = std::clamp(*size, 2, kLargestHalfPoints);
    } else if (name == "u") {
        format.underline = HasOnly(child, {"w:val"}) ? NumberOf(kUnderlines, xml::Val(child)) : std::nullopt;
        return format.underline.has_value();
    } else if (name == "vertAlign" && xml::Val(child) != "subscript") {
        format.superscript = xml::Val(child) == "superscript";
    } else {
        return false;
    }
    return true;
}

std::vector<TabStop> ReadTabs(pugi::xml_node tabs) {
    std::vector<TabStop> stops;
    for (const pugi::xml_node tab : tabs.children("w:tab")) {
        std::string_view alignment = xml::Val(tab);
        if (alignment == "start" || alignment == "num") alignment = "left";
        if (alignment == "end") alignment = "right";
        const bool known = std::ranges::find(kTabAlignments, alignment) != std::end(kTabAlignments);
        const auto position = Twips(tab, "w:pos");
        const std::string_view leader = xml::Attribute(tab, "w:leader");
        const bool isLed = std::ranges::find(kTabLeaders, leader) != std::end(kTabLeaders);
        if (!known || !position) continue;
        stops.push_back({*position, std::string(alignment), isLed ? std::string(leader) : std::string()});
    }
    std::ranges::stable_sort(stops, {}, &TabStop::position);
    return stops;
}

std::optional<int> ReadSpace(pugi::xml_node spacing, const char* plain, const char* automatic,
                             const char* lines) {
    constexpr double kTwipsPerHundredthLine = 2.4;
    if (xml::IsOnText(xml::Attribute(spacing, automatic), false)) return kAutomaticSpace;
    if (const auto hundredths = xml::NumberAttribute(spacing, lines); hundredths && *hundredths > 0) {
        return static_cast<int>(*hundredths * kTwipsPerHundredthLine);
    }
    return Twips(spacing, plain);
}

void ReadSpacing(pugi::xml_node spacing, ParaFormat& format) {
    format.spaceBefore = ReadSpace(spacing, "w:before", "w:beforeAutospacing", "w:beforeLines");
    format.spaceAfter = ReadSpace(spacing, "w:after", "w:afterAutospacing", "w:afterLines");
    format.line = Twips(spacing, "w:line");
    const std::string_view rule = xml::Attribute(spacing, "w:lineRule");
    if (rule == "atLeast") format.lineRule = LineRule::AtLeast;
    if (rule == "exact") format.lineRule = LineRule::Exact;
}

void ReadIndents(pugi::xml_node indents, ParaFormat& format) {
    format.leftIndent = Twips(indents, "w:left");
    if (!format.leftIndent) format.leftIndent = Twips(indents, "w:start");
    format.rightIndent = Twips(indents, "w:right");
    if (!format.rightIndent) format.rightIndent = Twips(indents, "w:end");
    format.firstLine = Twips(indents, "w:firstLine");
    if (const auto hanging = Twips(indents, "w:hanging")) format.firstLine = -*hanging;
}

bool TakeNumbering(const ReadPart& part, pugi::xml_node numbering, ParaFormat& format) {
    const pugi::xml_node number = numbering.child("w:numId");
    if (!number) return false;
    format.numId = part.context.ListNumber(xml::NumberAttribute(number, "w:val").value_or(0));
    const int level = xml::NumberAttribute(numbering.child("w:ilvl"), "w:val").value_or(0);
    format.listLevel = std::clamp(level, 0, kDeepestListLevel);
    return true;
}

bool TakeParaProperty(const ReadPart& part, pugi::xml_node child, ParaFormat& format) {
    const std::string_view name = LocalName(child);
    if (name == "rPr" || name == "sectPr") return true;
    if (name == "pStyle") {
        if (part.context.paragraphStyles.contains(xml::Val(child))) format.style = xml::Val(child);
    } else if (name == "numPr") {
        return TakeNumbering(part, child, format);
    } else if (name == "tabs") {
        format.tabs = ReadTabs(child);
    } else if (name == "spacing") {
        ReadSpacing(child, format);
    } else if (name == "ind") {
        ReadIndents(child, format);
    } else if (name == "jc") {
        format.alignment = NumberOf(kAlignments, xml::Val(child));
        return format.alignment.has_value();
    } else {
        return false;
    }
    return true;
}

}  // namespace

std::optional<int> Twips(pugi::xml_node node, const char* name) {
    return xml::NumberAttribute(node, name);
}

void KeepExtra(const ReadPart& part, pugi::xml_node child, std::span<const std::string_view> order,
               Extra& extra) {
    const std::string_view name = LocalName(child);
    const auto rank = [&](std::string_view wanted) {
        return std::ranges::find(order, wanted) - order.begin();
    };
    const bool known = rank(name) < std::ssize(order);
    const bool dropped = std::ranges::find(kDroppedProperties, name) != std::end(kDroppedProperties);
    const bool repeated = std::ranges::find(extra, name, &Extra::value_type::first) != extra.end();
    if (!known || dropped || repeated) return;
    std::string xml = part.Keep(child);
    if (xml.empty()) return;
    const auto behind =
        std::ranges::find_if(extra, [&](const auto& other) { return rank(other.first) > rank(name); });
    extra.emplace(behind, std::string(name), std::move(xml));
}

CharFormat ReadCharFormat(const ReadPart& part, pugi::xml_node properties) {
    CharFormat format;
    for (const pugi::xml_node child : properties.children()) {
        if (std::ranges::find(kMarksOfReview, std::string_view(child.name())) != std::end(kMarksOfReview))
            continue;
        if (!TakeCharProperty(part, child, format)) KeepExtra(part, child, xml::kRunOrder, format.extra);
    }
    // The size for complex scripts goes with the size.
    if (format.halfPoints)
        std::erase_if(format.extra, [](const auto& extra) { return extra.first == "szCs"; });
    return format;
}

ParaFormat ReadParaFormat(const ReadPart& part, pugi::xml_node properties) {
    ParaFormat format;
    for (const pugi::xml_node child : properties.children()) {
        if (!TakeParaProperty(part, child, format))
            KeepExtra(part, child, xml::kParagraphOrder, format.extra);
    }
    format.markReview = MarkReviewOf(part, properties.child("w:rPr"));
    return format;
}

}  // namespace quillmark::word::docx::read
