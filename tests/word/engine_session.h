#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "support/scratch.h"
#include "word/docx/objects/engine.h"
#include "word/word.h"

namespace quillmark::word::test {

/// A running engine with one new document, as a builder sees it, and a look at what the document became.
class EngineSession {
 public:
    EngineSession();

    const docx::Document& Model() const { return docx::objects::ModelOf(doc.Reach()); }
    /// The paragraphs of the main text; a table shows as "<table>", an object as "#", a paragraph that ends a
    /// section with "=" behind it.
    std::vector<std::string> Texts() const;
    /// Paragraph i of the main text, from 0; tables count.
    const docx::Paragraph& ParagraphAt(std::size_t i) const;
    const docx::ParaFormat& FormatAt(std::size_t i) const;
    /// The format of the character at this byte of paragraph i.
    const docx::CharFormat& FontAt(std::size_t i, std::size_t offset = 0) const;
    const docx::CharFormat& MarkFontAt(std::size_t i) const;
    /// The list that paragraph i is an item of, 0 for none.
    int ListAt(std::size_t i) const { return FormatAt(i).numId.value_or(0); }

    quillmark::test::ScratchFolder folder;
    std::shared_ptr<MemoryClipboard> clipboard = std::make_shared<MemoryClipboard>();
    Application app;
    Document doc;
    Selection sel;
};

/// The text of a story or cell: its paragraphs joined with "|", with objects as "#".
std::string BlocksText(const docx::Blocks& blocks);

/// The number of the error that an operation raises, 0 for none.
int ErrorOf(const std::function<void()>& operation);

/// What is wrong with the model, empty when it is whole: spans that do not add up, objects that do not match
/// the text, blocks without a last paragraph, rows that do not fill the grid, lists that are not there.
std::string FaultIn(const docx::Document& document);

/// A PNG file's head: enough to tell its size. Dots per inch only when not 0.
std::string PngBytes(unsigned width, unsigned height, unsigned dotsPerInch = 0);

}  // namespace quillmark::word::test
