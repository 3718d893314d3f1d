#include "word/docx/read/package.h"

#include <fmt/format.h>

#include <algorithm>

#include "word/docx/xml/names.h"
#include "word/docx/xml/text_codes.h"

namespace quillmark::word::docx::read {

namespace {

constexpr const char* kContentTypesPart = "[Content_Types].xml";
constexpr std::string_view kMainFolder = "word/";
constexpr std::string_view kStrictRelationships = "http://purl.oclc.org/ooxml/officeDocument/relationships/";
/// A chart leads to its style, its colours and a workbook, and these lead no further.
constexpr int kDeepestRelations = 6;
constexpr int kMostRelations = 20'000;
/// A document of five hundred full pages; each takes some 300 bytes by the time that it is text of the model.
/// A part that is read several times, a header of several sections, counts as often.
constexpr std::ptrdiff_t kMostElements = 800'000;

std::string FolderOf(const std::string& part) {
    const std::size_t slash = part.rfind('/');
    return slash == std::string::npos ? std::string() : part.substr(0, slash + 1);
}

/// The name of a part that a target tells relative to the folder of the part that names it.
std::string ResolveTarget(const std::string& folder, std::string_view target) {
    const std::string whole = target.starts_with('/') ? std::string(target) : folder + std::string(target);
    std::vector<std::string_view> steps;
    std::string_view rest = whole;
    while (!rest.empty()) {
        const std::string_view step = rest.substr(0, rest.find('/'));
        rest.remove_prefix(std::min(rest.size(), step.size() + 1));
        if (step == ".." && !steps.empty()) steps.pop_back();
        if (step != ".." && step != "." && !step.empty()) steps.push_back(step);
    }
    return fmt::format("{}", fmt::join(steps, "/"));
}

std::string RelationsPart(const std::string& part) {
    const std::string folder = FolderOf(part);
    return fmt::format("{}_rels/{}.rels", folder, part.substr(folder.size()));
}

/// Where the part goes in a document of ours.
std::string TargetBelowWord(const std::string& part) {
    return part.starts_with(kMainFolder) ? part.substr(kMainFolder.size()) : "../" + part;
}

/// How many tags begin an element, counted without reading the text.
std::ptrdiff_t ElementsIn(std::string_view bytes) {
    const auto tags = std::ranges::count(bytes, '<');
    std::ptrdiff_t ends = 0;
    for (auto at = bytes.find("</"); at != bytes.npos; at = bytes.find("</", at + 2)) ++ends;
    return tags - ends;
}

}  // namespace

Package::Package(zip::ZipReader& zip) : zip_(zip) {
    ReadContentTypes();
}

void Package::ReadContentTypes() {
    const std::unique_ptr<xml::XmlTree> types = Xml(kContentTypesPart);
    for (const pugi::xml_node type : types->root().children()) {
        const std::string_view name = type.name();
        const std::string contentType(xml::Attribute(type, "ContentType"));
        if (name.ends_with("Default")) {
            typeByExtension_.try_emplace(xml::SmallLetters(xml::Attribute(type, "Extension")), contentType);
        }
        if (name.ends_with("Override")) {
            typeByPart_.try_emplace(xml::SmallLetters(ResolveTarget("", xml::Attribute(type, "PartName"))),
                                    contentType);
        }
    }
}

std::string Package::ContentType(const std::string& part) const {
    const std::string name = xml::SmallLetters(part);
    const auto byPart = typeByPart_.find(name);
    if (byPart != typeByPart_.end()) return byPart->second;
    const auto byExtension = typeByExtension_.find(name.substr(name.rfind('.') + 1));
    return byExtension == typeByExtension_.end() ? std::string() : byExtension->second;
}

std::unique_ptr<xml::XmlTree> Package::Xml(const std::string& part) {
    const std::string bytes = Bytes(part);
    elements_ += ElementsIn(bytes);
    if (elements_ > kMostElements) Refuse("holds more than any document");
    try {
        return std::make_unique<xml::XmlTree>(bytes);
    } catch (const xml::XmlDamage& damage) {
        Refuse(fmt::format("has a damaged part {}: it {}", part, damage.what()));
    }
}

const std::vector<PackageLink>& Package::Links(const std::string& part) {
    const auto [place, isNew] = links_.try_emplace(part);
    const std::string relationsPart = RelationsPart(part);
    if (!isNew || !Has(relationsPart)) return place->second;
    const std::unique_ptr<xml::XmlTree> relations = Xml(relationsPart);
    for (const pugi::xml_node node : relations->root().children()) {
        const std::string_view target = xml::Attribute(node, "Target");
        const std::string fullType(xml::Attribute(node, "Type"));
        const std::string type = fullType.substr(fullType.rfind('/') + 1);
        const bool external = xml::Attribute(node, "TargetMode") == "External";
        place->second.push_back({std::string(xml::Attribute(node, "Id")), type,
                                 fullType.starts_with(kStrictRelationships)
                                     ? fmt::format("{}/{}", xml::kOfficeRelationships, type)
                                     : fullType,
                                 external ? std::string(target) : ResolveTarget(FolderOf(part), target),
                                 external});
    }
    return place->second;
}

const PackageLink* Package::FindByType(const std::string& part, std::string_view type) {
    const std::vector<PackageLink>& links = Links(part);
    const auto found = std::ranges::find_if(
        links, [&](const PackageLink& link) { return link.type == type && !link.external; });
    return found == links.end() ? nullptr : &*found;
}

const PackageLink* Package::FindById(const std::string& part, std::string_view id) {
    const std::vector<PackageLink>& links = Links(part);
    const auto found = std::ranges::find(links, id, &PackageLink::id);
    return found == links.end() ? nullptr : &*found;
}

std::optional<Relation> RelationReader::Read(const PackageLink& link) {
    return ReadNested(link, 1);
}

std::optional<Relation> RelationReader::ReadNested(const PackageLink& link, int depth) {
    if (++read_ > kMostRelations) package_.Refuse("has more relationships than any document");
    Relation relation;
    relation.type = link.fullType;
    relation.external = link.external;
    relation.target = link.external ? link.target : TargetBelowWord(link.target);
    if (link.external) return relation;
    if (link.target.empty() || !package_.Has(link.target) || depth > kDeepestRelations) return {};
    relation.contentType = package_.ContentType(link.target);
    relation.bytes = package_.Bytes(link.target);
    for (const PackageLink& next : package_.Links(link.target)) {
        if (auto inner = ReadNested(next, depth + 1)) relation.relations.emplace(next.id, std::move(*inner));
    }
    return relation;
}

std::optional<std::string> RelationReader::Take(const std::string& part, std::string_view id) {
    const PackageLink* link = package_.FindById(part, id);
    if (!link) return {};
    const std::string key = fmt::format("{} {} {}", link->external, link->fullType, link->target);
    const auto known = idByTarget_.find(key);
    if (known != idByTarget_.end()) return known->second;
    std::optional<Relation> relation = Read(*link);
    if (!relation) return {};
    std::string newId = fmt::format("rIdK{}", document_.relations.size() + 1);
    document_.relations.emplace(newId, std::move(*relation));
    idByTarget_.emplace(key, newId);
    return newId;
}

}  // namespace quillmark::word::docx::read
