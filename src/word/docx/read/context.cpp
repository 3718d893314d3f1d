#include "word/docx/read/context.h"

#include "word/docx/read/review.h"

namespace quillmark::word::docx::read {

namespace {

constexpr std::string_view kRelationPrefix = "r:";

/// Comments stand beside the main text alone, and none that is missing can be told.
bool IsLooseComment(const ReadPart& part, pugi::xml_node element) {
    if (!IsCommentMark(element.name())) return false;
    const int number = xml::NumberAttribute(element, "w:id").value_or(-1);
    return part.name != part.context.mainPart || !part.context.comments.contains(number);
}

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
    part.context.usesComments = part.context.usesComments || IsCommentMark(element.name());
    for (pugi::xml_node child = element.first_child(); child;) {
        const pugi::xml_node next = child.next_sibling();
        if (IsLooseComment(part, child)) {
            element.remove_child(child);
        } else if (child.type() == pugi::node_element && !RenameReferences(part, child)) {
            return false;
        }
        child = next;
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
    if (IsLooseComment(*this, element)) return {};
    RenumberLists(context, element);
    return RenameReferences(*this, element) ? tree.Fragment(element) : std::string();
}

}  // namespace quillmark::word::docx::read
