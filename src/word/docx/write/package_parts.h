#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "word/docx/model/document.h"

/// The package around the XML: parts, the relationships between them and their content types.
namespace quillmark::word::docx::write {

/// The relationships that lead out of one part, or out of the package.
class PartRelations {
 public:
    /// `source` is the name of the part they belong to, empty for the package; `foreignIds` are ids that
    /// raw XML may name, which no relationship of our own takes.
    PartRelations(std::string source, const std::map<std::string, Relation>& foreignIds)
        : source_(std::move(source)), foreignIds_(&foreignIds) {}

    /// Leads to a part by its name in the package; gives the relationship's id. The same part under the same
    /// type is reached by one id.
    std::string Add(std::string_view type, std::string_view part);
    /// Leads to a part, or to an address outside, under an id that is given.
    void AddAs(const std::string& id, const std::string& type, std::string_view target, bool external);
    bool Has(const std::string& id) const { return ids_.contains(id); }
    bool empty() const { return links_.empty(); }

    const std::string& source() const { return source_; }
    std::string Xml() const;

 private:
    struct Link {
        std::string id;
        std::string type;
        std::string target;
        bool external = false;
    };
    std::string TargetOf(std::string_view part) const;

    std::string source_;
    const std::map<std::string, Relation>* foreignIds_;
    std::vector<Link> links_;
    std::set<std::string> ids_;
    int nextId_ = 1;
};

/// The parts of a package. Bytes that are passed as a view must outlive it.
class PackageParts {
 public:
    /// Keeps a name for a part that comes later; gives the name, changed when it is taken already.
    std::string Reserve(std::string_view name);
    /// A part under a reserved name, with its relationships when it has any.
    void Put(std::string name, std::string contentType, std::string bytes);
    void Put(std::string name, std::string contentType, std::string bytes, const PartRelations& relations);
    /// A picture; equal pictures share one part. Gives the part's name.
    std::string Picture(std::string_view bytes, std::string_view extension);
    /// The part that a relationship of an opened file leads to, with everything behind it.
    std::string Foreign(const Relation& relation);

    /// The whole package, its parts in the order they were put in, the content types first.
    std::string Zip(const PartRelations& packageRelations) const;

 private:
    struct Part {
        std::string name;
        std::string contentType;
        std::string_view bytes;
    };
    void PutView(std::string name, std::string contentType, std::string_view bytes);
    std::string ContentTypes() const;

    std::vector<Part> parts_;
    std::deque<std::string> owned_;
    std::set<std::string> names_;  ///< in small letters
    std::map<std::string_view, std::string> pictures_;
    std::map<const Relation*, std::string> foreign_;
};

}  // namespace quillmark::word::docx::write
