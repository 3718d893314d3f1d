#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "word/seam/handle.h"

/// The typed face of the word processor: every operation that the system uses, and no other. Names and
/// nesting are those of Word's object model, so `word.Selection.Font.Bold = true` is what a reader of that
/// model expects. Lengths, positions and sizes are points (1/72 inch), elements count from 1, texts are
/// UTF-8, numbers with a meaning are Word's (seam/automation.h has those in use by name). Everything throws
/// AutomationError with Word's error number: for what has no such element, a value out of bounds, a document
/// that was closed, a word processor that is gone.
namespace quillmark::word {

/// Word's function of that name.
inline constexpr double InchesToPoints(double inches) {
    return inches * 72.0;
}

/// How characters look: those of a range, or those that the selection types next.
struct Font : Handle {
    Font(const Handle& owner, const char* member) : Handle(owner, member) {}
    TextProperty Name{*this, "Name"};
    NumberProperty Size{*this, "Size"};  ///< points, in halves
    FlagProperty Bold{*this, "Bold"};
    FlagProperty Italic{*this, "Italic"};
    WholeProperty Underline{*this, "Underline"};  ///< 0 none, 1 single, 3 double
    FlagProperty Superscript{*this, "Superscript"};
};

/// What a whole paragraph has: of a range, or of the paragraph that the selection is in.
struct ParagraphFormat : Handle {
    ParagraphFormat(const Handle& owner, const char* member) : Handle(owner, member) {}
    WholeProperty Alignment{*this, "Alignment"};  ///< 0 left, 1 centre, 2 right, 3 justified
    NumberProperty SpaceAfter{*this, "SpaceAfter"};
};

/// Custom stops, at points from the left margin. Those of the default width go on behind the last.
struct TabStops : Handle {
    TabStops(const Handle& owner, const char* member) : Handle(owner, member) {}
    void Add(double position) const;
    /// Clears the stop at this position, by way of the stop itself.
    void Clear(double position) const;
    void ClearAll() const;
};

/// The paragraphs that the selection touches, set all at once.
struct Paragraphs : Handle {
    Paragraphs(const Handle& owner, const char* member) : Handle(owner, member) {}
    NumberProperty SpaceBefore{*this, "SpaceBefore"};
    NumberProperty SpaceAfter{*this, "SpaceAfter"};
    /// Points from line to line; 0 is single spacing.
    NumberProperty LineSpacing{*this, "LineSpacing"};
    NumberProperty LeftIndent{*this, "LeftIndent"};
    NumberProperty RightIndent{*this, "RightIndent"};
    word::TabStops TabStops{*this, "TabStops"};
    /// One default tab stop further in, and back out.
    void Indent() const;
    void Outdent() const;
};

/// How one level of a list is numbered.
struct ListLevel : Handle {
    explicit ListLevel(ObjectPtr object) : Handle(std::move(object)) {}
    WholeProperty NumberStyle{*this, "NumberStyle"};
    /// The number with what stands around it: "%1." is the first level's number and a full stop.
    TextProperty NumberFormat{*this, "NumberFormat"};
};

/// A numbering of up to nine levels that paragraphs are given.
struct ListTemplate : Handle {
    ListTemplate() = default;
    explicit ListTemplate(ObjectPtr object) : Handle(std::move(object)) {}
    ListTemplate(const ListTemplate& other) : ListTemplate(other.Keep()) {}
    ListTemplate& operator=(const ListTemplate& other) { return Rebind(*this, other); }
    ListLevel ListLevels(int level) const;  ///< 1 to 9
};

/// The numbering or bullets of a range's paragraphs.
struct ListFormat : Handle {
    explicit ListFormat(ObjectPtr object) : Handle(std::move(object)) {}
    ListFormat(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// The paragraphs become items of the list.
    void ApplyListTemplate(const ListTemplate& list) const;
    void ApplyBulletDefault() const;
    void RemoveNumbers() const;
    /// One level of the list down, and up.
    void ListIndent() const;
    void ListOutdent() const;
};

/// Newspaper columns of a section, all of one width.
struct TextColumns : Handle {
    TextColumns(const Handle& owner, const char* member) : Handle(owner, member) {}
    void SetCount(int columns) const;
    NumberProperty Width{*this, "Width"};
    NumberProperty Spacing{*this, "Spacing"};
};

/// Margins, paper and columns of the sections in question: the document's, one section's, or the selection's.
struct PageSetup : Handle {
    PageSetup(const Handle& owner, const char* member) : Handle(owner, member) {}
    NumberProperty LeftMargin{*this, "LeftMargin"};
    NumberProperty RightMargin{*this, "RightMargin"};
    NumberProperty TopMargin{*this, "TopMargin"};
    NumberProperty BottomMargin{*this, "BottomMargin"};
    NumberProperty HeaderDistance{*this, "HeaderDistance"};
    NumberProperty FooterDistance{*this, "FooterDistance"};
    /// 0 goes on upon the same page, 2 begins a new one.
    WholeProperty SectionStart{*this, "SectionStart"};
    WholeProperty PaperSize{*this, "PaperSize"};  ///< 2 letter, 4 legal
    word::TextColumns TextColumns{*this, "TextColumns"};
};

struct Range;

/// A search from a range's beginning; what is found becomes the range.
struct Find : Handle {
    Find(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// Looks for the text; ^b, ^m, ^c and ^^ are Word's codes. Letter case makes no difference.
    bool Execute(std::string_view findText) const;
    bool Execute(std::string_view findText, FindWrap wrap) const;
    /// Replaces every occurrence; tells whether there was one.
    bool ReplaceAll(std::string_view findText, std::string_view replaceWith) const;
};

/// Fields that the word processor works out, such as the page number.
struct Fields : Handle {
    Fields(const Handle& owner, const char* member) : Handle(owner, member) {}
    void Add(const Range& range, FieldType type) const;
};

/// A stretch of one story of the document, between two places that move along with the text.
struct Range : Handle {
    Range() : Range(ObjectPtr{}) {}
    explicit Range(ObjectPtr object) : Handle(std::move(object)) {}
    Range(const Range& other) : Range(other.Keep()) {}
    Range& operator=(const Range& other) { return Rebind(*this, other); }
    Range(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// Paragraphs end with a return (13), cells with returns and 7. Setting it replaces the stretch.
    TextProperty Text{*this, "Text"};
    WholeProperty StoryType{*this, "StoryType"};
    WholeProperty StoryLength{*this, "StoryLength"};  ///< characters of the whole story, its last return too
    word::Font Font{*this, "Font"};
    word::ParagraphFormat ParagraphFormat{*this, "ParagraphFormat"};
    word::ListFormat ListFormat{*this, "ListFormat"};
    word::Fields Fields{*this, "Fields"};
    word::Find Find{*this, "Find"};
    /// By a story: the range is then the empty place at its end.
    void MoveStart(Unit unit) const;
    /// The text takes the looks of the character before it, and the range grows over it.
    void InsertAfter(std::string_view text) const;
    void InsertBreak(Break kind) const;
};

/// A check box to be filled in by hand.
struct CheckBox : Handle {
    CheckBox(const Handle& owner, const char* member) : Handle(owner, member) {}
    FlagProperty Value{*this, "Value"};
};

/// A place to be filled in by hand: a text field with its `Result`, or a check box.
struct FormField : Handle {
    explicit FormField(ObjectPtr object) : Handle(std::move(object)) {}
    FormField(const FormField& other) : FormField(other.Keep()) {}
    FormField& operator=(const FormField& other) { return Rebind(*this, other); }
    TextProperty Result{*this, "Result"};
    word::CheckBox CheckBox{*this, "CheckBox"};
};

struct FormFields : Handle {
    FormFields(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// At the range's place; the field has no result yet.
    FormField Add(const Range& range, FieldType type) const;
    FormField operator()(int index) const;
    int Count() const;
};

/// Lines around and within a table, row or cell: 0 none, 1 single, 7 double.
struct Borders : Handle {
    Borders(const Handle& owner, const char* member) : Handle(owner, member) {}
    WholeProperty LineStyle{*this, "LineStyle"};
    WholeProperty OutsideLineStyle{*this, "OutsideLineStyle"};
    WholeProperty InsideLineStyle{*this, "InsideLineStyle"};
};

/// The ground behind a row's text.
struct Shading : Handle {
    Shading(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// The fill as Word's colour number: red + 256 * green + 65536 * blue.
    WholeProperty BackgroundPatternColor{*this, "BackgroundPatternColor"};
};

/// A cell of a table, with its text.
struct Cell : Handle {
    explicit Cell(ObjectPtr object) : Handle(std::move(object)) {}
    Cell(const Cell& other) : Cell(other.Keep()) {}
    Cell& operator=(const Cell& other) { return Rebind(*this, other); }
    word::Range Range{*this, "Range"};
    WholeProperty VerticalAlignment{*this, "VerticalAlignment"};  ///< 0 top, 1 middle, 3 bottom
    /// Puts the insertion point into the cell (the cell is selected).
    void Select() const;
    /// One cell of all from this one to the other; their texts follow one another.
    void Merge(const Cell& mergeTo) const;
};

/// All cells of one row.
struct Row : Handle {
    explicit Row(ObjectPtr object) : Handle(std::move(object)) {}
    NumberProperty Height{*this, "Height"};  ///< at least so much; text may make it higher
    word::Range Range{*this, "Range"};
    word::Shading Shading{*this, "Shading"};
    word::Borders Borders{*this, "Borders"};
};

/// The cells below each other, in a table without merged ones.
struct Column : Handle {
    explicit Column(ObjectPtr object) : Handle(std::move(object)) {}
    NumberProperty Width{*this, "Width"};
};

/// A table in the text. Its cells are reached by row and column.
struct Table : Handle {
    explicit Table(ObjectPtr object) : Handle(std::move(object)) {}
    Table(const Table& other) : Table(other.Keep()) {}
    Table& operator=(const Table& other) { return Rebind(*this, other); }
    word::Cell Cell(int row, int column) const;
    Row Rows(int row) const;
    Column Columns(int column) const;
    word::Borders Borders{*this, "Borders"};
};

struct Tables : Handle {
    Tables(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// In the place of the range: columns of one width from margin to margin, no lines.
    Table Add(const Range& range, int rows, int columns) const;
};

/// Pictures that stand in the text as one character.
struct InlineShapes : Handle {
    InlineShapes(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// Puts the picture file (PNG, JPEG or BMP) in line with the text, kept in the document: at the insertion
    /// point, or in the place of a range such as an empty table cell's.
    void AddPicture(std::string_view fileName) const;
    void AddPicture(std::string_view fileName, const Range& range) const;
};

/// How the pages of a footer's section are counted.
struct PageNumbers : Handle {
    PageNumbers(const Handle& owner, const char* member) : Handle(owner, member) {}
    FlagProperty RestartNumberingAtSection{*this, "RestartNumberingAtSection"};
    WholeProperty StartingNumber{*this, "StartingNumber"};
};

/// The foot of a section's pages, its own or that of the section before.
struct Footer : Handle {
    explicit Footer(ObjectPtr object) : Handle(std::move(object)) {}
    Footer(const Footer& other) : Footer(other.Keep()) {}
    Footer& operator=(const Footer& other) { return Rebind(*this, other); }
    FlagProperty LinkToPrevious{*this, "LinkToPrevious"};
    word::PageNumbers PageNumbers{*this, "PageNumbers"};
    word::Range Range() const;
};

/// A section's footers: 1 is that of all pages, unless the first or even pages have their own.
struct Footers : Handle {
    Footers(const Handle& owner, const char* member) : Handle(owner, member) {}
    int Count() const;
    Footer operator()(int index) const;
};

/// A part of the document with page settings and footers of its own.
struct Section : Handle {
    explicit Section(ObjectPtr object) : Handle(std::move(object)) {}
    Section(const Section& other) : Section(other.Keep()) {}
    Section& operator=(const Section& other) { return Rebind(*this, other); }
    word::PageSetup PageSetup{*this, "PageSetup"};
    word::Footers Footers{*this, "Footers"};
    FlagProperty ProtectedForForms{*this, "ProtectedForForms"};
};

struct Sections : Handle {
    Sections(const Handle& owner, const char* member) : Handle(owner, member) {}
    int Count() const;
    Section operator()(int index) const;
};

/// The insertion point of the active document, where all typing goes, with the looks it types in.
struct Selection : Handle {
    explicit Selection(ObjectPtr object) : Handle(std::move(object)) {}
    Selection(const Selection& other) : Selection(other.Keep()) {}
    Selection& operator=(const Selection& other) { return Rebind(*this, other); }
    Selection(const Handle& owner, const char* member) : Handle(owner, member) {}
    word::Font Font{*this, "Font"};
    word::ParagraphFormat ParagraphFormat{*this, "ParagraphFormat"};
    word::Paragraphs Paragraphs{*this, "Paragraphs"};
    word::PageSetup PageSetup{*this, "PageSetup"};
    word::InlineShapes InlineShapes{*this, "InlineShapes"};
    word::ListFormat ListFormat() const;
    /// A range of its own at the insertion point; it stays where it is while text is typed behind it.
    word::Range Range() const;
    /// As if typed: 13 ends a paragraph, 11 breaks a line, 9 is a tab. What was selected goes.
    void TypeText(std::string_view text) const;
    /// Takes away the character before the insertion point.
    void TypeBackspace() const;
    void InsertBreak(Break kind) const;
    /// To the first or last of its kind; the selection is then empty.
    void GoTo(GoToItem what, GoToDirection which) const;
    /// By way of the clipboard, which another program may hold for a while: the call then fails.
    void Copy() const;
    void Paste() const;
    void PasteAndFormat(PasteFormat format) const;
};

/// How large the window shows the page: 2 fits its width, or in percent.
struct Zoom : Handle {
    Zoom(const Handle& owner, const char* member) : Handle(owner, member) {}
    WholeProperty PageFit{*this, "PageFit"};
    WholeProperty Percentage{*this, "Percentage"};
};

/// What the window shows: pages as printed (3), or text alone (1).
struct View : Handle {
    View(const Handle& owner, const char* member) : Handle(owner, member) {}
    WholeProperty Type{*this, "Type"};
    word::Zoom Zoom{*this, "Zoom"};
};

/// The document's window.
struct Window : Handle {
    Window(const Handle& owner, const char* member) : Handle(owner, member) {}
    word::View View{*this, "View"};
};

/// A named style, reached to change what all of its paragraphs have.
struct Style : Handle {
    explicit Style(ObjectPtr object) : Handle(std::move(object)) {}
    Style(const Style& other) : Style(other.Keep()) {}
    Style& operator=(const Style& other) { return Rebind(*this, other); }
    FlagProperty NoSpaceBetweenParagraphsOfSameStyle{*this, "NoSpaceBetweenParagraphsOfSameStyle"};
};

/// The document's numberings.
struct ListTemplates : Handle {
    ListTemplates(const Handle& owner, const char* member) : Handle(owner, member) {}
    ListTemplate Add(bool outlineNumbered) const;
};

/// The document's named places.
struct Bookmarks : Handle {
    Bookmarks(const Handle& owner, const char* member) : Handle(owner, member) {}
    int Count() const;
    bool Exists(std::string_view name) const;
};

/// One open document.
struct Document : Handle {
    Document() : Document(ObjectPtr{}) {}
    explicit Document(ObjectPtr object) : Handle(std::move(object)) {}
    Document(const Document& other) : Document(other.Keep()) {}
    Document& operator=(const Document& other) { return Rebind(*this, other); }
    Document(const Handle& owner, const char* member) : Handle(owner, member) {}
    NumberProperty DefaultTabStop{*this, "DefaultTabStop"};
    WholeProperty ProtectionType{*this, "ProtectionType"};  ///< -1 none
    FlagProperty Saved{*this, "Saved"};                     ///< the file holds all that the document does
    word::PageSetup PageSetup{*this, "PageSetup"};
    word::ListTemplates ListTemplates{*this, "ListTemplates"};
    word::Sections Sections{*this, "Sections"};
    word::Tables Tables{*this, "Tables"};
    word::FormFields FormFields{*this, "FormFields"};
    word::Bookmarks Bookmarks{*this, "Bookmarks"};
    word::Window ActiveWindow{*this, "ActiveWindow"};
    word::Range Content{*this, "Content"};
    Style Styles(std::string_view name) const;
    /// The stories beside the main text: notes, text boxes, headers and footers. For Word, whose `Content`
    /// ends with the main text; that of the embedded engine takes them all in.
    std::vector<Range> OtherStories() const;
    /// Locks the document but for its form fields; `noReset` keeps what they hold.
    void Protect(word::ProtectionType type, bool noReset) const;
    void Select() const;
    void Save() const;
    /// Replaces a file of that name without a question.
    void SaveAs(std::string_view fileName) const;
    void Close(bool saveChanges) const;
};

/// The open documents; the last one opened or added is the active one.
struct Documents : Handle {
    Documents(const Handle& owner, const char* member) : Handle(owner, member) {}
    Document Add() const;
    /// A file that is damaged, locked with a password or no document is refused.
    Document Open(std::string_view fileName) const;
    int Count() const;
    Document operator()(int index) const;
};

/// What the word processor does while one types; turned off for a run, and back on.
struct Options : Handle {
    Options(const Handle& owner, const char* member) : Handle(owner, member) {}
    FlagProperty CheckSpellingAsYouType{*this, "CheckSpellingAsYouType"};
    FlagProperty CheckGrammarAsYouType{*this, "CheckGrammarAsYouType"};
};

/// The word processor.
struct Application : Handle {
    explicit Application(ObjectPtr object) : Handle(std::move(object)) {}
    Application(const Application& other) : Application(other.Keep()) {}
    Application& operator=(const Application& other) { return Rebind(*this, other); }
    word::Options Options{*this, "Options"};
    word::Documents Documents{*this, "Documents"};
    word::Selection Selection{*this, "Selection"};
    Document ActiveDocument{*this, "ActiveDocument"};
    FlagProperty Visible{*this, "Visible"};
    WholeProperty WindowState{*this, "WindowState"};  ///< 0 normal, 1 full, 2 an icon
    /// The major version as a number: 12 and above know keep-source pasting.
    double Version() const;
    void Activate() const;
    /// Ends the word processor without saving.
    void Quit() const;
};

}  // namespace quillmark::word
