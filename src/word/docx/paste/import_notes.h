#pragma once

#include <functional>
#include <map>
#include <pugixml.hpp>

#include "word/docx/paste/import_relations.h"

/// Bringing footnotes, endnotes and comments along, of which all of a kind stand in one part of a document.
namespace quillmark::word::docx::paste {

class NoteImport {
 public:
    /// Puts an element of the copied document's XML in terms of the target.
    using Translate = std::function<void(pugi::xml_node)>;

    NoteImport(const Document& source, Document& target, Translate translate)
        : source_(source), target_(target), translate_(std::move(translate)) {}

    /// What is to be added to the number of a note of the copied document ("footnotes", "endnotes" or
    /// "comments").
    int Offset(const char* kind);

 private:
    int Take(const char* kind);
    int Merge(const Relation& from, Relation& into) const;

    const Document& source_;
    Document& target_;
    Translate translate_;
    std::map<std::string, int, std::less<>> offsets_;
};

}  // namespace quillmark::word::docx::paste
