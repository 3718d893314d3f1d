#include <algorithm>

#include "word/docx/paste/import_text.h"
#include "word/docx/xml/xml_tree.h"

/// Formats of pasted text.
namespace quillmark::word::docx::paste {

FormatId TextImport::MapParagraph(FormatId format, const TableLook* look) {
    const auto [place, isNew] = paragraphs_.try_emplace({format, look}, 0);
    if (!isNew) return place->second;
    ParaFormat mapped = source_.paraFormats[format];
    const std::string style = mapped.style.empty() ? sheet_.DefaultOf("paragraph") : mapped.style;
    TakeNumbering(style, mapped);
    if (look) TakeTableSpacing(style, *look, mapped);
    mapped.style = styles_.Map(mapped.style, "paragraph");
    TranslateFormer(mapped.extra);
    return place->second = target_.paraFormats.Intern(mapped);
}

/// What a tracked change of formatting tells of the look before it names styles and lists too.
void TextImport::TranslateFormer(std::vector<std::pair<std::string, std::string>>& extra) {
    for (auto& [name, xml] : extra)
        if (name == "rPrChange" || name == "pPrChange") xml = Raw(xml);
    std::erase_if(extra, [](const auto& element) { return element.second.empty(); });
}

/// The paragraph names its list itself, since styles come along without one.
void TextImport::TakeNumbering(const std::string& style, ParaFormat& format) {
    if (format.numId) {
        format.numId = lists_.Map(*format.numId);
        return;
    }
    const std::optional<StyleNumbering>& numbering = lists_.OfStyle(style);
    if (!numbering) return;
    std::erase_if(format.extra, [](const auto& extra) { return extra.first == "numPr"; });
    format.numId = lists_.Map(numbering->numId);
    format.listLevel = numbering->level;
    if (!format.leftIndent) format.leftIndent = numbering->leftIndent;
    if (!format.firstLine) format.firstLine = numbering->firstLine;
}

void TextImport::TakeTableSpacing(const std::string& style, const TableLook& look, ParaFormat& format) const {
    const auto isOpen = [&](const char* attribute) {
        return !sheet_.Inherited(style, "w:pPr", "w:spacing", attribute);
    };
    if (look.before && !format.spaceBefore && isOpen("w:before")) format.spaceBefore = look.before;
    if (look.after && !format.spaceAfter && isOpen("w:after")) format.spaceAfter = look.after;
    if (!look.line || format.line || !isOpen("w:line")) return;
    format.line = look.line;
    format.lineRule = look.lineRule;
}

FormatId TextImport::MapCharacters(FormatId format, FormatId paragraph, const TableLook* look) {
    // Only in a table does the paragraph matter.
    const auto [place, isNew] = characters_.try_emplace({format, look ? paragraph : 0, look}, 0);
    if (!isNew) return place->second;
    CharFormat mapped = source_.charFormats[format];
    if (look) {
        const std::string& style = source_.paraFormats[paragraph].style;
        TakeTableFont(style.empty() ? sheet_.DefaultOf("paragraph") : style, *look, mapped);
    }
    mapped.style = mapped.style.empty() ? mapped.style : styles_.Map(mapped.style, "character");
    TranslateFormer(mapped.extra);
    return place->second = target_.charFormats.Intern(mapped);
}

void TextImport::TakeTableFont(const std::string& style, const TableLook& look, CharFormat& format) const {
    const auto isOpen = [&](const char* element, const char* attribute) {
        return !sheet_.Inherited(style, "w:rPr", element, attribute) &&
               !sheet_.Inherited(format.style, "w:rPr", element, attribute);
    };
    const bool hasFonts =
        std::ranges::any_of(format.extra, [](const auto& extra) { return extra.first == "rFonts"; });
    if (!look.font.empty() && format.font.empty() && !hasFonts && isOpen("w:rFonts", "w:ascii")) {
        format.font = look.font;
    }
    if (look.halfPoints && !format.halfPoints && isOpen("w:sz", "w:val")) format.halfPoints = look.halfPoints;
}

const TextImport::TableLook& TextImport::LookOf(const std::string& style) {
    const auto [place, isNew] = looks_.try_emplace(style);
    TableLook& look = place->second;
    if (!isNew) return look;
    look.style = style;
    const auto inherited = [&](const char* properties, const char* element, const char* attribute) {
        return sheet_.Inherited(style, properties, element, attribute);
    };
    const pugi::xml_node spacing = sheet_.defaultParagraph().child("w:spacing");
    const auto spacingOf = [&](const char* attribute) -> std::optional<int> {
        if (!spacing.attribute(attribute)) return {};
        return xml::ToNumber(inherited("w:pPr", "w:spacing", attribute).value());
    };
    look.before = spacingOf("w:before");
    look.after = spacingOf("w:after");
    look.line = spacingOf("w:line");
    const std::string_view rule = inherited("w:pPr", "w:spacing", "w:lineRule").value();
    if (rule == "exact") look.lineRule = LineRule::Exact;
    if (rule == "atLeast") look.lineRule = LineRule::AtLeast;
    look.font = inherited("w:rPr", "w:rFonts", "w:ascii").value();
    constexpr double kHalfPoints = 2.0;
    look.halfPoints = xml::ToNumber(inherited("w:rPr", "w:sz", "w:val").value(), kHalfPoints);
    return look;
}

}  // namespace quillmark::word::docx::paste
