#include "word/docx/read/theme.h"

#include <algorithm>

#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::read {

namespace {

struct ThemedScript {
    const char* themed;
    const char* plain;
};

// clang-format off
constexpr ThemedScript kScripts[] = {
    {"w:asciiTheme",    "w:ascii"},
    {"w:hAnsiTheme",    "w:hAnsi"},
    {"w:eastAsiaTheme", "w:eastAsia"},
    {"w:cstheme",       "w:cs"},
};
constexpr const char* kColourAttributes[] = {
    "w:themeColor", "w:themeTint", "w:themeShade",
    "w:themeFill",  "w:themeFillTint", "w:themeFillShade",
};
// clang-format on

void DropColours(pugi::xml_node element) {
    const bool isThemed = element.attribute("w:themeColor");
    for (const char* attribute : kColourAttributes) element.remove_attribute(attribute);
    if (isThemed && xml::IsNamed(element, "w:color") && !element.attribute("w:val")) {
        element.append_attribute("w:val") = "auto";
    }
}

}  // namespace

Theme::Theme(pugi::xml_node root) {
    const pugi::xml_node fonts = root.child("a:themeElements").child("a:fontScheme");
    for (const std::string kind : {"major", "minor"}) {
        const pugi::xml_node scheme = fonts.child(("a:" + kind + "Font").c_str());
        const std::string latin(xml::Attribute(scheme.child("a:latin"), "typeface"));
        fontByName_[kind + "Ascii"] = latin;
        fontByName_[kind + "HAnsi"] = latin;
        fontByName_[kind + "EastAsia"] = xml::Attribute(scheme.child("a:ea"), "typeface");
        fontByName_[kind + "Bidi"] = xml::Attribute(scheme.child("a:cs"), "typeface");
    }
}

void Theme::ResolveFonts(pugi::xml_node fonts) const {
    for (const ThemedScript& script : kScripts) {
        const pugi::xml_attribute themed = fonts.attribute(script.themed);
        if (!themed) continue;
        const auto font = fontByName_.find(themed.value());
        fonts.remove_attribute(themed);
        if (font == fontByName_.end() || font->second.empty()) continue;
        pugi::xml_attribute plain = fonts.attribute(script.plain);
        if (!plain) plain = fonts.append_attribute(script.plain);
        plain.set_value(font->second.c_str());
    }
}

void Theme::Resolve(pugi::xml_node element) const {
    if (xml::IsNamed(element, "w:rFonts")) ResolveFonts(element);
    if (element.first_attribute()) DropColours(element);
    for (const pugi::xml_node child : element.children()) {
        if (child.type() == pugi::node_element) Resolve(child);
    }
}

}  // namespace quillmark::word::docx::read
