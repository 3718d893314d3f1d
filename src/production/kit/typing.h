#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "production/kit/word_session.h"

namespace quillmark {

/// The indent on both sides of a deed and the place of its signatures and braces, in inches.
inline constexpr double kDeedIndent = 0.1875;
inline constexpr double kSignatureTab = 3.875;

/// The line to sign on.
std::string SignatureRule();

/// The hand that builders type with: each method is one short sequence of word-processor operations at the
/// insertion point. Texts are cut into as many parts as reads well (literals and values, in reading order)
/// and typed as one; their line ends, of whatever kind a value brings, are paragraph marks. Every method
/// throws word::AutomationError, which ends the whole run.
class Typist {
 public:
    explicit Typist(WordSession& session) : WordSel(session.WordSel), session_(session) {}

    // Text.
    template <class... Parts>
    void Text(const Parts&... parts) {
        TypeText({std::string_view(parts)...});
    }
    /// Sets bold, types, and clears it, also within a bold run.
    template <class... Parts>
    void TypeBold(const Parts&... parts) {
        Bold(true);
        Text(parts...);
        Bold(false);
    }
    /// As TypeBold, in italics.
    template <class... Parts>
    void TypeItalic(const Parts&... parts) {
        Italic(true);
        Text(parts...);
        Italic(false);
    }
    /// As TypeBold, with a single underline.
    template <class... Parts>
    void TypeUnderlined(const Parts&... parts) {
        Underline(word::UnderlineSingle);
        Text(parts...);
        Underline(word::UnderlineNone);
    }

    /// As TypeBold, raised.
    template <class... Parts>
    void TypeSuperscript(const Parts&... parts) {
        Superscript(true);
        Text(parts...);
        Superscript(false);
    }

    // Characters, from here on.
    void Font(std::string_view name, double points);
    void FontName(std::string_view name) { WordSel.Font.Name = name; }
    void FontSize(double points) { WordSel.Font.Size = points; }
    void Bold(bool on) { WordSel.Font.Bold = on; }
    void Italic(bool on) { WordSel.Font.Italic = on; }
    void Underline(word::Underline kind) { WordSel.Font.Underline = kind; }
    void Superscript(bool on) { WordSel.Font.Superscript = on; }

    // The paragraph in hand and those that follow it.
    /// What it is in its document. It changes nothing that is seen; the embedded engine makes a named style
    /// of it and keeps blocks together.
    void Role(word::Role role);
    /// Types paragraphs that are this, among others that are what they were.
    template <class Passage>
    void As(word::Role role, Passage passage) {
        const word::Role others = role_;
        Role(role);
        passage();
        Role(others);
    }
    void Align(word::Alignment alignment) { WordSel.ParagraphFormat.Alignment = alignment; }
    void SpaceAfter(double points) { WordSel.ParagraphFormat.SpaceAfter = points; }
    void LineSpacing(double points) { WordSel.Paragraphs.LineSpacing = points; }
    /// Left and right alike.
    void Indents(double inches);
    double indents() const { return indent_; }
    /// Types against tab stops that are there for this passage alone.
    template <class Passage>
    void AtTabs(std::initializer_list<double> inches, Passage passage) {
        for (const double stop : inches) AddTab(stop);
        passage();
        for (const double stop : inches) ClearTab(stop);
    }
    template <class Passage>
    void AtTab(double inches, Passage passage) {
        AtTabs({inches}, passage);
    }
    /// Types with so many points after each paragraph.
    template <class Passage>
    void Spaced(double points, Passage passage) {
        SpaceAfter(points);
        passage();
        SpaceAfter(0);
    }

    // Lists: 1. 2. 3., or 1. a. i. with the outline, where ListIn and ListOut change the level.
    void BeginList() { WordSel.ListFormat().ApplyListTemplate(session_.ListTemplateSimple); }
    void BeginOutline() { WordSel.ListFormat().ApplyListTemplate(session_.ListTemplateOutline); }
    void ListIn() { WordSel.ListFormat().ListIndent(); }
    void ListOut() { WordSel.ListFormat().ListOutdent(); }
    /// The end of a list item, with a blank line that still belongs to it.
    void EndItem() { Text("\v\r"); }
    /// Ends the list and sets the indents that it has changed again.
    void EndList();
    /// A whole list of plain items.
    void NumberedList(std::initializer_list<std::string_view> items);
    /// The same with a dot before each.
    void BulletedList(std::initializer_list<std::string_view> items);

    /// A section of its own in newspaper columns, begun and ended by a continuous section break: the text of
    /// the passage runs down one column and on in the next.
    template <class Passage>
    void Columns(int count, double spacingInches, Passage passage) {
        BeginColumns(count, spacingInches);
        passage();
        EndColumns();
    }

    // Things that are not text.
    void PageBreak() { WordSel.InsertBreak(word::PageBreak); }
    /// A box to tick, at the insertion point or in a cell that is empty.
    void CheckBox(bool ticked) { CheckBox(WordSel.Range(), ticked); }
    void CheckBox(const word::Cell& cell, bool ticked) { CheckBox(cell.Range, ticked); }
    /// A field to click and type over.
    void TextField(std::string_view result);
    /// A picture given as the bytes of its file, and described, by way of the clipboard, which is empty
    /// afterwards.
    void Picture(const std::string& bytes, const std::string& description);
    /// A table at the insertion point, which must be at the start of a paragraph. Typing goes on below it,
    /// after the empty paragraph that a table has behind it; its cells are reached without moving the
    /// insertion point.
    word::Table Table(int rows, int columns);

    /// The word processor's major version, such as 16.
    double WordVersion() const { return session_.WordApp.Version(); }

    /// The insertion point itself, for what a single document asks of it.
    const word::Selection& WordSel;

 private:
    void TypeText(std::initializer_list<std::string_view> parts);
    void CheckBox(const word::Range& place, bool ticked);
    void AddTab(double inches) { WordSel.Paragraphs.TabStops.Add(word::InchesToPoints(inches)); }
    void ClearTab(double inches) { WordSel.Paragraphs.TabStops.Clear(word::InchesToPoints(inches)); }
    void BeginColumns(int count, double spacingInches);
    void EndColumns();

    WordSession& session_;
    double indent_ = 0;  ///< as Indents set it last
    word::Role role_ = word::Role::Body;
};

}  // namespace quillmark
