#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "word/docx/model/document.h"
#include "word/docx/read/package.h"
#include "word/docx/xml/xml_tree.h"

namespace quillmark::word::docx::read {

/// What the readers of one document's parts share.
struct ReadContext {
    ReadContext(Package& readPackage, Document& readDocument)
        : package(readPackage), document(readDocument), relations(readPackage, readDocument) {}

    Package& package;
    Document& document;
    RelationReader relations;
    std::string mainPart;
    std::map<int, int> listNumbers;  ///< the file's w:numId to the model's
    std::set<std::string, std::less<>> paragraphStyles, characterStyles, tableStyles;  ///< ids that exist
    /// The layout rules that the file asks for: 15 is the word processor's of 2013 and later.
    int compatibilityMode = 12;
    std::set<int> comments;     ///< the numbers of those that the file has
    bool usesComments = false;  ///< some text refers to one
    bool usesNotes = false;     ///< some text refers to a footnote or an endnote
    bool usesTheme = false;     ///< some drawing names the theme's colours

    /// The model's number for the file's; 0, which is no list, for one that the file does not define.
    int ListNumber(int fileNumber) const {
        const auto found = listNumbers.find(fileNumber);
        return found == listNumbers.end() ? 0 : found->second;
    }
};

/// Puts the model's numbers of lists in for the file's, in the element and below.
void RenumberLists(const ReadContext& context, pugi::xml_node element);

/// One part of the package whose text is being read.
struct ReadPart {
    ReadContext& context;
    const xml::XmlTree& tree;
    std::string name;

    /// An element as XML of the model: its lists and relationships are the document's. Empty when something
    /// that it leads to is missing, since no reader would open it then.
    std::string Keep(pugi::xml_node element) const;
};

}  // namespace quillmark::word::docx::read
