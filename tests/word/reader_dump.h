#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "word/docx/model/document.h"

/// Documents as text, for comparing two of them, and documents from bare XML.
namespace quillmark::word::docx::test {

/// Everything that the document's reader sees, by meaning: formats by their members and not by their
/// numbers, bookmarks by name, neighbours of one format as one. Equal texts are equal documents.
std::string Dump(const Document& document);
std::string Dump(const Document& document, const Blocks& blocks);
std::string Describe(const CharFormat& format);
std::string Describe(const ParaFormat& format);

/// The text of the body as a person reads it: a line for each paragraph, cells in brackets.
std::string Text(const Blocks& blocks);

/// What breaks the model's promises; empty when it is whole.
std::string Faults(const Document& document);

/// A package whose main part has this content of w:body. `numbering` and `styles` are the contents of the
/// roots of their parts; `relationships` are complete elements.
struct BareDocx {
    std::string body;
    std::string styles = {};
    std::string numbering = {};
    std::string settings = {};
    std::string relationships = {};
    std::string extraPartName = {};
    std::string extraPart = {};

    std::string Bytes() const;
    std::unique_ptr<Document> Open() const;
};

/// Opens a document of this content of w:body.
std::unique_ptr<Document> OpenBody(std::string_view body);

}  // namespace quillmark::word::docx::test
