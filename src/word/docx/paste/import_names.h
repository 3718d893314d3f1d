#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "word/docx/model/document.h"

/// Names that one document may have only once: bookmarks and form fields.
namespace quillmark::word::docx::paste {

class NameImport {
 public:
    explicit NameImport(Document& target);

    /// The name that a bookmark or a field gets: its own, or with a number when the target has it already.
    std::string Map(const std::string& name, std::size_t longest);
    /// The name for a form field without one of its own or whose name is taken.
    std::string FormFieldName(const FormFieldData& field);
    /// The target's bookmark id for one of the copied document's.
    int MapId(int id);
    /// A field's instruction with the bookmarks' new names in it.
    std::string Instruction(std::string_view text) const;

    /// Notes the names that the copied document's bookmarks are to have, before fields speak of them.
    void Prepare(const Blocks& blocks);

 private:
    bool Take(const std::string& name);

    Document& target_;
    std::set<std::string> taken_;  ///< in small letters
    std::map<std::string, std::string, std::less<>> renamed_;
    std::map<int, int> ids_;
};

}  // namespace quillmark::word::docx::paste
