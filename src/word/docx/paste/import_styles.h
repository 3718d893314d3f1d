#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "word/docx/paste/import_sheet.h"

/// Bringing styles along with pasted text.
namespace quillmark::word::docx::paste {

/// The ids of all styles that the document's texts name, in kept XML too.
std::set<std::string, std::less<>> UsedStyles(const Document& document);

class StyleImport {
 public:
    /// Puts those of the copied document's styles that its texts use into the target, under ids and names of
    /// their own, with the formats of the whole document written into those that are based on none. Styles
    /// that an earlier paste brought and that are the same are used again. With `byName`, styles that the
    /// target has under the same name are taken instead.
    ///
    /// Numbering is left out of the styles: a list begins anew with each paste, so the paragraphs name it.
    StyleImport(const StyleSheet& sheet, const std::set<std::string, std::less<>>& used, Document& target,
                bool byName);

    /// The target's id for a style; the default style's of the type for an empty or unknown one.
    const std::string& Map(std::string_view id, std::string_view type) const;

 private:
    using Family = std::map<std::string, StyleDefinition, std::less<>>;

    void AddWithBases(std::string_view id);
    void TakeByName();
    std::vector<std::string> BasesFirst() const;
    Family Render(int number) const;
    StyleDefinition RenderStyle(const StyleSheet::Style& style, int number) const;
    void Bake(pugi::xml_node style) const;
    bool Fits(const Family& family) const;

    const StyleSheet& sheet_;
    Document& target_;
    std::set<std::string, std::less<>> wanted_;
    std::map<std::string, std::string, std::less<>> newIds_;
};

}  // namespace quillmark::word::docx::paste
