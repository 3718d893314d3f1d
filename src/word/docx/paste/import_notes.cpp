#include "word/docx/paste/import_notes.h"

#include <algorithm>

#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::paste {

namespace {

/// Lines that set notes apart from the text are notes of a type; a document has them once.
bool IsNote(pugi::xml_node node) {
    const std::string_view type = xml::Attribute(node, "w:type");
    return node.type() == pugi::node_element && (type.empty() || type == "normal");
}

int LargestId(pugi::xml_node notes) {
    int largest = 0;
    for (const pugi::xml_node note : notes.children()) {
        largest = std::max(largest, xml::NumberAttribute(note, "w:id").value_or(0));
    }
    return largest;
}

void RenameReferences(pugi::xml_node element, const std::map<std::string, std::string>& ids) {
    for (pugi::xml_attribute attribute : element.attributes()) {
        const auto renamed =
            std::string_view(attribute.name()).starts_with("r:") ? ids.find(attribute.value()) : ids.end();
        if (renamed != ids.end()) attribute.set_value(renamed->second.c_str());
    }
    for (const pugi::xml_node child : element.children()) RenameReferences(child, ids);
}

}  // namespace

int NoteImport::Offset(const char* kind) {
    const auto known = offsets_.find(kind);
    if (known != offsets_.end()) return known->second;
    return offsets_[kind] = Take(kind);
}

int NoteImport::Take(const char* kind) {
    const std::string from = FindRelation(source_, kind);
    if (from.empty()) return 0;
    const Relation& notes = source_.relations.at(from);
    const std::string into = FindRelation(target_, kind);
    if (!into.empty()) return Merge(notes, target_.relations.at(into));
    Relation copy = notes;
    const auto tree = xml::ParseFragment(copy.bytes);
    translate_(tree->document_element());
    copy.bytes = xml::PrintFragment(*tree);
    target_.relations.emplace(NewRelationId(target_.relations), std::move(copy));
    return 0;
}

int NoteImport::Merge(const Relation& from, Relation& into) const {
    const auto source = xml::ParseFragment(from.bytes);
    const auto target = xml::ParseFragment(into.bytes);
    std::map<std::string, std::string> ids;
    for (const auto& [id, relation] : from.relations) {
        ids[id] = NewRelationId(into.relations);
        into.relations.emplace(ids[id], relation);
    }
    pugi::xml_node root = target->document_element();
    const int offset = LargestId(root) + 1;
    translate_(source->document_element());
    for (pugi::xml_node note : source->document_element().children()) {
        if (!IsNote(note)) continue;
        RenameReferences(note, ids);
        note.attribute("w:id").set_value(xml::NumberAttribute(note, "w:id").value_or(0) + offset);
        root.append_copy(note);
    }
    // Notes may use prefixes that only their own part declares.
    for (const pugi::xml_attribute declared : source->document_element().attributes()) {
        if (!root.attribute(declared.name())) root.append_attribute(declared.name()) = declared.value();
    }
    into.bytes = xml::PrintFragment(*target);
    return offset;
}

}  // namespace quillmark::word::docx::paste
