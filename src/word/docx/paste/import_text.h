#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "word/docx/paste/import_lists.h"
#include "word/docx/paste/import_names.h"
#include "word/docx/paste/import_notes.h"
#include "word/docx/paste/import_relations.h"
#include "word/docx/paste/import_sheet.h"
#include "word/docx/paste/import_styles.h"

/// Putting a copied document's text in terms of the document that it is pasted into.
namespace quillmark::word::docx::paste {

class TextImport {
 public:
    TextImport(const Document& source, Document& target, bool keepsSourceFormatting);

    /// The body, with the sections inside of it.
    Blocks Body();
    SectionProperties Section(const SectionProperties& section);
    /// Brings along what the text refers to without naming it.
    void Finish();

 private:
    /// What a table's style says of the text in it, as far as the document's defaults would hide it once they
    /// stand in the paragraphs' styles.
    struct TableLook {
        std::string style;
        std::optional<int> before, after, line;
        LineRule lineRule = LineRule::Auto;
        std::string font;
        std::optional<int> halfPoints;
    };

    Blocks Convert(const Blocks& blocks, const TableLook* look);
    Paragraph Convert(const Paragraph& paragraph, const TableLook* look);
    InlineObject Convert(const InlineObject& object);
    Frames Convert(const Frames& frames);
    std::unique_ptr<Table> Convert(const Table& table);
    FormatId MapParagraph(FormatId format, const TableLook* look);
    FormatId MapCharacters(FormatId format, FormatId paragraph, const TableLook* look);
    void TranslateFormer(std::vector<std::pair<std::string, std::string>>& extra);
    void TakeNumbering(const std::string& style, ParaFormat& format);
    void TakeTableSpacing(const std::string& style, const TableLook& look, ParaFormat& format) const;
    void TakeTableFont(const std::string& style, const TableLook& look, CharFormat& format) const;
    const TableLook& LookOf(const std::string& style);

    std::string Raw(const std::string& xml);
    void RawExtra(std::vector<std::pair<std::string, std::string>>& extra);
    /// False when something that the element leads to is missing.
    bool Translate(pugi::xml_node element);
    bool TranslateAttributes(pugi::xml_node element);
    void TranslateNotes(pugi::xml_node notes);
    void TranslateParagraph(pugi::xml_node paragraph);

    const Document& source_;
    Document& target_;
    StyleSheet sheet_;
    StyleImport styles_;
    ListImport lists_;
    RelationImport relations_;
    NameImport names_;
    NoteImport notes_;
    bool inNotes_ = false;
    bool usesTheme_ = false;
    std::map<std::string, TableLook> looks_;
    std::map<std::pair<FormatId, const TableLook*>, FormatId> paragraphs_;
    std::map<std::tuple<FormatId, FormatId, const TableLook*>, FormatId> characters_;
};

}  // namespace quillmark::word::docx::paste
