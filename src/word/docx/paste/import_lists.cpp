#include "word/docx/paste/import_lists.h"

#include <algorithm>

#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::paste {

namespace {

constexpr int kDeepestLevel = 8;

/// Levels must not lead back to styles, which come along without their numbering.
void UnlinkLevels(pugi::xml_node parent) {
    for (pugi::xml_node child : parent.children()) {
        if (xml::IsNamed(child, "w:lvlOverride")) UnlinkLevels(child);
        if (!xml::IsNamed(child, "w:lvl")) continue;
        child.remove_child("w:pStyle");
        child.child("w:rPr").remove_child("w:rStyle");
    }
}

std::string UnlinkedDefinition(const std::string& xml) {
    if (xml.empty()) return xml;
    const auto tree = xml::ParseFragment(xml);
    pugi::xml_node root = tree->document_element();
    for (const char* name : {"w:name", "w:styleLink", "w:numStyleLink"}) root.remove_child(name);
    UnlinkLevels(root);
    return xml::PrintFragment(*tree);
}

std::string UnlinkedOverrides(const std::string& xml) {
    if (xml.empty()) return xml;
    const auto tree = xml::ParseFragment("<x>" + xml + "</x>");
    UnlinkLevels(tree->document_element());
    const std::string whole = xml::PrintFragment(*tree);
    constexpr std::size_t kOpen = 3, kClose = 4;
    return whole.substr(kOpen, whole.size() - kOpen - kClose);
}

bool Holds(const std::vector<AbstractList>& lists, int index) {
    return index >= 0 && index < std::ssize(lists);
}

}  // namespace

/// A definition may refer to the numbering style that holds its levels.
int ListImport::ResolveLink(int index) const {
    const std::string& xml = source_.abstractLists[static_cast<std::size_t>(index)].xml;
    if (xml.find("w:numStyleLink") == std::string::npos) return index;
    const auto tree = xml::ParseFragment(xml);
    const auto* style = sheet_.Find(xml::Val(tree->document_element().child("w:numStyleLink")));
    if (!style) return index;
    const auto numId =
        xml::NumberAttribute(style->root().child("w:pPr").child("w:numPr").child("w:numId"), "w:val");
    const bool known = numId && *numId > 0 && *numId <= std::ssize(source_.lists);
    const int linked = known ? source_.lists[static_cast<std::size_t>(*numId - 1)].abstractIndex : index;
    return Holds(source_.abstractLists, linked) ? linked : index;
}

int ListImport::MapAbstract(int index) {
    const int resolved = ResolveLink(index);
    const auto [place, isNew] =
        abstracts_.try_emplace(resolved, static_cast<int>(target_.abstractLists.size()));
    if (isNew) {
        const AbstractList& list = source_.abstractLists[static_cast<std::size_t>(resolved)];
        target_.abstractLists.push_back({list.levels, UnlinkedDefinition(list.xml)});
    }
    return place->second;
}

int ListImport::Map(int numId) {
    if (numId <= 0 || numId > std::ssize(source_.lists)) return 0;
    const auto known = numbers_.find(numId);
    if (known != numbers_.end()) return known->second;
    const ListInstance& list = source_.lists[static_cast<std::size_t>(numId - 1)];
    if (!Holds(source_.abstractLists, list.abstractIndex)) return 0;
    target_.lists.push_back(
        {MapAbstract(list.abstractIndex), list.restarts, UnlinkedOverrides(list.overrides)});
    return numbers_[numId] = static_cast<int>(target_.lists.size());
}

const std::optional<StyleNumbering>& ListImport::OfStyle(const std::string& styleId) {
    const auto [place, isNew] = byStyle_.try_emplace(styleId);
    if (isNew) place->second = Compute(styleId);
    return place->second;
}

std::optional<StyleNumbering> ListImport::Compute(const std::string& styleId) const {
    StyleNumbering numbering;
    std::optional<int> numId;
    std::optional<int> level;
    for (const StyleSheet::Style* style : sheet_.Chain(styleId)) {
        const pugi::xml_node properties = style->root().child("w:pPr");
        const pugi::xml_node indents = properties.child("w:ind");
        const auto left = indents.attribute("w:left") ? xml::NumberAttribute(indents, "w:left")
                                                      : xml::NumberAttribute(indents, "w:start");
        const auto hanging = xml::NumberAttribute(indents, "w:hanging");
        if (!numbering.leftIndent) numbering.leftIndent = left;
        if (!numbering.firstLine)
            numbering.firstLine = hanging ? -*hanging : xml::NumberAttribute(indents, "w:firstLine");
        const pugi::xml_node number = properties.child("w:numPr");
        if (!level) level = xml::NumberAttribute(number.child("w:ilvl"), "w:val");
        numId = xml::NumberAttribute(number.child("w:numId"), "w:val");
        if (numId) break;
    }
    if (!numId || *numId <= 0) return {};
    numbering.numId = *numId;
    numbering.level = std::clamp(level.value_or(0), 0, kDeepestLevel);
    return numbering;
}

}  // namespace quillmark::word::docx::paste
