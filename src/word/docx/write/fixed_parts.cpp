#include "word/docx/write/fixed_parts.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "word/docx/xml/names.h"
#include "word/docx/xml/xml_writer.h"
#include "word/seam/automation.h"

namespace quillmark::word::docx::write {

namespace {

void OpenRoot(xml::XmlWriter& xml, std::string_view tag) {
    xml.Declaration();
    xml.Open(tag);
    xml.Attribute(xml::kNamespaces[0].declaration, xml::kNamespaces[0].uri);
}

/// Styles and list definitions of opened files may carry extensions, so these roots declare all prefixes.
void OpenRootWithExtensions(xml::XmlWriter& xml, std::string_view tag) {
    xml.Declaration();
    xml.Open(tag);
    for (const xml::NamespaceName& space : xml::kNamespaces) xml.Attribute(space.declaration, space.uri);
    xml.Attribute("mc:Ignorable", xml::kIgnorable);
}

constexpr std::string_view kLanguage = "en-US";

// ---- Settings ------------------------------------------------------------------------------------------

void WriteZoom(xml::XmlWriter& xml, const Document& document) {
    xml.Open("w:zoom");
    if (document.zoomToPageWidth) xml.Attribute("w:val", "bestFit");
    xml.Attribute("w:percent", document.zoomPercent);
    xml.Close();
}

void WriteProtection(xml::XmlWriter& xml) {
    xml.Open("w:documentProtection");
    xml.Attribute("w:edit", "forms");
    xml.Attribute("w:enforcement", 1);
    xml.Close();
}

struct CompatibilitySetting {
    std::string_view name;
    int value;
};

// clang-format off
/// Those of the present layout. Without the mode a newer Word opens the document as one of Word 2007, in its
/// compatibility mode.
constexpr CompatibilitySetting kCompatibility[] = {
    {"compatibilityMode",                          15},
    {"overrideTableStyleFontSizeAndJustification", 1},
    {"enableOpenTypeFeatures",                     1},
    {"doNotFlipMirrorIndents",                     1},
    {"differentiateMultirowTableHeaders",          1},
    {"useWord2013TrackBottomHyphenation",          0},
};
// clang-format on

void WriteCompatibility(xml::XmlWriter& xml) {
    xml.Open("w:compat");
    for (const CompatibilitySetting& setting : kCompatibility) {
        xml.Open("w:compatSetting");
        xml.Attribute("w:name", setting.name);
        xml.Attribute("w:uri", "http://schemas.microsoft.com/office/word");
        xml.Attribute("w:val", setting.value);
        xml.Close();
    }
    xml.Close();
}

// ---- Lists ---------------------------------------------------------------------------------------------

void WriteLevel(xml::XmlWriter& xml, const ListLevelFormat& level, std::size_t index) {
    xml.Open("w:lvl");
    xml.Attribute("w:ilvl", index);
    xml.Empty("w:start", level.start);
    xml.Empty("w:numFmt", level.numberFormat);
    xml.Empty("w:lvlText", level.text);
    xml.Empty("w:lvlJc", "left");
    xml.Open("w:pPr");
    xml.Open("w:ind");
    xml.Attribute("w:left", level.leftIndent);
    xml.Attribute(level.firstLine < 0 ? "w:hanging" : "w:firstLine", std::abs(level.firstLine));
    xml.Close();
    xml.Close();
    if (!level.bulletFont.empty()) {
        xml.Open("w:rPr");
        xml.Open("w:rFonts");
        xml.Attribute("w:ascii", level.bulletFont);
        xml.Attribute("w:hAnsi", level.bulletFont);
        xml.Attribute("w:hint", "default");
        xml.Close();
        xml.Close();
    }
    xml.Close();
}

void WriteAbstractList(xml::XmlWriter& xml, const AbstractList& list, std::size_t id) {
    if (!list.xml.empty()) {
        constexpr std::string_view kPlaceholder = "%ID%";
        std::string own = list.xml;
        const std::size_t place = own.find(kPlaceholder);
        if (place != std::string::npos) own.replace(place, kPlaceholder.size(), std::to_string(id));
        return xml.Raw(own);
    }
    xml.Open("w:abstractNum");
    xml.Attribute("w:abstractNumId", id);
    xml.Empty("w:multiLevelType", list.levels.size() > 1 ? "multilevel" : "singleLevel");
    for (std::size_t level = 0; level < list.levels.size(); ++level)
        WriteLevel(xml, list.levels[level], level);
    xml.Close();
}

int FirstNumber(const AbstractList& list) {
    return list.levels.empty() ? 1 : list.levels.front().start;
}

void WriteList(xml::XmlWriter& xml, const Document& document, std::size_t index) {
    const ListInstance& list = document.lists[index];
    const auto definition = static_cast<std::size_t>(list.abstractIndex);
    xml.Open("w:num");
    xml.Attribute("w:numId", index + 1);
    xml.Empty("w:abstractNumId", list.abstractIndex);
    if (list.restarts && list.overrides.find("w:ilvl=\"0\"") == std::string::npos) {
        xml.Open("w:lvlOverride");
        xml.Attribute("w:ilvl", 0);
        const bool known = definition < document.abstractLists.size();
        xml.Empty("w:startOverride", known ? FirstNumber(document.abstractLists[definition]) : 1);
        xml.Close();
    }
    xml.Raw(list.overrides);
    xml.Close();
}

// ---- Properties ----------------------------------------------------------------------------------------

void WriteTime(xml::XmlWriter& xml, std::string_view tag, std::chrono::sys_seconds time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date = day;
    const std::chrono::hh_mm_ss clock(time - day);
    xml.Open(tag);
    xml.Attribute("xsi:type", "dcterms:W3CDTF");
    xml.Text(fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", static_cast<int>(date.year()),
                         static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                         clock.hours().count(), clock.minutes().count(), clock.seconds().count()));
    xml.Close();
}

// ---- Fonts ---------------------------------------------------------------------------------------------

struct FontLook {
    std::string_view name;
    std::string_view family;
    std::string_view pitch;
    std::string_view characterSet;
};

// clang-format off
constexpr FontLook kFontLooks[] = {
    {"Arial",           "swiss",  "variable", "00"},
    {"Courier",         "modern", "fixed",    "00"},
    {"Courier New",     "modern", "fixed",    "00"},
    {"Lucida Console",  "modern", "fixed",    "00"},
    {"Symbol",          "roman",  "variable", "02"},
    {"Tahoma",          "swiss",  "variable", "00"},
    {"Times New Roman", "roman",  "variable", "00"},
    {"Wingdings",       "auto",   "variable", "02"},
};
// clang-format on

std::set<std::string> FontNames(const Document& document) {
    std::set<std::string> names = {"Times New Roman"};
    for (std::size_t id = 0; id < document.charFormats.size(); ++id) {
        names.insert(document.charFormats[static_cast<FormatId>(id)].font);
    }
    for (const AbstractList& list : document.abstractLists) {
        for (const ListLevelFormat& level : list.levels) names.insert(level.bulletFont);
    }
    names.erase("");
    return names;
}

void WriteFont(xml::XmlWriter& xml, const std::string& name) {
    constexpr FontLook kUnknown = {{}, "auto", "default", "00"};
    const auto* found = std::ranges::find(kFontLooks, name, &FontLook::name);
    const FontLook& look = found == std::end(kFontLooks) ? kUnknown : *found;
    xml.Open("w:font");
    xml.Attribute("w:name", name);
    xml.Empty("w:charset", look.characterSet);
    xml.Empty("w:family", look.family);
    xml.Empty("w:pitch", look.pitch);
    xml.Close();
}

}  // namespace

std::string StylesPart(const Document& document, const std::vector<StyleDefinition>& styles) {
    xml::XmlWriter xml;
    OpenRootWithExtensions(xml, "w:styles");
    xml.Raw(document.docDefaults);
    for (const StyleDefinition& style : styles) xml.Raw(style.xml);
    xml.Close();
    return xml.Take();
}

std::string SettingsPart(const Document& document) {
    xml::XmlWriter xml;
    OpenRoot(xml, "w:settings");
    WriteZoom(xml, document);
    if (document.protection == AllowOnlyFormFields) WriteProtection(xml);
    xml.Empty("w:defaultTabStop", document.defaultTabStop);
    if (document.evenAndOddHeaders) xml.Empty("w:evenAndOddHeaders");
    xml.Empty("w:characterSpacingControl", "doNotCompress");
    WriteCompatibility(xml);
    xml.Open("w:themeFontLang");
    xml.Attribute("w:val", kLanguage);
    xml.Close();
    xml.Empty("w:decimalSymbol", ".");
    xml.Empty("w:listSeparator", ",");
    xml.Close();
    return xml.Take();
}

std::string NumberingPart(const Document& document) {
    xml::XmlWriter xml;
    OpenRootWithExtensions(xml, "w:numbering");
    for (std::size_t id = 0; id < document.abstractLists.size(); ++id) {
        WriteAbstractList(xml, document.abstractLists[id], id);
    }
    for (std::size_t index = 0; index < document.lists.size(); ++index) WriteList(xml, document, index);
    xml.Close();
    return xml.Take();
}

std::string FontsPart(const Document& document) {
    xml::XmlWriter xml;
    OpenRoot(xml, "w:fonts");
    for (const std::string& name : FontNames(document)) WriteFont(xml, name);
    xml.Close();
    return xml.Take();
}

std::string CorePropertiesPart(const DocumentProperties& properties) {
    xml::XmlWriter xml;
    xml.Declaration();
    xml.Open("cp:coreProperties");
    xml.Attribute("xmlns:cp", "http://schemas.openxmlformats.org/package/2006/metadata/core-properties");
    xml.Attribute("xmlns:dc", "http://purl.org/dc/elements/1.1/");
    xml.Attribute("xmlns:dcterms", "http://purl.org/dc/terms/");
    xml.Attribute("xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance");
    xml.Element("dc:title", properties.title);
    if (!properties.author.empty()) xml.Element("dc:creator", properties.author);
    if (!properties.author.empty()) xml.Element("cp:lastModifiedBy", properties.author);
    if (properties.created != std::chrono::sys_seconds{}) {
        WriteTime(xml, "dcterms:created", properties.created);
        WriteTime(xml, "dcterms:modified", properties.created);
    }
    xml.Element("dc:language", kLanguage);
    xml.Close();
    return xml.Take();
}

std::string ApplicationPropertiesPart() {
    xml::XmlWriter xml;
    xml.Declaration();
    xml.Open("Properties");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/officeDocument/2006/extended-properties");
    xml.Element("Application", "Quillmark");
    xml.Close();
    return xml.Take();
}

}  // namespace quillmark::word::docx::write
