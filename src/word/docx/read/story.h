#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "word/docx/model/rewrite.h"
#include "word/docx/read/context.h"

/// Reading text: the body, a header or a footer.
namespace quillmark::word::docx::read {

class StoryReader {
 public:
    /// Reads a w:sectPr within the text; without one, text does not divide into sections.
    using SectionReader = std::function<SectionProperties(pugi::xml_node)>;

    explicit StoryReader(const ReadPart& part, SectionReader readSection = {})
        : part_(part), readSection_(std::move(readSection)) {}

    /// The blocks of w:body, w:hdr or w:ftr. Fields and bookmarks in them are whole.
    Blocks Read(pugi::xml_node container);

 private:
    // Blocks
    Blocks ReadContainer(pugi::xml_node container);
    void ReadBlocks(pugi::xml_node parent, Blocks& blocks);
    void ReadControl(pugi::xml_node control, Blocks& blocks);
    void Frame(pugi::xml_node control, Frames& first, Frames& last);
    void ReadParagraph(pugi::xml_node node, Blocks& blocks);
    std::unique_ptr<Table> ReadTable(pugi::xml_node node);
    void ReadRows(pugi::xml_node parent, Table& table);
    void ReadCells(pugi::xml_node parent, TableRow& row);

    // Text
    void ReadInlines(pugi::xml_node parent);
    void ReadAround(pugi::xml_node element);
    void ReadAlone(std::string xml, std::vector<Anchor>& anchors, std::size_t offset);
    void ReadRun(pugi::xml_node run);
    void ReadRunChild(pugi::xml_node run, pugi::xml_node child, FormatId format);
    std::string InRun(pugi::xml_node run, pugi::xml_node child) const;
    void ReadFieldMark(pugi::xml_node mark, FormatId format);
    void ReadHyperlink(pugi::xml_node link);
    void WrapInField(const std::string& instruction, pugi::xml_node content);
    void ReadBookmark(pugi::xml_node node, std::vector<Anchor>& anchors, std::size_t offset);
    FormatId FormatOf(pugi::xml_node runProperties);
    FormatId FirstFormat(pugi::xml_node content);

    ReadPart part_;
    SectionReader readSection_;
    GrowingParagraph growing_;
    std::vector<Anchor> pendingAnchors_;  ///< between blocks: they go to the next paragraph
    std::map<int, int> openBookmarks_;    ///< the file's ids to the model's
    std::set<int> closedBookmarks_;
    int tableDepth_ = 0;
};

/// The picture, when the drawing is nothing but one in line with the text; else unset.
std::optional<Picture> ReadPlainPicture(const ReadPart& part, pugi::xml_node drawing);

}  // namespace quillmark::word::docx::read
