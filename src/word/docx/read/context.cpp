#include "word/docx/read/context.h"

namespace quillmark::word::docx::read {

namespace {

constexpr std::string_view kRelationPrefix = "r:";

/// False when a relationship is missing.
bool RenameReferences(const ReadPart& part, pugi::xml_node element) {
    for (pugi::xml_attribute attribute : element.attributes()) {
        if (!std::string_view(attribute.name()).starts_with(kRelationPrefix)) continue;
        const std::string_view id = attribute.value();
        // An empty id is how drawings say that there is none.
        if (id.empty()) continue;
        const auto newId = part.context.relations.Take(part.name, id);
        if (!newId) return false;
        attribute.set_value(newId->c_str());
    }
    if (xml::IsNamed(element, "w:footnoteReference") || xml::IsNamed(element, "w:endnoteReference")) {
        part.context.usesNotes = true;
    }
    if (xml::IsNamed(element, "a:schemeClr")) part.context.usesTheme = true;
    for (const pugi::xml_node child : element.children()) {
        if (child.type() == pugi::node_element && !RenameReferences(part, child)) return false;
    }
    return true;
}

}  // namespace

void RenumberLists(const ReadContext& context, pugi::xml_node element) {
    if (xml::IsNamed(element, "w:numId")) {
        const int number = xml::NumberAttribute(element, "w:val").value_or(0);
        element.attribute("w:val").set_value(context.ListNumber(number));
    }
    for (const pugi::xml_node child : element.children()) {
        if (child.type() == pugi::node_element) RenumberLists(context, child);
    }
}

std::string ReadPart::Keep(pugi::xml_node element) const {
    RenumberLists(context, element);
    return RenameReferences(*this, element) ? tree.Fragment(element) : std::string();
}

}  // namespace quillmark::word::docx::read
