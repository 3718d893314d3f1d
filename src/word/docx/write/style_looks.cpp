#include "word/docx/write/style_looks.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <tuple>

#include "word/docx/write/closer_lines.h"
#include "word/docx/write/properties.h"
#include "word/docx/xml/xml_writer.h"

namespace quillmark::word::docx::write {

namespace {

/// Of the empty paragraph at a document's end: one point.
constexpr int kEndHalfPoints = 2;

template <class T>
void Fill(T& member, const T& base) {
    if (!member) member = base;
}

template <class T>
void Drop(T& member, const T& look) {
    if (member == look) member.reset();
}

/// The value that most of the formats have by their weights, the lowest of equals.
template <class ValueOf>
auto MostCommon(const PlannedStyle::Weights& weights, const ValueOf& valueOf) {
    std::map<decltype(valueOf(FormatId{})), std::size_t> tally;
    for (const auto& [format, weight] : weights) tally[valueOf(format)] += weight;
    const auto most = std::ranges::max_element(tally, {}, [](const auto& entry) { return entry.second; });
    return most->first;
}

using TabKey = std::tuple<int, std::string, std::string>;

std::vector<TabKey> KeysOf(const std::vector<TabStop>& tabs) {
    std::vector<TabKey> keys;
    for (const TabStop& stop : tabs) keys.emplace_back(stop.position, stop.alignment, stop.leader);
    return keys;
}

void SetLetterLook(const Document& document, const CharFormat& normal, PlannedStyle& style) {
    if (style.letters.empty()) return;
    const auto common = [&](auto member) {
        return MostCommon(style.letters, [&](FormatId format) {
            return Completed(document.charFormats[format], normal).*member;
        });
    };
    CharFormat& look = style.letterLook;
    look.font = common(&CharFormat::font);
    look.halfPoints = common(&CharFormat::halfPoints);
    if (style.kind == StyleKind::Normal) return;
    look.bold = common(&CharFormat::bold);
    look.italic = common(&CharFormat::italic);
    look.underline = common(&CharFormat::underline);
    look.superscript = common(&CharFormat::superscript);
}

void SetParagraphLook(const Document& document, const ParaFormat& normal, PlannedStyle& style) {
    if (style.paragraphs.empty() || style.kind == StyleKind::Normal) return;
    const auto common = [&](const auto& valueOf) {
        return MostCommon(style.paragraphs, [&](FormatId format) {
            return valueOf(Closer(Completed(document.paraFormats[format], normal), style.closer));
        });
    };
    const auto member = [&](std::optional<int> ParaFormat::*which) {
        return common([&](const ParaFormat& format) { return format.*which; });
    };
    ParaFormat& look = style.look;
    look.spaceBefore = member(&ParaFormat::spaceBefore);
    look.spaceAfter = member(&ParaFormat::spaceAfter);
    look.alignment = member(&ParaFormat::alignment);
    std::tie(look.line, look.lineRule) =
        common([](const ParaFormat& format) { return std::pair(format.line, format.lineRule); });
    look.tabs.clear();
    for (auto& [position, alignment, leader] :
         common([](const ParaFormat& format) { return KeysOf(format.tabs); }))
        look.tabs.push_back({position, alignment, leader});
    if (style.kind == StyleKind::ListItem) return;
    look.leftIndent = member(&ParaFormat::leftIndent);
    look.rightIndent = member(&ParaFormat::rightIndent);
    look.firstLine = member(&ParaFormat::firstLine);
}

// ---- Names ---------------------------------------------------------------------------------------------

struct RoleStyle {
    std::string_view id;
    std::string_view name;
    int outlineLevel;  ///< -1 for none
    bool staysTogether;
};

// clang-format off
/// In the order of the roles. The names of the first group are the word processor's own.
constexpr RoleStyle kRoleStyles[kRoles] = {
    {"Normal",           "Normal",            -1, false},
    {"BodyText",         "Body Text",         -1, false},
    {"Heading1",         "heading 1",          0, true},
    {"Heading2",         "heading 2",          1, true},
    {"Recital",          "Recital",           -1, false},
    {"ReturnAddress",    "Return Address",    -1, true},
    {"SignatureBlock",   "Signature Block",   -1, true},
    {"NotaryBlock",      "Notary Block",      -1, true},
    {"LetterText",       "Letter Text",       -1, false},
    {"StatementHeading", "Statement Heading", -1, true},
    {"StatementLine",    "Statement Line",    -1, false},
    {"StatementTotal",   "Statement Total",   -1, false},
};
constexpr RoleStyle kItemStyle = {"ListItem",    "List Item",    -1, false};
constexpr RoleStyle kEndStyle =  {"DocumentEnd", "Document End", -1, false};
// clang-format on

const RoleStyle& RoleStyleOf(const PlannedStyle& style) {
    switch (style.kind) {
        case StyleKind::ListItem:
            return kItemStyle;
        case StyleKind::DocumentEnd:
            return kEndStyle;
        default:
            return kRoleStyles[static_cast<std::size_t>(style.role)];
    }
}

std::string LettersOf(const PlannedStyle& style) {
    const int halfPoints = style.letterLook.halfPoints.value_or(0);
    return fmt::format("{} {}{}", style.letterLook.font, halfPoints / 2, halfPoints % 2 ? ".5" : "");
}

std::size_t UseOf(const PlannedStyle& style) {
    std::size_t use = 0;
    for (const auto& [format, weight] : style.paragraphs) use += weight;
    return use;
}

bool IsTaken(const Document& document, const std::vector<PlannedStyle>& styles, const PlannedStyle& style) {
    const auto same = [&](const auto& other) { return other.id == style.id || other.name == style.name; };
    const auto isOther = [&](const PlannedStyle& other) { return &other != &style && same(other); };
    return std::ranges::any_of(document.styles, same) || std::ranges::any_of(styles, isOther);
}

ParaFormat WithMarks(ParaFormat format, const RoleStyle& role) {
    if (role.staysTogether) {
        format.extra.emplace_back("keepNext", "<w:keepNext/>");
        format.extra.emplace_back("keepLines", "<w:keepLines/>");
    }
    if (role.outlineLevel >= 0)
        format.extra.emplace_back("outlineLvl",
                                  fmt::format(R"(<w:outlineLvl w:val="{}"/>)", role.outlineLevel));
    return format;
}

}  // namespace

bool IsUsed(const PlannedStyle& style) {
    return style.kind == StyleKind::Normal || !style.paragraphs.empty();
}

CharFormat Completed(CharFormat format, const CharFormat& base) {
    if (format.font.empty()) format.font = base.font;
    Fill(format.bold, base.bold);
    Fill(format.italic, base.italic);
    Fill(format.halfPoints, base.halfPoints);
    Fill(format.underline, base.underline);
    Fill(format.superscript, base.superscript);
    return format;
}

ParaFormat CompletedItem(ParaFormat format, const ParaFormat& base) {
    Fill(format.spaceBefore, base.spaceBefore);
    Fill(format.spaceAfter, base.spaceAfter);
    Fill(format.alignment, base.alignment);
    if (format.line) return format;
    format.line = base.line;
    format.lineRule = base.lineRule;
    return format;
}

ParaFormat Completed(ParaFormat format, const ParaFormat& base) {
    Fill(format.leftIndent, base.leftIndent);
    Fill(format.rightIndent, base.rightIndent);
    Fill(format.firstLine, base.firstLine);
    return CompletedItem(std::move(format), base);
}

CharFormat Beyond(CharFormat format, const CharFormat& look) {
    if (format.font == look.font) format.font.clear();
    Drop(format.bold, look.bold);
    Drop(format.italic, look.italic);
    Drop(format.halfPoints, look.halfPoints);
    Drop(format.underline, look.underline);
    Drop(format.superscript, look.superscript);
    return format;
}

ParaFormat Beyond(ParaFormat format, const ParaFormat& look) {
    Drop(format.spaceBefore, look.spaceBefore);
    Drop(format.spaceAfter, look.spaceAfter);
    Drop(format.alignment, look.alignment);
    Drop(format.leftIndent, look.leftIndent);
    Drop(format.rightIndent, look.rightIndent);
    Drop(format.firstLine, look.firstLine);
    if (format.lineRule == look.lineRule) Drop(format.line, look.line);
    const std::vector<TabStop> own = std::exchange(format.tabs, {});
    const auto isIn = [](const std::vector<TabStop>& tabs, const TabStop& stop) {
        return std::ranges::find(tabs, stop) != tabs.end();
    };
    for (const TabStop& stop : own)
        if (!isIn(look.tabs, stop)) format.tabs.push_back(stop);
    for (const TabStop& stop : look.tabs)
        if (!isIn(own, stop)) format.tabs.push_back({stop.position, "clear", ""});
    std::ranges::stable_sort(format.tabs, {}, &TabStop::position);
    return format;
}

void SetLooks(const Document& document, const CharFormat& normalLetters, const ParaFormat& normalLook,
              std::vector<PlannedStyle>& styles) {
    PlannedStyle& normal = styles.front();
    PlannedStyle all = normal;
    for (const PlannedStyle& style : styles)
        for (const auto& [format, weight] : style.letters) all.letters[format] += weight;
    for (PlannedStyle& style : styles) {
        style.letterLook = normalLetters;
        style.look = normalLook;
        if (style.kind == StyleKind::ListItem)
            style.look.leftIndent = style.look.rightIndent = style.look.firstLine = std::nullopt;
        SetLetterLook(document, normalLetters, style);
        SetParagraphLook(document, normalLook, style);
    }
    all.letterLook = normalLetters;
    SetLetterLook(document, normalLetters, all);
    normal.letterLook = all.letterLook;
    for (PlannedStyle& style : styles) {
        if (style.kind != StyleKind::DocumentEnd) continue;
        style.letterLook = normal.letterLook;
        style.letterLook.halfPoints = kEndHalfPoints;
    }
}

void NameStyles(const Document& document, std::vector<PlannedStyle>& styles) {
    styles.front().id = kRoleStyles[0].id;
    styles.front().name = kRoleStyles[0].name;
    // The plain name goes to the kind that is used most.
    std::vector<PlannedStyle*> byUse;
    for (std::size_t i = 1; i < styles.size(); ++i)
        if (IsUsed(styles[i])) byUse.push_back(&styles[i]);
    std::ranges::stable_sort(byUse, std::greater(), [](const PlannedStyle* style) { return UseOf(*style); });
    for (PlannedStyle* const named : byUse) {
        PlannedStyle& style = *named;
        const RoleStyle& role = RoleStyleOf(style);
        style.id = role.id;
        style.name = role.name;
        for (int n = 2; IsTaken(document, styles, style); ++n) {
            style.id = fmt::format("{}-{}", role.id, n);
            style.name = n == 2 ? fmt::format("{} ({})", role.name, LettersOf(style))
                                : fmt::format("{} ({}) {}", role.name, LettersOf(style), n - 1);
        }
    }
}

StyleDefinition DefinitionOf(const PlannedStyle& style, const std::vector<PlannedStyle>& styles) {
    const bool isNormal = style.kind == StyleKind::Normal;
    const RoleStyle& role = RoleStyleOf(style);
    xml::XmlWriter xml;
    xml.Open("w:style");
    xml.Attribute("w:type", "paragraph");
    if (isNormal) xml.Attribute("w:default", 1);
    const bool isBuiltIn = style.id == role.id && style.role != Role::None && style.role <= Role::Heading;
    if (!isNormal && !isBuiltIn) xml.Attribute("w:customStyle", 1);
    xml.Attribute("w:styleId", style.id);
    xml.Empty("w:name", style.name);
    if (!isNormal) xml.Empty("w:basedOn", "Normal");
    if (role.outlineLevel >= 0) xml.Empty("w:next", "Normal");
    xml.Empty("w:qFormat");
    ParaFormat look = isNormal ? style.look : Beyond(style.look, styles.front().look);
    if (isNormal) {
        look = {};
        look.spaceAfter = style.look.spaceAfter;
        look.line = style.look.line;
        look.lineRule = style.look.lineRule;
    }
    look.style.clear();
    xml.Raw(ParagraphProperties(WithMarks(std::move(look), role), {}, {}));
    CharFormat letters = Beyond(style.letterLook, styles.front().letterLook);
    if (isNormal) {
        letters.font = style.letterLook.font;
        letters.halfPoints = style.letterLook.halfPoints;
    }
    xml.Raw(RunProperties(letters));
    xml.Close();
    return {style.id, style.name, "paragraph", xml.Take()};
}

}  // namespace quillmark::word::docx::write
