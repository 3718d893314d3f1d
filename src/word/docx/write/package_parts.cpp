#include "word/docx/write/package_parts.h"

#include <fmt/format.h>

#include <algorithm>

#include "word/docx/xml/names.h"
#include "word/docx/xml/text_codes.h"
#include "word/docx/xml/xml_writer.h"
#include "word/docx/zip/zip_writer.h"

namespace quillmark::word::docx::write {

namespace {

struct PictureType {
    std::string_view extension;
    std::string_view contentType;
};

// clang-format off
constexpr PictureType kPictureTypes[] = {
    {"png",  "image/png"},
    {"jpeg", "image/jpeg"},
    {"jpg",  "image/jpeg"},
    {"bmp",  "image/bmp"},
    {"gif",  "image/gif"},
    {"tif",  "image/tiff"},
    {"tiff", "image/tiff"},
    {"emf",  "image/x-emf"},
    {"wmf",  "image/x-wmf"},
};
// clang-format on

std::string_view PictureContentType(std::string_view extension) {
    const auto* found = std::ranges::find(kPictureTypes, extension, &PictureType::extension);
    return found == std::end(kPictureTypes) ? "application/octet-stream" : found->contentType;
}

std::string_view FolderOf(std::string_view name) {
    const std::size_t slash = name.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : name.substr(0, slash + 1);
}

std::string_view ExtensionOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

/// Where a part's relationships are kept.
std::string RelationsName(std::string_view source) {
    const std::string_view folder = FolderOf(source);
    return fmt::format("{}_rels/{}.rels", folder, source.substr(folder.size()));
}

/// The name in the package of a target below word/, which may climb out of it.
std::string NameBelowWord(std::string_view target) {
    constexpr std::string_view kUp = "../";
    if (target.starts_with('/')) return std::string(target.substr(1));
    if (!target.starts_with(kUp)) return fmt::format("word/{}", target);
    while (target.starts_with(kUp)) target.remove_prefix(kUp.size());
    return std::string(target);
}

constexpr std::string_view kRelationshipsSpace =
    "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr std::string_view kTypesSpace = "http://schemas.openxmlformats.org/package/2006/content-types";
constexpr std::string_view kRelationshipsType = "application/vnd.openxmlformats-package.relationships+xml";
constexpr std::string_view kXmlType = "application/xml";

void WriteDefault(xml::XmlWriter& xml, std::string_view extension, std::string_view contentType) {
    xml.Open("Default");
    xml.Attribute("Extension", extension);
    xml.Attribute("ContentType", contentType);
    xml.Close();
}

}  // namespace

std::string PartRelations::TargetOf(std::string_view part) const {
    const std::string_view folder = FolderOf(source_);
    if (part.starts_with(folder)) return std::string(part.substr(folder.size()));
    return fmt::format("/{}", part);
}

std::string PartRelations::Add(std::string_view type, std::string_view part) {
    const std::string fullType = type.find(':') == std::string_view::npos
                                     ? fmt::format("{}/{}", xml::kOfficeRelationships, type)
                                     : std::string(type);
    const std::string target = TargetOf(part);
    for (const Link& link : links_) {
        if (link.type == fullType && link.target == target) return link.id;
    }
    std::string id;
    do {
        id = fmt::format("rId{}", nextId_++);
    } while (foreignIds_->contains(id));
    ids_.insert(id);
    links_.push_back({id, fullType, target, false});
    return id;
}

void PartRelations::AddAs(const std::string& id, const std::string& type, std::string_view target,
                          bool external) {
    ids_.insert(id);
    links_.push_back({id, type, external ? std::string(target) : TargetOf(target), external});
}

std::string PartRelations::Xml() const {
    xml::XmlWriter xml;
    xml.Declaration();
    xml.Open("Relationships");
    xml.Attribute("xmlns", kRelationshipsSpace);
    for (const Link& link : links_) {
        xml.Open("Relationship");
        xml.Attribute("Id", link.id);
        xml.Attribute("Type", link.type);
        xml.Attribute("Target", link.target);
        if (link.external) xml.Attribute("TargetMode", "External");
        xml.Close();
    }
    xml.Close();
    return xml.Take();
}

std::string PackageParts::Reserve(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    const std::string_view stem = name.substr(0, dot);
    std::string candidate(name);
    for (int n = 2; !names_.insert(xml::SmallLetters(candidate)).second; ++n) {
        candidate = fmt::format("{}_{}{}", stem, n, name.substr(stem.size()));
    }
    return candidate;
}

void PackageParts::PutView(std::string name, std::string contentType, std::string_view bytes) {
    parts_.push_back({std::move(name), std::move(contentType), bytes});
}

void PackageParts::Put(std::string name, std::string contentType, std::string bytes) {
    PutView(std::move(name), std::move(contentType), owned_.emplace_back(std::move(bytes)));
}

void PackageParts::Put(std::string name, std::string contentType, std::string bytes,
                       const PartRelations& relations) {
    Put(std::move(name), std::move(contentType), std::move(bytes));
    if (!relations.empty())
        Put(RelationsName(relations.source()), std::string(kRelationshipsType), relations.Xml());
}

std::string PackageParts::Picture(std::string_view bytes, std::string_view extension) {
    const auto found = pictures_.find(bytes);
    if (found != pictures_.end()) return found->second;
    const std::string name = Reserve(fmt::format("word/media/image{}.{}", pictures_.size() + 1, extension));
    PutView(name, std::string(PictureContentType(extension)), bytes);
    pictures_.emplace(bytes, name);
    return name;
}

std::string PackageParts::Foreign(const Relation& relation) {
    const auto [place, isNew] = foreign_.try_emplace(&relation);
    if (!isNew) return place->second;
    const std::string name = Reserve(NameBelowWord(relation.target));
    place->second = name;
    PartRelations relations(name, relation.relations);
    for (const auto& [id, next] : relation.relations) {
        relations.AddAs(id, next.type, next.external ? next.target : Foreign(next), next.external);
    }
    const std::string contentType = relation.contentType.empty()
                                        ? std::string(PictureContentType(ExtensionOf(name)))
                                        : relation.contentType;
    PutView(name, contentType, relation.bytes);
    if (!relations.empty()) Put(RelationsName(name), std::string(kRelationshipsType), relations.Xml());
    return name;
}

std::string PackageParts::ContentTypes() const {
    xml::XmlWriter xml;
    xml.Declaration();
    xml.Open("Types");
    xml.Attribute("xmlns", kTypesSpace);
    std::map<std::string, std::string_view> defaults = {{"rels", kRelationshipsType}, {"xml", kXmlType}};
    for (const Part& part : parts_) {
        const std::string extension = xml::SmallLetters(ExtensionOf(part.name));
        if (!extension.empty() && part.contentType == PictureContentType(extension))
            defaults.emplace(extension, part.contentType);
    }
    for (const auto& [extension, contentType] : defaults) WriteDefault(xml, extension, contentType);
    for (const Part& part : parts_) {
        const auto found = defaults.find(xml::SmallLetters(ExtensionOf(part.name)));
        if (found != defaults.end() && found->second == part.contentType) continue;
        xml.Open("Override");
        xml.Attribute("PartName", "/" + part.name);
        xml.Attribute("ContentType", part.contentType);
        xml.Close();
    }
    xml.Close();
    return xml.Take();
}

std::string PackageParts::Zip(const PartRelations& packageRelations) const {
    const std::string contentTypes = ContentTypes();
    const std::string relations = packageRelations.Xml();
    std::vector<zip::ZipEntry> entries = {{"[Content_Types].xml", contentTypes}, {"_rels/.rels", relations}};
    for (const Part& part : parts_) entries.push_back({part.name, part.bytes});
    return zip::WriteZip(entries);
}

}  // namespace quillmark::word::docx::write
