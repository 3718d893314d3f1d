#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "word/seam/hints.h"

/// The document that the embedded engine edits: the one representation for what is typed, what is opened
/// from a .docx file and what is written to one. What the engine does not understand of an opened file is
/// kept as the XML it came in (`extra`, `RawBlock`, `RawInline`) and written back where the schema wants it.
///
/// Distances are twips (1/20 point), font sizes half-points, as the file format has them.
namespace quillmark::word::docx::inline model {

// ---- Formats -------------------------------------------------------------------------------------------

/// Direct formatting of characters; an unset member leaves the style's. `extra` holds further children of
/// w:rPr as (local element name, complete XML), in the schema's order.
struct CharFormat {
    std::string style = {};  ///< style id of a character style, or empty
    std::string font = {};   ///< one name for all scripts, or empty
    std::optional<bool> bold = {};
    std::optional<bool> italic = {};
    std::optional<int> halfPoints = {};
    std::optional<int> underline = {};  ///< the model's numbers: 0 none, 1 single, 3 double
    std::optional<bool> superscript = {};
    std::vector<std::pair<std::string, std::string>> extra = {};
    bool operator==(const CharFormat&) const = default;
};

struct TabStop {
    int position = 0;
    std::string alignment = "left";  ///< left, center, right, decimal, bar, clear
    std::string leader;              ///< dot, hyphen, underscore, ... or empty
    bool operator==(const TabStop&) const = default;
};

/// How w:line is to be read.
enum class LineRule { Auto, AtLeast, Exact };

/// Direct formatting of a paragraph; an unset member leaves the style's.
struct ParaFormat {
    std::string style = {};          ///< style id, or empty for the default paragraph style
    std::optional<int> numId = {};   ///< the list it is an item of; 0 switches the style's numbering off
    int listLevel = 0;               ///< 0 to 8
    std::vector<TabStop> tabs = {};  ///< by ascending position
    std::optional<int> spaceBefore = {};
    std::optional<int> spaceAfter = {};
    std::optional<int> line = {};  ///< twips, or 240ths of a line with LineRule::Auto
    LineRule lineRule = LineRule::Auto;
    std::optional<int> leftIndent = {};
    std::optional<int> rightIndent = {};
    std::optional<int> firstLine = {};  ///< negative for a hanging indent
    std::optional<int> alignment = {};  ///< the model's numbers: 0 left, 1 centre, 2 right, 3 justified
    std::vector<std::pair<std::string, std::string>> extra = {};  ///< further children of w:pPr
    Role role = Role::None;       ///< changes no look; the writer makes a named style of it
    std::string markReview = {};  ///< w:ins or w:del: the mark was put in or taken out by a tracked change
    bool operator==(const ParaFormat&) const = default;
};

using FormatId = std::uint32_t;

/// The distinct formats of one document. An id stays valid and means the same for the document's life.
template <class Format>
class FormatTable {
 public:
    FormatId Intern(const Format& format);
    const Format& operator[](FormatId id) const { return formats_[id]; }
    std::size_t size() const { return formats_.size(); }

 private:
    std::deque<Format> formats_;
    std::unordered_multimap<std::size_t, FormatId> byHash_;
};

// ---- Text ----------------------------------------------------------------------------------------------

/// Characters of a paragraph's text that stand for something else. Everything else is UTF-8 text.
namespace character {
inline constexpr char kTab = '\t';
inline constexpr char kLineBreak = '\v';
inline constexpr char kPageBreak = '\f';
inline constexpr char kColumnBreak = '\x0e';
inline constexpr char kObject = '\x01';  ///< one per entry of Paragraph::objects, in order
}  // namespace character

struct Picture {
    std::string bytes;
    std::string extension;  ///< "png", "jpeg" or "bmp"; others as an opened file had them
    std::int64_t widthEmu = 0;
    std::int64_t heightEmu = 0;
    std::string description = {};  ///< for those who cannot see it; empty for none
};

/// A complex field's marks. The instruction and the result are ordinary text between them, in the same
/// paragraph or across several.
struct FieldBegin {
    std::string formData;  ///< complete w:ffData, or empty
    bool dirty = false;
};
struct FieldInstruction {
    std::string text;
};
struct FieldSeparator {};
struct FieldEnd {};

/// A form field of ours, kept apart from its XML so that its result can be set.
struct FormFieldData {
    std::string name = {};  ///< also its bookmark's; unique in the document, at most 20 characters
    bool isCheckBox = false;
    bool checked = false;     ///< check boxes
    std::string result = {};  ///< text fields; empty shows five en spaces
};

/// Paragraph-level XML (a complete w:r or m:oMath) taken over from an opened file; relationship ids in it
/// name `Document::relations`.
struct RawInline {
    std::string xml;
};

using InlineObject =
    std::variant<Picture, FormFieldData, FieldBegin, FieldInstruction, FieldSeparator, FieldEnd, RawInline>;

/// What stands between characters and takes no place in the text. Those at one offset keep their order.
struct Anchor {
    enum class Kind {
        Bookmark,  ///< the start or the end of one
        Around,    ///< the start or the end of an element around text: an insertion, a content control
        Alone,     ///< an element of its own: a deletion, a comment's mark
    };
    std::size_t offset = 0;  ///< bytes into Paragraph::text
    bool isStart = true;
    int id = 0;             ///< of a start and its end alike; no other anchor of the document has it
    std::string name = {};  ///< of a bookmark's start
    Kind kind = Kind::Bookmark;
    /// The complete element, without content where it is one around text; empty at an end.
    std::string xml = {};
};

/// Neighbouring characters of one format.
struct Span {
    std::size_t length = 0;  ///< bytes of Paragraph::text
    FormatId format = 0;
};

/// The content controls of an opened file that begin before a block, row or cell, the outermost first (each a
/// complete w:sdt with empty content), and how many end behind it.
struct Frames {
    std::vector<std::string> opens;
    int closes = 0;
    bool empty() const { return opens.empty() && closes == 0; }
};

struct SectionProperties;

/// A paragraph: flat text, cut into spans by format. The spans' lengths add up to the text's; none is empty.
struct Paragraph {
    std::string text;
    std::vector<Span> spans;
    std::vector<InlineObject> objects;
    std::vector<Anchor> anchors;
    FormatId format = 0;      ///< into Document::paraFormats
    FormatId markFormat = 0;  ///< into Document::charFormats: the paragraph mark's own look
    std::unique_ptr<SectionProperties> section;  ///< set where the paragraph ends a section
    Frames frames;
};

// ---- Blocks --------------------------------------------------------------------------------------------

struct Table;
/// Block-level XML of an opened file that the engine does not edit.
struct RawBlock {
    std::string xml;
};

using Block = std::variant<Paragraph, std::unique_ptr<Table>, RawBlock>;
/// Blocks keep their addresses while others come and go; a place in the text is a Place.
using Blocks = std::list<Block>;

enum class Merge { None, Start, Continued };

struct BorderLine {
    int style = 0;  ///< the model's line style: 0 none, 1 single, 7 double
    bool operator==(const BorderLine&) const = default;
};

/// Borders of a table or cell: top, left, bottom, right, inside horizontal, inside vertical.
using Borders = std::array<std::optional<BorderLine>, 6>;

struct TableCell {
    Blocks blocks;  ///< ends with a paragraph, always
    int span = 1;   ///< grid columns it covers
    Merge vertical = Merge::None;
    std::optional<int> fill;  ///< the model's colour number
    std::optional<int> verticalAlignment;
    Borders borders;
    std::vector<std::pair<std::string, std::string>> extra;  ///< further children of w:tcPr
    Frames frames = {};
};

struct TableRow {
    std::vector<TableCell> cells;
    std::optional<int> height;                               ///< twips
    std::string heightRule;                                  ///< "", "atLeast" or "exact"
    std::vector<std::pair<std::string, std::string>> extra;  ///< further children of w:trPr and w:tblPrEx
    Frames frames = {};
};

struct Table {
    std::vector<int> grid;  ///< column widths
    std::vector<TableRow> rows;
    Borders borders;
    std::string style;
    std::vector<std::pair<std::string, std::string>> extra;  ///< further children of w:tblPr
    Frames frames;
};

// ---- Sections ------------------------------------------------------------------------------------------

/// A header or footer of its own; a section without one shows the one before it. An empty story of the first
/// or even pages that no page shows (no `titlePage`, no `evenAndOddHeaders`) need not be written as long as
/// no section before it has text there.
struct Story {
    Blocks blocks;  ///< ends with a paragraph, always
};

/// Which pages a header or footer is for; also the index into SectionProperties.
enum class Pages { Primary = 0, First = 1, Even = 2 };

struct SectionProperties {
    /// Everything but the headers and footers.
    SectionProperties CopyWithoutStories() const;

    int start = 2;  ///< the model's: 0 continuous, 1 new column, 2 new page, 3 even page, 4 odd page
    int pageWidth = 12240;
    int pageHeight = 15840;
    bool landscape = false;
    int topMargin = 1440, rightMargin = 1440, bottomMargin = 1440, leftMargin = 1440;
    int headerDistance = 720, footerDistance = 720, gutter = 0;
    std::optional<int> pageNumberStart;
    int columns = 1;
    int columnSpacing = 720;
    std::vector<std::pair<int, int>> unequalColumns;  ///< width and space of each, when not equal
    bool protectedForForms = true;
    bool titlePage = false;
    std::array<std::unique_ptr<Story>, 3> headers;
    std::array<std::unique_ptr<Story>, 3> footers;
    std::vector<std::pair<std::string, std::string>> extra;  ///< further children of w:sectPr
};

// ---- The rest of the package ---------------------------------------------------------------------------

struct ListLevelFormat {
    int start = 1;
    std::string numberFormat = "decimal";  ///< w:numFmt's value
    std::string text = "%1.";
    int leftIndent = 0;
    int firstLine = 0;
    std::string bulletFont;
};

/// A list definition: ours by its levels, an opened file's by its XML.
struct AbstractList {
    std::vector<ListLevelFormat> levels;
    std::string xml;  ///< complete w:abstractNum with the id as "%ID%", or empty
};

struct ListInstance {
    int abstractIndex = 0;  ///< into Document::abstractLists
    bool restarts = false;  ///< begins at one although the definition was used before
    std::string overrides;  ///< w:lvlOverride elements of an opened file
};

/// A style as the XML it is written in.
struct StyleDefinition {
    std::string id;
    std::string name;
    std::string type;  ///< paragraph, character, table or numbering
    std::string xml;   ///< complete w:style
};

/// What a relationship id in raw XML leads to.
struct Relation {
    std::string type = {};    ///< the xml::relationship's type URI
    std::string target = {};  ///< part name below word/, or the address of an outside one
    bool external = false;
    std::string contentType = {};
    std::string bytes = {};                          ///< of the part
    std::map<std::string, Relation> relations = {};  ///< the part's own
};

class Document {
 public:
    Document();
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    Blocks body;                          ///< ends with a paragraph, always
    SectionProperties lastSection;        ///< of what follows the last paragraph that ends a section
    FormatTable<CharFormat> charFormats;  ///< id 0 is "no direct formatting"
    FormatTable<ParaFormat> paraFormats;
    std::vector<AbstractList> abstractLists;
    std::vector<ListInstance> lists;  ///< numId n is entry n - 1
    std::vector<StyleDefinition> styles;
    std::string docDefaults;                    ///< complete w:docDefaults
    std::map<std::string, Relation> relations;  ///< by the id that raw XML names
    int defaultTabStop = 720;
    int protection = -1;  ///< the model's: -1 none, 2 form fields only
    bool evenAndOddHeaders = false;
    int nextBookmarkId = 1;
    int nextFormField[2] = {1, 1};  ///< next number of "Text" and of "Check"
    int zoomPercent = 100;          ///< how the document is shown when it is opened
    bool zoomToPageWidth = false;
    DocumentProperties properties;  ///< of documents that are made here; empty for opened ones
};

/// A deep copy for another place of the same document. Bookmarks stay with the original, and so do the names
/// of form fields and the section ends.
Blocks CopyBlocks(const Blocks& blocks);

/// A place in the text: a paragraph and a byte offset into its text.
struct Place {
    Blocks* blocks = nullptr;
    Blocks::iterator block;
    std::size_t offset = 0;
};

}  // namespace quillmark::word::docx::inline model
