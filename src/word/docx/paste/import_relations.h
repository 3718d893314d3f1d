#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "word/docx/model/document.h"

/// Bringing the parts along that kept XML leads to: pictures, charts, notes.
namespace quillmark::word::docx::paste {

class RelationImport {
 public:
    RelationImport(const Document& source, Document& target) : source_(source), target_(target) {}

    /// The target's id for one of the copied document's; unset for an unknown one. A part that the target has
    /// already is shared.
    std::optional<std::string> Map(std::string_view id);
    /// Brings the part of this type along when the target has none.
    void TakeSole(std::string_view type);

 private:
    const Document& source_;
    Document& target_;
    std::map<std::string, std::string, std::less<>> ids_;
};

/// The id of the relation of a type given by its last word ("theme", "footnotes"); empty without one.
std::string FindRelation(const Document& document, std::string_view type);
/// An id that the relations do not have.
std::string NewRelationId(const std::map<std::string, Relation>& relations);

}  // namespace quillmark::word::docx::paste
