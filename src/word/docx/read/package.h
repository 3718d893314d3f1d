#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "word/docx/model/document.h"
#include "word/docx/xml/xml_tree.h"
#include "word/docx/zip/zip_reader.h"

/// The parts of an opened package, found by the relationships between them.
namespace quillmark::word::docx::read {

struct PackageLink {
    std::string id;
    std::string type;  ///< the last word of the type's address: "header", "image", ...
    std::string fullType;
    std::string target;  ///< the name of the part in the package, or the address of an outside one
    bool external = false;
};

class Package {
 public:
    explicit Package(zip::ZipReader& zip);

    /// The relationships of a part; those of the package itself for an empty name.
    const std::vector<PackageLink>& Links(const std::string& part);
    const PackageLink* FindByType(const std::string& part, std::string_view type);
    const PackageLink* FindById(const std::string& part, std::string_view id);

    bool Has(const std::string& part) const { return zip_.Has(part); }
    std::string Bytes(const std::string& part) { return zip_.Read(part); }
    /// Refuses the file for XML that is damaged, and once all that was read is more than a document holds.
    std::unique_ptr<xml::XmlTree> Xml(const std::string& part);
    std::string ContentType(const std::string& part) const;

    [[noreturn]] void Refuse(std::string_view reason) const { zip_.Refuse(reason); }

 private:
    void ReadContentTypes();

    zip::ZipReader& zip_;
    std::ptrdiff_t elements_ = 0;
    std::map<std::string, std::string> typeByPart_;
    std::map<std::string, std::string> typeByExtension_;
    std::map<std::string, std::vector<PackageLink>> links_;
};

/// Takes the relationships that kept XML names over into the document.
class RelationReader {
 public:
    RelationReader(Package& package, Document& document) : package_(package), document_(document) {}

    /// The id in `Document::relations` of what the part's id leads to; unset when it leads nowhere.
    std::optional<std::string> Take(const std::string& part, std::string_view id);
    /// The relation with its part's bytes and all that these lead to; unset when the part is not there.
    std::optional<Relation> Read(const PackageLink& link);

 private:
    std::optional<Relation> ReadNested(const PackageLink& link, int depth);

    Package& package_;
    Document& document_;
    std::map<std::string, std::string> idByTarget_;
    int read_ = 0;
};

}  // namespace quillmark::word::docx::read
