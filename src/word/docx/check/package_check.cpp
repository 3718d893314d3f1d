#include "word/docx/check/package_check.h"

#include <fmt/format.h>

#include <map>
#include <memory>
#include <pugixml.hpp>
#include <set>

#include "word/docx/check/content.h"
#include "word/docx/xml/names.h"
#include "word/docx/xml/text_codes.h"
#include "word/docx/zip/zip_reader.h"
#include "word/seam/automation.h"

namespace quillmark::word::docx::check {

namespace {

constexpr const char* kContentTypes = "[Content_Types].xml";

bool IsXml(std::string_view name) {
    return name.ends_with(".xml") || name.ends_with(".rels") || name.ends_with(".vml");
}

bool IsRelations(std::string_view name) {
    return name.ends_with(".rels");
}

/// "word/_rels/document.xml.rels" belongs to "word/document.xml", "_rels/.rels" to the package, "".
std::string SourceOf(std::string_view relations) {
    constexpr std::string_view kFolder = "_rels/", kSuffix = ".rels";
    std::string source(relations.substr(0, relations.size() - kSuffix.size()));
    const std::size_t folder = source.rfind(kFolder);
    if (folder != std::string::npos) source.erase(folder, kFolder.size());
    return source;
}

/// The part that a target means when it stands in this part's relationships.
std::string Resolve(std::string_view source, std::string_view target) {
    constexpr std::string_view kUp = "../";
    if (target.starts_with('/')) return std::string(target.substr(1));
    const auto parentOf = [](std::string_view path) {
        const std::size_t slash = path.rfind('/');
        return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
    };
    std::string_view folder = parentOf(source);
    for (; target.starts_with(kUp); target.remove_prefix(kUp.size())) folder = parentOf(folder);
    return folder.empty() ? std::string(target) : fmt::format("{}/{}", folder, target);
}

class PackageCheck {
 public:
    explicit PackageCheck(zip::ZipReader& zip) : zip_(zip) {}

    std::vector<std::string> Run() {
        ReadParts();
        ReadContentTypes();
        ReadRelations();
        CheckParts();
        CheckOrphans();
        CheckMainPart();
        return std::move(findings_.sentences);
    }

 private:
    void ReadParts() {
        for (const std::string& name : zip_.Names()) {
            if (name.ends_with('/')) continue;
            const auto [part, isNew] = parts_.try_emplace(name);
            if (!isNew) findings_.Add(name, "the part is there twice");
            if (!isNew || !IsXml(name)) continue;
            part->second = std::make_unique<pugi::xml_document>();
            const std::string bytes = zip_.Read(name);
            constexpr unsigned kKeepBlanks = pugi::parse_default | pugi::parse_ws_pcdata;
            const pugi::xml_parse_result result =
                part->second->load_buffer(bytes.data(), bytes.size(), kKeepBlanks);
            if (!result) findings_.Add(name, fmt::format("the XML is broken, {}", result.description()));
        }
        for (const char* needed : {kContentTypes, "_rels/.rels"}) {
            if (!parts_.contains(needed)) findings_.Add(needed, "the part is missing");
        }
    }

    pugi::xml_node RootOf(const std::string& name) const {
        const auto found = parts_.find(name);
        return found == parts_.end() || !found->second ? pugi::xml_node() : found->second->document_element();
    }

    void ReadContentTypes() {
        const pugi::xml_node root = RootOf(kContentTypes);
        for (const pugi::xml_node part : root.children("Override")) {
            const std::string name = Resolve("", part.attribute("PartName").value());
            overrides_[name] = part.attribute("ContentType").value();
            if (!parts_.contains(name))
                findings_.Add(kContentTypes, fmt::format("the part {} is missing", name));
        }
        for (const pugi::xml_node type : root.children("Default")) {
            defaults_[xml::SmallLetters(type.attribute("Extension").value())] =
                type.attribute("ContentType").value();
        }
        for (const auto& [name, xml] : parts_) {
            if (name != kContentTypes && ContentTypeOf(name).empty())
                findings_.Add(name, "the part has no content type");
        }
    }

    std::string ContentTypeOf(const std::string& name) const {
        const auto found = overrides_.find(name);
        if (found != overrides_.end()) return found->second;
        const auto byExtension = defaults_.find(xml::SmallLetters(name.substr(name.rfind('.') + 1)));
        return byExtension == defaults_.end() ? std::string() : byExtension->second;
    }

    void ReadRelations() {
        for (const auto& [name, xml] : parts_) {
            if (!IsRelations(name)) continue;
            const std::string source = SourceOf(name);
            if (!source.empty() && !parts_.contains(source))
                findings_.Add(name, fmt::format("the part {} is missing", source));
            for (const pugi::xml_node link : RootOf(name).children("Relationship"))
                ReadRelation(name, source, link);
        }
    }

    void ReadRelation(const std::string& name, const std::string& source, const pugi::xml_node& link) {
        const std::string id = link.attribute("Id").value();
        if (!relationIds_[source].insert(id).second)
            findings_.Add(name, fmt::format("the relationship {} is there twice", id));
        if (std::string_view(link.attribute("TargetMode").value()) == "External") return;
        const std::string target = Resolve(source, link.attribute("Target").value());
        if (!parts_.contains(target))
            findings_.Add(name,
                          fmt::format("the relationship {} leads to {}, which is not there", id, target));
        targets_[source].push_back(target);
        const std::string_view type = link.attribute("Type").value();
        if (source.empty() && type.ends_with("/officeDocument")) mainPart_ = target;
    }

    void CheckParts() {
        for (const auto& [name, xml] : parts_) {
            const std::string_view root = RootOf(name).name();
            if (root == "w:styles") CheckStyles(findings_, name, RootOf(name));
            if (root == "w:comments") CheckComments(findings_, name, RootOf(name));
            if (root == "w:numbering") CheckLists(findings_, name, RootOf(name));
        }
        for (const auto& [name, xml] : parts_) {
            if (xml && !IsRelations(name)) CheckContent(findings_, name, RootOf(name), relationIds_[name]);
        }
    }

    void Reach(const std::string& source) {
        if (!reached_.insert(source).second) return;
        for (const std::string& target : targets_[source]) Reach(target);
    }

    void CheckOrphans() {
        Reach("");
        for (const auto& [name, xml] : parts_) {
            const bool isOwn = name == kContentTypes || IsRelations(name);
            if (!isOwn && !reached_.contains(name)) findings_.Add(name, "no relationship leads to the part");
        }
    }

    void CheckMainPart() {
        if (mainPart_.empty()) return findings_.Add("_rels/.rels", "no relationship leads to a document");
        const std::string contentType = ContentTypeOf(mainPart_);
        if (contentType != xml::kMainContentType) {
            findings_.Add(mainPart_, fmt::format("the content type is {} and not a document's", contentType));
        }
    }

    zip::ZipReader& zip_;
    PackageFindings findings_;
    std::map<std::string, std::unique_ptr<pugi::xml_document>> parts_;  ///< XML of those that are XML
    std::map<std::string, std::string> overrides_;
    std::map<std::string, std::string> defaults_;
    std::map<std::string, std::set<std::string>> relationIds_;  ///< by the part they belong to
    std::map<std::string, std::vector<std::string>> targets_;   ///< by the part they lead from
    std::set<std::string> reached_;
    std::string mainPart_;
};

}  // namespace

std::vector<std::string> CheckPackage(std::string_view bytes) {
    try {
        zip::ZipReader zip(std::string(bytes), "The package");
        return PackageCheck(zip).Run();
    } catch (const AutomationError& damage) {
        return {damage.what()};
    }
}

}  // namespace quillmark::word::docx::check
