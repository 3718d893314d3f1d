#include "word/docx/paste/import_sheet.h"

#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::paste {

std::string_view StyleSheet::Style::basedOn() const {
    return xml::Val(root().child("w:basedOn"));
}

StyleSheet::StyleSheet(const Document& document) {
    for (const StyleDefinition& definition : document.styles) {
        Style style{&definition, xml::ParseFragment(definition.xml)};
        const bool isDefault = xml::IsOnText(xml::Attribute(style.root(), "w:default"), false);
        if (isDefault) defaults_.try_emplace(definition.type, definition.id);
        styles_.try_emplace(definition.id, std::move(style));
    }
    docDefaults_ =
        xml::ParseFragment(document.docDefaults.empty() ? "<w:docDefaults/>" : document.docDefaults);
}

const StyleSheet::Style* StyleSheet::Find(std::string_view id) const {
    const auto found = styles_.find(id);
    return found == styles_.end() ? nullptr : &found->second;
}

const std::string& StyleSheet::DefaultOf(std::string_view type) const {
    static const std::string kNone;
    const auto found = defaults_.find(type);
    return found == defaults_.end() ? kNone : found->second;
}

std::vector<const StyleSheet::Style*> StyleSheet::Chain(std::string_view id) const {
    constexpr std::size_t kLongest = 64;
    std::vector<const Style*> chain;
    for (const Style* style = Find(id); style && chain.size() < kLongest; style = Find(style->basedOn())) {
        chain.push_back(style);
    }
    return chain;
}

pugi::xml_attribute StyleSheet::Inherited(std::string_view id, const char* properties, const char* element,
                                          const char* attribute) const {
    for (const Style* style : Chain(id)) {
        const auto found = style->root().child(properties).child(element).attribute(attribute);
        if (found) return found;
    }
    return {};
}

pugi::xml_node StyleSheet::defaultRun() const {
    return docDefaults_->document_element().child("w:rPrDefault").child("w:rPr");
}

pugi::xml_node StyleSheet::defaultParagraph() const {
    return docDefaults_->document_element().child("w:pPrDefault").child("w:pPr");
}

}  // namespace quillmark::word::docx::paste
