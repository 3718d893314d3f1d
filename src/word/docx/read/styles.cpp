#include "word/docx/read/styles.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace quillmark::word::docx::read {

namespace {

constexpr std::string_view kPlaceholder = "%ID%";
constexpr int kMostLevels = 9;
/// The word processor itself takes no more than some four thousand styles, and half as many lists.
constexpr std::size_t kMostStyles = 10'000;
constexpr std::size_t kMostLists = 10'000;

/// Where an abstract list stands, by its number in the file.
using AbstractIndices = std::unordered_map<int, int>;

/// Puts a level's children in the schema's order, each once: some programs do not, and Word minds. Picture
/// bullets lead to parts that stay behind.
void MendLevel(pugi::xml_node level) {
    constexpr const char* kOrder[] = {"w:start", "w:numFmt", "w:lvlRestart", "w:pStyle",
                                      "w:isLgl", "w:suff",   "w:lvlText",    "w:legacy",
                                      "w:lvlJc", "w:pPr",    "w:rPr"};
    level.remove_child("w:lvlPicBulletId");
    for (const char* name : kOrder) {
        const pugi::xml_node child = level.child(name);
        if (!child) continue;
        while (const pugi::xml_node again = child.next_sibling(name)) level.remove_child(again);
        level.append_move(child);
    }
}

AbstractIndices ReadAbstractLists(ReadContext& context, const xml::XmlTree& tree) {
    AbstractIndices indices;
    for (pugi::xml_node node : tree.root().children("w:abstractNum")) {
        if (indices.size() > kMostLists) context.package.Refuse("has more lists than any document");
        const auto number = xml::NumberAttribute(node, "w:abstractNumId");
        if (!number || indices.contains(*number)) continue;
        // Lists of one such number are joined by the word processor, and its templates mean nothing here.
        node.remove_child("w:nsid");
        node.remove_child("w:tmpl");
        for (pugi::xml_node level : node.children("w:lvl")) MendLevel(level);
        node.attribute("w:abstractNumId").set_value(std::string(kPlaceholder).c_str());
        indices.emplace(*number, static_cast<int>(context.document.abstractLists.size()));
        context.document.abstractLists.push_back({{}, tree.PlainFragment(node)});
    }
    return indices;
}

/// Whether the overrides only let the first level begin at one again.
bool OnlyRestarts(pugi::xml_node number) {
    const pugi::xml_node override = number.child("w:lvlOverride");
    const pugi::xml_node start = override.child("w:startOverride");
    return override && !override.next_sibling("w:lvlOverride") && xml::Attribute(override, "w:ilvl") == "0" &&
           xml::Val(start) == "1" && !override.child("w:lvl");
}

ListInstance ReadInstance(const xml::XmlTree& tree, pugi::xml_node number, int abstractIndex) {
    ListInstance list{abstractIndex, OnlyRestarts(number), {}};
    std::unordered_set<int> levels;
    for (pugi::xml_node override : number.children("w:lvlOverride")) {
        const int level = xml::NumberAttribute(override, "w:ilvl").value_or(-1);
        if (list.restarts || level < 0 || level >= kMostLevels || !levels.insert(level).second) continue;
        MendLevel(override.child("w:lvl"));
        list.overrides += tree.PlainFragment(override);
    }
    return list;
}

/// Ids of the styles of one file and what each is based on.
using StyleBases = std::unordered_map<std::string, std::string>;

/// Whether the styles above come to an end, as they do in a few steps where they do at all.
bool HasRoot(const StyleBases& bases, const std::string& id) {
    constexpr int kMostSteps = 64;
    auto at = bases.find(id);
    for (int step = 0; step < kMostSteps; ++step) {
        if (at == bases.end() || at->second.empty()) return true;
        at = bases.find(at->second);
    }
    return false;
}

void DropDanglingReferences(pugi::xml_node style, StyleBases& bases) {
    for (const char* name : {"w:basedOn", "w:next", "w:link"}) {
        const pugi::xml_node reference = style.child(name);
        if (reference && !bases.contains(std::string(xml::Val(reference)))) style.remove_child(reference);
    }
    const std::string id(xml::Attribute(style, "w:styleId"));
    if (!style.child("w:basedOn")) bases[id].clear();
    if (HasRoot(bases, id)) return;
    style.remove_child("w:basedOn");
    bases[id].clear();
}

void RenumberList(const ReadContext& context, pugi::xml_node style) {
    pugi::xml_node number = style.child("w:pPr").child("w:numPr").child("w:numId");
    if (number)
        number.attribute("w:val").set_value(
            context.ListNumber(xml::NumberAttribute(number, "w:val").value_or(0)));
}

void NoteStyle(ReadContext& context, const StyleDefinition& style) {
    if (style.type == "paragraph") context.paragraphStyles.insert(style.id);
    if (style.type == "character") context.characterStyles.insert(style.id);
    if (style.type == "table") context.tableStyles.insert(style.id);
}

/// The styles with an id of their own, and what they are based on. Of two of one id the first counts.
std::vector<pugi::xml_node> UsableStyles(const xml::XmlTree& tree, StyleBases& bases) {
    std::vector<pugi::xml_node> styles;
    for (pugi::xml_node node : tree.root().children("w:style")) {
        const std::string id(xml::Attribute(node, "w:styleId"));
        if (id.empty() || !bases.emplace(id, xml::Val(node.child("w:basedOn"))).second) continue;
        if (!node.attribute("w:type")) node.append_attribute("w:type") = "paragraph";
        styles.push_back(node);
    }
    return styles;
}

int ProtectionNumber(pugi::xml_node protection) {
    constexpr std::string_view kKinds[] = {"trackedChanges", "comments", "forms", "readOnly"};
    if (!xml::IsOnText(xml::Attribute(protection, "w:enforcement"), false)) return -1;
    const auto* kind = std::ranges::find(kKinds, xml::Attribute(protection, "w:edit"));
    return kind == std::end(kKinds) ? -1 : static_cast<int>(kind - kKinds);
}

}  // namespace

void ReadNumbering(ReadContext& context, const xml::XmlTree& tree) {
    const AbstractIndices indices = ReadAbstractLists(context, tree);
    for (const pugi::xml_node number : tree.root().children("w:num")) {
        const auto id = xml::NumberAttribute(number, "w:numId");
        const auto abstract =
            indices.find(xml::NumberAttribute(number.child("w:abstractNumId"), "w:val").value_or(-1));
        if (context.listNumbers.size() > kMostLists)
            context.package.Refuse("has more lists than any document");
        if (!id || *id <= 0 || abstract == indices.end() || context.listNumbers.contains(*id)) continue;
        context.document.lists.push_back(ReadInstance(tree, number, abstract->second));
        context.listNumbers.emplace(*id, static_cast<int>(context.document.lists.size()));
    }
}

void ReadStyles(ReadContext& context, const xml::XmlTree& tree) {
    Document& document = context.document;
    document.styles.clear();
    StyleBases bases;
    const std::vector<pugi::xml_node> styles = UsableStyles(tree, bases);
    if (styles.size() > kMostStyles) context.package.Refuse("has more styles than any document");
    for (const pugi::xml_node style : styles) {
        DropDanglingReferences(style, bases);
        RenumberList(context, style);
        document.styles.push_back({std::string(xml::Attribute(style, "w:styleId")),
                                   std::string(xml::Val(style.child("w:name"))),
                                   std::string(xml::Attribute(style, "w:type")), tree.PlainFragment(style)});
        NoteStyle(context, document.styles.back());
    }
    const pugi::xml_node defaults = tree.root().child("w:docDefaults");
    document.docDefaults = defaults ? tree.PlainFragment(defaults) : "<w:docDefaults/>";
}

void UseBuiltInStyles(ReadContext& context) {
    constexpr const char* kNormal =
        R"(<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/></w:style>)";
    context.document.styles = {{"Normal", "Normal", "paragraph", kNormal}};
    context.document.docDefaults = "<w:docDefaults/>";
    NoteStyle(context, context.document.styles.front());
}

void ReadSettings(ReadContext& context, const xml::XmlTree& tree) {
    const pugi::xml_node root = tree.root();
    Document& document = context.document;
    const auto tabStop = xml::NumberAttribute(root.child("w:defaultTabStop"), "w:val");
    if (tabStop && *tabStop >= 0) document.defaultTabStop = *tabStop;
    document.protection = ProtectionNumber(root.child("w:documentProtection"));
    document.evenAndOddHeaders = xml::IsOn(root.child("w:evenAndOddHeaders"));
    for (const pugi::xml_node setting : root.child("w:compat").children("w:compatSetting")) {
        if (xml::Attribute(setting, "w:name") == "compatibilityMode") {
            context.compatibilityMode =
                xml::NumberAttribute(setting, "w:val").value_or(context.compatibilityMode);
        }
    }
}

}  // namespace quillmark::word::docx::read
