#include "word/docx/paste/import_styles.h"

#include <fmt/format.h>

#include <algorithm>

#include "word/docx/xml/property_element.h"
#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::paste {

namespace {

// What the format itself takes for what no style and no default says.
constexpr const char* kBuiltInRun =
    R"(<w:rPr><w:rFonts w:ascii="Times New Roman" w:eastAsia="Times New Roman" w:hAnsi="Times New Roman" )"
    R"(w:cs="Times New Roman"/><w:sz w:val="20"/><w:szCs w:val="20"/></w:rPr>)";
constexpr const char* kBuiltInParagraph =
    R"(<w:pPr><w:spacing w:before="0" w:after="0" w:line="240" w:lineRule="auto"/></w:pPr>)";

/// Elements whose attributes are inherited one by one.
constexpr std::string_view kByAttribute[] = {"w:rFonts", "w:spacing", "w:ind", "w:lang"};

std::size_t Rank(xml::ChildOrder order, std::string_view name) {
    constexpr std::size_t kPrefix = 2;
    const std::string_view local = name.size() > kPrefix ? name.substr(kPrefix) : name;
    return static_cast<std::size_t>(std::ranges::find(order, local) - order.begin());
}

void AddMissingAttributes(pugi::xml_node into, pugi::xml_node from) {
    for (const pugi::xml_attribute attribute : from.attributes()) {
        if (!into.attribute(attribute.name())) into.append_attribute(attribute.name()) = attribute.value();
    }
}

/// Gives properties what they do not set themselves.
void Underlay(pugi::xml_node into, pugi::xml_node from, xml::ChildOrder order) {
    for (const pugi::xml_node child : from.children()) {
        const std::string_view name = child.name();
        if (const pugi::xml_node own = into.child(child.name())) {
            if (std::ranges::find(kByAttribute, name) != std::end(kByAttribute))
                AddMissingAttributes(own, child);
            continue;
        }
        pugi::xml_node behind = into.first_child();
        while (behind && Rank(order, behind.name()) < Rank(order, name)) behind = behind.next_sibling();
        behind ? into.insert_copy_before(child, behind) : into.append_copy(child);
    }
}

void CollectFrom(std::string_view xml, std::set<std::string, std::less<>>& used) {
    for (const std::string_view element :
         {"<w:pStyle w:val=\"", "<w:rStyle w:val=\"", "<w:tblStyle w:val=\""}) {
        for (std::size_t at = xml.find(element); at != std::string_view::npos; at = xml.find(element, at)) {
            at += element.size();
            used.emplace(xml.substr(at, xml.find('"', at) - at));
        }
    }
}

void CollectFrom(const Frames& frames, std::set<std::string, std::less<>>& used) {
    for (const std::string& control : frames.opens) CollectFrom(control, used);
}

template <class Format>
void CollectFrom(const FormatTable<Format>& formats, std::set<std::string, std::less<>>& used) {
    for (std::size_t id = 0; id < formats.size(); ++id) {
        const Format& format = formats[static_cast<FormatId>(id)];
        used.insert(format.style);
        for (const auto& [name, xml] : format.extra) CollectFrom(xml, used);
    }
}

void CollectFrom(const Blocks& blocks, std::set<std::string, std::less<>>& used) {
    for (const Block& block : blocks) {
        if (const auto* raw = std::get_if<RawBlock>(&block)) CollectFrom(raw->xml, used);
        if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
            for (const InlineObject& object : paragraph->objects) {
                if (const auto* raw = std::get_if<RawInline>(&object)) CollectFrom(raw->xml, used);
            }
            for (const Anchor& anchor : paragraph->anchors) CollectFrom(anchor.xml, used);
            CollectFrom(paragraph->frames, used);
        }
        const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
        if (!table) continue;
        if (!(*table)->style.empty()) used.insert((*table)->style);
        CollectFrom((*table)->frames, used);
        for (const TableRow& row : (*table)->rows) {
            CollectFrom(row.frames, used);
            for (const TableCell& cell : row.cells) {
                CollectFrom(cell.frames, used);
                CollectFrom(cell.blocks, used);
            }
        }
    }
}

}  // namespace

std::set<std::string, std::less<>> UsedStyles(const Document& document) {
    std::set<std::string, std::less<>> used;
    CollectFrom(document.charFormats, used);
    CollectFrom(document.paraFormats, used);
    CollectFrom(document.body, used);
    const auto collectStories = [&](const SectionProperties& section) {
        for (const auto* stories : {&section.headers, &section.footers}) {
            for (const auto& story : *stories) {
                if (story) CollectFrom(story->blocks, used);
            }
        }
    };
    for (const Block& block : document.body) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        if (paragraph && paragraph->section) collectStories(*paragraph->section);
    }
    collectStories(document.lastSection);
    for (const auto& [id, relation] : document.relations) {
        const std::string_view kind = relation.contentType;
        if (kind.ends_with("notes+xml") || kind.ends_with("comments+xml")) CollectFrom(relation.bytes, used);
    }
    return used;
}

StyleImport::StyleImport(const StyleSheet& sheet, const std::set<std::string, std::less<>>& used,
                         Document& target, bool byName)
    : sheet_(sheet), target_(target) {
    AddWithBases(sheet.DefaultOf("paragraph"));
    AddWithBases(sheet.DefaultOf("table"));
    for (const std::string& id : used) AddWithBases(id);
    if (byName) TakeByName();
    int number = 1;
    Family family = Render(number);
    while (!Fits(family)) family = Render(++number);
    for (const std::string& id : BasesFirst()) {
        StyleDefinition& style = family.at(id);
        newIds_[id] = style.id;
        const bool isThere =
            std::ranges::find(target_.styles, style.id, &StyleDefinition::id) != target_.styles.end();
        if (!isThere) target_.styles.push_back(std::move(style));
    }
}

/// Not every program inherits from a style that comes later.
std::vector<std::string> StyleImport::BasesFirst() const {
    std::vector<std::string> ids(wanted_.begin(), wanted_.end());
    std::ranges::stable_sort(ids, {}, [&](const std::string& id) { return sheet_.Chain(id).size(); });
    return ids;
}

void StyleImport::AddWithBases(std::string_view id) {
    for (const StyleSheet::Style* style : sheet_.Chain(id)) {
        if (style->definition->type != "numbering") wanted_.insert(style->definition->id);
    }
}

void StyleImport::TakeByName() {
    for (auto id = wanted_.begin(); id != wanted_.end();) {
        const StyleDefinition& wanted = *sheet_.Find(*id)->definition;
        const auto same = std::ranges::find_if(target_.styles, [&](const StyleDefinition& style) {
            return style.type == wanted.type && style.name == wanted.name;
        });
        if (same != target_.styles.end()) newIds_[*id] = same->id;
        id = same != target_.styles.end() ? wanted_.erase(id) : std::next(id);
    }
}

StyleImport::Family StyleImport::Render(int number) const {
    Family family;
    for (const std::string& id : wanted_) family.emplace(id, RenderStyle(*sheet_.Find(id), number));
    return family;
}

StyleDefinition StyleImport::RenderStyle(const StyleSheet::Style& style, int number) const {
    const auto newId = [&](std::string_view id) {
        const auto taken = newIds_.find(id);
        return taken != newIds_.end() ? taken->second : fmt::format("{}_p{}", id, number);
    };
    const StyleDefinition& old = *style.definition;
    StyleDefinition renamed{newId(old.id), {}, old.type, {}};
    renamed.name =
        number == 1 ? fmt::format("{} (pasted)", old.name) : fmt::format("{} (pasted {})", old.name, number);
    pugi::xml_document xml;
    pugi::xml_node root = xml.append_copy(style.root());
    root.attribute("w:styleId").set_value(renamed.id.c_str());
    root.remove_attribute("w:default");
    // What goes by name or number, or leads to styles that stay behind.
    for (const char* name : {"w:aliases", "w:next", "w:link", "w:autoRedefine", "w:locked"})
        root.remove_child(name);
    pugi::xml_node name = root.child("w:name");
    if (!name) name = root.prepend_child("w:name");
    name.remove_attributes();
    name.append_attribute("w:val") = renamed.name.c_str();
    if (pugi::xml_node base = root.child("w:basedOn"))
        base.attribute("w:val").set_value(newId(style.basedOn()).c_str());
    root.child("w:pPr").remove_child("w:numPr");
    if (old.type == "paragraph" && !root.child("w:basedOn")) Bake(root);
    renamed.xml = xml::PrintFragment(xml);
    return renamed;
}

/// Writes into a style what its document says for all texts.
void StyleImport::Bake(pugi::xml_node style) const {
    pugi::xml_node paragraph = style.child("w:pPr");
    pugi::xml_node run = style.child("w:rPr");
    if (!paragraph) paragraph = run ? style.insert_child_before("w:pPr", run) : style.append_child("w:pPr");
    if (!run) run = style.insert_child_after("w:rPr", paragraph);
    Underlay(paragraph, sheet_.defaultParagraph(), xml::kParagraphOrder);
    Underlay(run, sheet_.defaultRun(), xml::kRunOrder);
    Underlay(run, xml::ParseFragment(kBuiltInRun)->document_element(), xml::kRunOrder);
    const auto defaults =
        xml::ParseFragment(target_.docDefaults.empty() ? "<w:docDefaults/>" : target_.docDefaults);
    const bool targetHasOwn = defaults->document_element().child("w:pPrDefault").child("w:pPr").first_child();
    if (targetHasOwn)
        Underlay(paragraph, xml::ParseFragment(kBuiltInParagraph)->document_element(), xml::kParagraphOrder);
}

/// Whether no other style of the target has one of the ids or names.
bool StyleImport::Fits(const Family& family) const {
    return std::ranges::all_of(family, [&](const auto& entry) {
        const StyleDefinition& style = entry.second;
        return std::ranges::all_of(target_.styles, [&](const StyleDefinition& other) {
            const bool isSame = other.id == style.id && other.xml == style.xml;
            return isSame || (other.id != style.id && other.name != style.name);
        });
    });
}

const std::string& StyleImport::Map(std::string_view id, std::string_view type) const {
    static const std::string kNone;
    auto found = newIds_.find(id);
    const bool isOfType = found != newIds_.end() && sheet_.Find(id)->definition->type == type;
    if (!isOfType) found = type == "character" ? newIds_.end() : newIds_.find(sheet_.DefaultOf(type));
    return found == newIds_.end() ? kNone : found->second;
}

}  // namespace quillmark::word::docx::paste
