#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "word/seam/automation.h"
#include "word/seam/clipboard.h"

namespace quillmark::test {

/// A word processor that keeps what is typed into it with its formats, for tests of what a document says.
/// It takes every member that the typed face can ask for and has no page.
class RecordingWord {
 public:
    struct Characters {
        std::string font = "Times New Roman";
        double size = 12;
        bool bold = false, italic = false, superscript = false;
        int underline = 0;
        bool operator==(const Characters&) const = default;
    };
    struct Paragraph {
        int alignment = 0;
        double left = 0, right = 0, spaceAfter = 0, lineSpacing = 12;
        std::string list;  ///< the template it is an item of; empty for none
        int level = 1;
        int columns = 1;  ///< of the section
        std::set<double> tabs;
        std::vector<std::pair<Characters, std::string>> runs;
        bool HasFormatOf(const Paragraph& other) const;
    };

    RecordingWord();
    RecordingWord(const RecordingWord&) = delete;
    RecordingWord& operator=(const RecordingWord&) = delete;

    word::ObjectPtr Application();
    std::shared_ptr<word::MemoryClipboard> clipboard() { return clipboard_; }

    /// Makes reaching this path fail, `ActiveDocument.Styles("List Paragraph")` for instance.
    void Refuse(const std::string& path, int error) { refused_[path] = error; }
    void SetValue(const std::string& path, word::Value value) { values_[path] = std::move(value); }

    /// Every property set, value read and call in order: `Selection.Font.Bold = True`.
    const std::vector<std::string>& operations() const { return operations_; }
    /// What the next character would look like, and the paragraph that it would stand in.
    const Characters& characters() const { return characters_; }
    const Paragraph& paragraph() const { return paragraphs_.back(); }

    /// The typed characters alone, paragraph ends as "\n", text fields in braces, check boxes as {x} and { }.
    std::string Text() const;
    /// The document as a lawyer reads it in a diff: *bold*, ~italic~, =underlined=, ==doubly==, tabs as →,
    /// line breaks as ↵, page breaks as ‹page›, the fonts as ‹Arial 10› where they change, list items with
    /// their numbers, and a line in brackets above a paragraph whose alignment, indents or tab stops differ
    /// from those before it. ^Raised^ text, boxes to tick as {x} or { }, pictures as {their description},
    /// tables row by row between |.
    std::string Reading() const;

 private:
    class Node;
    word::Value Get(const std::string& path, const std::string& member, word::Arguments arguments);
    void Put(const std::string& path, const word::Value& value);
    word::Value Call(const std::string& path, const std::string& member, word::Arguments arguments);
    word::Value Child(const std::string& path);
    void TypeText(const std::string& text);
    void ClearTab(const std::string& path);
    /// Types where the range of this path is: in a cell, or at the insertion point.
    void TypeAt(const std::string& range, const std::string& text);
    void AddTable(const std::string& path, int rows, int columns);
    /// A cell by the path of its range; no row for another range.
    struct CellPlace {
        std::vector<std::string>* row = nullptr;
        std::size_t column = 0;
    };
    CellPlace FindCell(const std::string& range);
    /// Joins cells of one row.
    void MergeCells(const std::string& first, const std::string& last);
    std::vector<std::vector<std::string>> RowsBefore(const Paragraph& paragraph) const;

    std::map<std::string, word::Value> values_;
    std::map<std::string, int> refused_;
    std::map<std::string, int> added_;                ///< how many each collection's Add has made
    std::map<std::string, std::string> fieldRanges_;  ///< the range of each form field, by its path
    std::vector<std::string> operations_;
    std::vector<Paragraph> paragraphs_;
    struct Table {
        std::string path;
        std::size_t before = 0;  ///< the paragraph behind it
        std::vector<std::vector<std::string>> cells;
    };
    std::vector<Table> tables_;
    Characters characters_;
    std::shared_ptr<word::MemoryClipboard> clipboard_ = std::make_shared<word::MemoryClipboard>();
};

}  // namespace quillmark::test
