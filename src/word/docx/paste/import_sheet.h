#pragma once

#include <map>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "word/docx/model/document.h"

/// The styles of a document that is pasted, as trees.
namespace quillmark::word::docx::paste {

class StyleSheet {
 public:
    explicit StyleSheet(const Document& document);

    struct Style {
        const StyleDefinition* definition = nullptr;
        std::unique_ptr<pugi::xml_document> xml;

        pugi::xml_node root() const { return xml->document_element(); }
        std::string_view basedOn() const;
    };

    /// Null for an id that the document does not define.
    const Style* Find(std::string_view id) const;
    /// The style of what names none; empty when the document says nothing.
    const std::string& DefaultOf(std::string_view type) const;
    /// A style and those it is based on, the root last.
    std::vector<const Style*> Chain(std::string_view id) const;

    /// The first element at this path ("w:pPr", "w:spacing") up the chain that has the attribute.
    pugi::xml_attribute Inherited(std::string_view id, const char* properties, const char* element,
                                  const char* attribute) const;

    /// Formats that hold for the whole document: w:rPr and w:pPr, or nothing.
    pugi::xml_node defaultRun() const;
    pugi::xml_node defaultParagraph() const;

 private:
    std::map<std::string, Style, std::less<>> styles_;
    std::map<std::string, std::string, std::less<>> defaults_;
    std::unique_ptr<pugi::xml_document> docDefaults_;
};

}  // namespace quillmark::word::docx::paste
