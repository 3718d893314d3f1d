#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "production/kit/production.h"
#include "production/kit/typing.h"
#include "word/docx/model/document.h"
#include "word/start.h"

namespace quillmark::test {

/// The word processor of a run as tests have it: the embedded engine behind the trace, so that what they read
/// is the product itself.
class EngineDesk {
 public:
    struct Bare {};
    explicit EngineDesk(Bare);  ///< just started
    EngineDesk();               ///< with the new document and its default page

    /// Types a document; `documents` is the list of those that the run makes.
    void Type(std::string_view document, const Job& job, std::vector<std::string> documents = {});
    void Type(std::string_view document, const Production& production);

    /// Makes reaching this path fail, `ActiveDocument.Styles("List Paragraph")` for instance.
    void Refuse(const std::string& path, int error) { refused_[path] = error; }
    /// Makes the word processor say that it is of this version.
    void SetVersion(const std::string& version) { version_ = version; }

    /// The traced application, and what belongs to it.
    word::StartedWordProcessor Started() const {
        return {session.WordApp.Reach(), clipboard_, false, hints_};
    }
    /// The lines of the trace since the page was set up, or of everything where that was left to the test.
    std::vector<std::string> operations;
    bool Did(std::string_view line) const;

    const word::docx::Document& Model() const;
    /// What the next character's look, or its paragraph's, has that a new document's has not: "bold, left
    /// indent".
    std::string LeftOver() const;

    /// The typed characters alone, paragraph ends and table cells as "\n", text fields in braces, boxes to
    /// tick as {x} and { }.
    std::string Text() const;
    /// The document as a lawyer reads it in a diff: *bold*, ~italic~, =underlined=, ==doubly==, tabs as →,
    /// line breaks as ↵, page breaks as ‹page›, the fonts as ‹Arial 10› where they change, list items with
    /// their numbers, and a line in brackets above a paragraph whose alignment, indents or tab stops differ
    /// from those before it. ^Raised^ text, boxes to tick as {x} or { }, pictures as {their description},
    /// tables row by row between |.
    std::string Reading() const;

 private:
    class Altered;

    std::map<std::string, int> refused_;
    std::string version_;
    std::shared_ptr<word::MemoryClipboard> clipboard_ = std::make_shared<word::MemoryClipboard>();
    word::ObjectPtr engine_;
    std::shared_ptr<word::Hints> hints_;

 public:
    WordSession session;
    Typist type{session};
};

}  // namespace quillmark::test
