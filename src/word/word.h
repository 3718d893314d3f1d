#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "word/seam/handle.h"

/// The typed face of the word processor: every operation that the system uses, and no other. Names and
/// nesting are those of Word's object model, so `word.Selection.Font.Bold = true` is what a reader of that
/// model expects. Everything throws AutomationError (automation.h).
namespace quillmark::word {

inline constexpr double InchesToPoints(double inches) {
    return inches * 72.0;
}

struct Font : Handle {
    Font(const Handle& owner, const char* member) : Handle(owner, member) {}
    TextProperty Name{*this, "Name"};
    NumberProperty Size{*this, "Size"};
    FlagProperty Bold{*this, "Bold"};
    FlagProperty Italic{*this, "Italic"};
    WholeProperty Underline{*this, "Underline"};
    FlagProperty Superscript{*this, "Superscript"};
};

struct ParagraphFormat : Handle {
    ParagraphFormat(const Handle& owner, const char* member) : Handle(owner, member) {}
    WholeProperty Alignment{*this, "Alignment"};
    NumberProperty SpaceAfter{*this, "SpaceAfter"};
};

struct TabStops : Handle {
    TabStops(const Handle& owner, const char* member) : Handle(owner, member) {}
    void Add(double position) const;
    /// Clears the stop at this position, by way of the stop itself.
    void Clear(double position) const;
    void ClearAll() const;
};

struct Paragraphs : Handle {
    Paragraphs(const Handle& owner, const char* member) : Handle(owner, member) {}
    NumberProperty SpaceBefore{*this, "SpaceBefore"};
    NumberProperty SpaceAfter{*this, "SpaceAfter"};
    NumberProperty LineSpacing{*this, "LineSpacing"};
    NumberProperty LeftIndent{*this, "LeftIndent"};
    NumberProperty RightIndent{*this, "RightIndent"};
    word::TabStops TabStops{*this, "TabStops"};
    void Indent() const;
    void Outdent() const;
};

struct ListLevel : Handle {
    explicit ListLevel(ObjectPtr object) : Handle(std::move(object)) {}
    WholeProperty NumberStyle{*this, "NumberStyle"};
    TextProperty NumberFormat{*this, "NumberFormat"};
};

struct ListTemplate : Handle {
    ListTemplate() = default;
    explicit ListTemplate(ObjectPtr object) : Handle(std::move(object)) {}
    ListTemplate(const ListTemplate& other) : ListTemplate(other.Keep()) {}
    ListTemplate& operator=(const ListTemplate& other) { return Rebind(*this, other); }
    ListLevel ListLevels(int level) const;
};

struct ListFormat : Handle {
    explicit ListFormat(ObjectPtr object) : Handle(std::move(object)) {}
    ListFormat(const Handle& owner, const char* member) : Handle(owner, member) {}
    void ApplyListTemplate(const ListTemplate& list) const;
    void ApplyBulletDefault() const;
    void RemoveNumbers() const;
    void ListIndent() const;
    void ListOutdent() const;
};

struct TextColumns : Handle {
    TextColumns(const Handle& owner, const char* member) : Handle(owner, member) {}
    void SetCount(int columns) const;
    NumberProperty Width{*this, "Width"};
    NumberProperty Spacing{*this, "Spacing"};
};

struct PageSetup : Handle {
    PageSetup(const Handle& owner, const char* member) : Handle(owner, member) {}
    NumberProperty LeftMargin{*this, "LeftMargin"};
    NumberProperty RightMargin{*this, "RightMargin"};
    NumberProperty TopMargin{*this, "TopMargin"};
    NumberProperty BottomMargin{*this, "BottomMargin"};
    NumberProperty HeaderDistance{*this, "HeaderDistance"};
    NumberProperty FooterDistance{*this, "FooterDistance"};
    WholeProperty SectionStart{*this, "SectionStart"};
    WholeProperty PaperSize{*this, "PaperSize"};
    word::TextColumns TextColumns{*this, "TextColumns"};
};

struct Range;

struct Find : Handle {
    Find(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// Looks for the text; ^b, ^m, ^c and ^^ are Word's codes. Letter case makes no difference.
    bool Execute(std::string_view findText) const;
    bool Execute(std::string_view findText, FindWrap wrap) const;
    /// Replaces every occurrence; tells whether there was one.
    bool ReplaceAll(std::string_view findText, std::string_view replaceWith) const;
};

struct Fields : Handle {
    Fields(const Handle& owner, const char* member) : Handle(owner, member) {}
    void Add(const Range& range, FieldType type) const;
};

struct Range : Handle {
    Range() : Range(ObjectPtr{}) {}
    explicit Range(ObjectPtr object) : Handle(std::move(object)) {}
    Range(const Range& other) : Range(other.Keep()) {}
    Range& operator=(const Range& other) { return Rebind(*this, other); }
    Range(const Handle& owner, const char* member) : Handle(owner, member) {}
    TextProperty Text{*this, "Text"};
    WholeProperty StoryType{*this, "StoryType"};
    WholeProperty StoryLength{*this, "StoryLength"};
    word::Font Font{*this, "Font"};
    word::ParagraphFormat ParagraphFormat{*this, "ParagraphFormat"};
    word::ListFormat ListFormat{*this, "ListFormat"};
    word::Fields Fields{*this, "Fields"};
    word::Find Find{*this, "Find"};
    void MoveStart(Unit unit) const;
    void InsertAfter(std::string_view text) const;
    void InsertBreak(Break kind) const;
};

struct CheckBox : Handle {
    CheckBox(const Handle& owner, const char* member) : Handle(owner, member) {}
    FlagProperty Value{*this, "Value"};
};

struct FormField : Handle {
    explicit FormField(ObjectPtr object) : Handle(std::move(object)) {}
    FormField(const FormField& other) : FormField(other.Keep()) {}
    FormField& operator=(const FormField& other) { return Rebind(*this, other); }
    TextProperty Result{*this, "Result"};
    word::CheckBox CheckBox{*this, "CheckBox"};
};

struct FormFields : Handle {
    FormFields(const Handle& owner, const char* member) : Handle(owner, member) {}
    FormField Add(const Range& range, FieldType type) const;
    FormField operator()(int index) const;
    int Count() const;
};

struct Borders : Handle {
    Borders(const Handle& owner, const char* member) : Handle(owner, member) {}
    WholeProperty LineStyle{*this, "LineStyle"};
    WholeProperty OutsideLineStyle{*this, "OutsideLineStyle"};
    WholeProperty InsideLineStyle{*this, "InsideLineStyle"};
};

struct Shading : Handle {
    Shading(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// The fill as Word's colour number: red + 256 * green + 65536 * blue.
    WholeProperty BackgroundPatternColor{*this, "BackgroundPatternColor"};
};

struct Cell : Handle {
    explicit Cell(ObjectPtr object) : Handle(std::move(object)) {}
    Cell(const Cell& other) : Cell(other.Keep()) {}
    Cell& operator=(const Cell& other) { return Rebind(*this, other); }
    word::Range Range{*this, "Range"};
    WholeProperty VerticalAlignment{*this, "VerticalAlignment"};
    /// Puts the insertion point into the cell (the cell is selected).
    void Select() const;
    void Merge(const Cell& mergeTo) const;
};

struct Row : Handle {
    explicit Row(ObjectPtr object) : Handle(std::move(object)) {}
    NumberProperty Height{*this, "Height"};
    word::Range Range{*this, "Range"};
    word::Shading Shading{*this, "Shading"};
    word::Borders Borders{*this, "Borders"};
};

struct Column : Handle {
    explicit Column(ObjectPtr object) : Handle(std::move(object)) {}
    NumberProperty Width{*this, "Width"};
};

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
    Table Add(const Range& range, int rows, int columns) const;
};

struct InlineShapes : Handle {
    InlineShapes(const Handle& owner, const char* member) : Handle(owner, member) {}
    /// Puts the picture file (PNG, JPEG or BMP) in line with the text, kept in the document: at the insertion
    /// point, or in the place of a range such as an empty table cell's.
    void AddPicture(std::string_view fileName) const;
    void AddPicture(std::string_view fileName, const Range& range) const;
};

struct PageNumbers : Handle {
    PageNumbers(const Handle& owner, const char* member) : Handle(owner, member) {}
    FlagProperty RestartNumberingAtSection{*this, "RestartNumberingAtSection"};
    WholeProperty StartingNumber{*this, "StartingNumber"};
};

struct Footer : Handle {
    explicit Footer(ObjectPtr object) : Handle(std::move(object)) {}
    Footer(const Footer& other) : Footer(other.Keep()) {}
    Footer& operator=(const Footer& other) { return Rebind(*this, other); }
    FlagProperty LinkToPrevious{*this, "LinkToPrevious"};
    word::PageNumbers PageNumbers{*this, "PageNumbers"};
    word::Range Range() const;
};

struct Footers : Handle {
    Footers(const Handle& owner, const char* member) : Handle(owner, member) {}
    int Count() const;
    Footer operator()(int index) const;
};

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
    void TypeText(std::string_view text) const;
    void TypeBackspace() const;
    void InsertBreak(Break kind) const;
    void GoTo(GoToItem what, GoToDirection which) const;
    void Copy() const;
    void Paste() const;
    void PasteAndFormat(PasteFormat format) const;
};

struct Zoom : Handle {
    Zoom(const Handle& owner, const char* member) : Handle(owner, member) {}
    WholeProperty PageFit{*this, "PageFit"};
    WholeProperty Percentage{*this, "Percentage"};
};

struct View : Handle {
    View(const Handle& owner, const char* member) : Handle(owner, member) {}
    WholeProperty Type{*this, "Type"};
    word::Zoom Zoom{*this, "Zoom"};
};

struct Window : Handle {
    Window(const Handle& owner, const char* member) : Handle(owner, member) {}
    word::View View{*this, "View"};
};

struct Style : Handle {
    explicit Style(ObjectPtr object) : Handle(std::move(object)) {}
    Style(const Style& other) : Style(other.Keep()) {}
    Style& operator=(const Style& other) { return Rebind(*this, other); }
    FlagProperty NoSpaceBetweenParagraphsOfSameStyle{*this, "NoSpaceBetweenParagraphsOfSameStyle"};
};

struct ListTemplates : Handle {
    ListTemplates(const Handle& owner, const char* member) : Handle(owner, member) {}
    ListTemplate Add(bool outlineNumbered) const;
};

struct Bookmarks : Handle {
    Bookmarks(const Handle& owner, const char* member) : Handle(owner, member) {}
    int Count() const;
    bool Exists(std::string_view name) const;
};

struct Document : Handle {
    Document() : Document(ObjectPtr{}) {}
    explicit Document(ObjectPtr object) : Handle(std::move(object)) {}
    Document(const Document& other) : Document(other.Keep()) {}
    Document& operator=(const Document& other) { return Rebind(*this, other); }
    Document(const Handle& owner, const char* member) : Handle(owner, member) {}
    NumberProperty DefaultTabStop{*this, "DefaultTabStop"};
    WholeProperty ProtectionType{*this, "ProtectionType"};
    FlagProperty Saved{*this, "Saved"};
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
    void SaveAs(std::string_view fileName) const;
    void Close(bool saveChanges) const;
};

struct Documents : Handle {
    Documents(const Handle& owner, const char* member) : Handle(owner, member) {}
    Document Add() const;
    Document Open(std::string_view fileName) const;
    int Count() const;
    Document operator()(int index) const;
};

struct Options : Handle {
    Options(const Handle& owner, const char* member) : Handle(owner, member) {}
    FlagProperty CheckSpellingAsYouType{*this, "CheckSpellingAsYouType"};
    FlagProperty CheckGrammarAsYouType{*this, "CheckGrammarAsYouType"};
};

struct Application : Handle {
    explicit Application(ObjectPtr object) : Handle(std::move(object)) {}
    Application(const Application& other) : Application(other.Keep()) {}
    Application& operator=(const Application& other) { return Rebind(*this, other); }
    word::Options Options{*this, "Options"};
    word::Documents Documents{*this, "Documents"};
    word::Selection Selection{*this, "Selection"};
    Document ActiveDocument{*this, "ActiveDocument"};
    FlagProperty Visible{*this, "Visible"};
    WholeProperty WindowState{*this, "WindowState"};
    /// The major version as a number: 12 and above know keep-source pasting.
    double Version() const;
    void Activate() const;
    /// Ends the word processor without saving.
    void Quit() const;
};

}  // namespace quillmark::word
