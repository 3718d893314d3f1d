#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "word/docx/model/document.h"
#include "word/docx/write/package_parts.h"
#include "word/docx/write/style_plan.h"
#include "word/docx/xml/xml_writer.h"

/// The contents of the body, of headers and of footers.
namespace quillmark::word::docx::write {

/// The properties of each distinct format in each style, serialized once.
class FormatCache {
 public:
    FormatCache(const Document& document, const StylePlan& plan) : document_(document), plan_(plan) {}

    std::string_view Run(const StyleUse& use, FormatId format);
    std::string_view Paragraph(const StyleUse& use, FormatId format, FormatId markFormat);

 private:
    struct Key {
        StyleUse use;
        FormatId format = 0;
        FormatId markFormat = 0;
        bool operator==(const Key&) const = default;
    };
    struct HashOfKey {
        std::size_t operator()(const Key& key) const;
    };

    const Document& document_;
    const StylePlan& plan_;
    std::vector<std::vector<std::optional<std::string>>> runs_;  ///< by style, those without one first
    std::unordered_map<Key, std::string, HashOfKey> paragraphs_;
};

/// What the parts of one package share while they are written.
struct PackageState {
    explicit PackageState(const Document& written)
        : document(written), plan(written), formats(written, plan), nextBookmark(written.nextBookmarkId) {}

    const Document& document;
    StylePlan plan;
    PackageParts parts;
    FormatCache formats;
    int nextDrawing = 1;
    int nextBookmark;
    std::set<std::string> bookmarkNames;  ///< in small letters
    std::set<int> droppedBookmarks;       ///< ids whose name was taken
    std::set<std::string> usedRelations;  ///< ids of Document::relations that some part names
};

/// Gives the w:sectPr of a section that ends in the story being written.
using SectionElement = std::function<std::string(const SectionProperties&)>;

/// Writes blocks into one part.
class StoryWriter {
 public:
    StoryWriter(PackageState& state, PartRelations& relations, xml::XmlWriter& xml)
        : state_(state), relations_(relations), xml_(xml) {}

    /// All blocks and, where no paragraph is left behind the last table or section, an empty one.
    void Write(const Blocks& blocks, const SectionElement& section = {});
    /// Takes over XML of an opened file: its relationships become the part's, its drawing ids new ones.
    void WriteRaw(std::string_view xml);

 private:
    void UseRelation(const std::string& id, const Relation& relation);
    void WriteParagraph(const Paragraph& paragraph, const SectionElement& section);
    void WriteContent(const Paragraph& paragraph);
    void WriteCharacters(std::string_view text, FormatId format);
    void WriteSpecial(char special, FormatId format);
    void WriteBreak(std::string_view type);
    void WriteAnchor(const Anchor& anchor);
    void OpenAround(const Anchor& anchor);
    void CloseAround(int id);
    void OpenFrames(const Frames& frames, int& depth);
    void CloseFrames(int closes, int& depth);
    void WriteBookmarkStart(int id, std::string_view name);
    void WriteBookmarkEnd(int id);
    /// Whether no bookmark had the name before.
    bool TakeBookmarkName(std::string_view name);

    void WriteObject(const Picture& picture, FormatId format);
    void WriteObject(const FormFieldData& field, FormatId format);
    void WriteObject(const FieldBegin& begin, FormatId format);
    void WriteObject(const FieldInstruction& instruction, FormatId format);
    void WriteObject(const FieldSeparator&, FormatId format) { WriteFieldMark("separate", format); }
    void WriteObject(const FieldEnd&, FormatId format) { WriteFieldMark("end", format); }
    void WriteObject(const RawInline& raw, FormatId) { WriteRaw(raw.xml); }
    void WriteFieldMark(std::string_view type, FormatId format);

    void WriteTable(const Table& table);
    void WriteRow(const Table& table, const TableRow& row);
    void WriteCell(const TableCell& cell, int width);

    void OpenRun(FormatId format);
    void CloseRun();

    PackageState& state_;
    PartRelations& relations_;
    xml::XmlWriter& xml_;
    StyleUse use_;  ///< of the paragraph in hand
    const std::vector<InlineObject>* objects_ = nullptr;
    std::size_t nextObject_ = 0;
    bool inRun_ = false;
    std::vector<std::pair<int, std::string_view>> around_;  ///< the open elements' ids and closing tags
};

}  // namespace quillmark::word::docx::write
