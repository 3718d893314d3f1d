#pragma once

#include "word/docx/model/document.h"

/// Statements that miss their page by a few lines are set closer, in whole steps, rather than leave their
/// last lines on a page of their own.
namespace quillmark::word::docx::write {

/// How much of its page a text takes, reckoned by the widths of its letters.
class PageMeasure {
 public:
    /// What the document's letters and paragraphs have that say nothing else; both are complete.
    PageMeasure(const Document& document, const CharFormat& letters, const ParaFormat& look)
        : document_(document), letters_(letters), look_(look) {}

    void Add(const Paragraph& paragraph, const SectionProperties& section);
    /// By how much each line is to be closer to the one above it, in 240ths of a line: 0 where the text fits
    /// the section's page, or where no step makes it fit.
    int CloserBy(const SectionProperties& section) const;

 private:
    CharFormat LettersOf(FormatId format) const;
    double LineHeightOf(const Paragraph& paragraph) const;
    int LinesOf(const Paragraph& paragraph, const ParaFormat& format, double right) const;

    const Document& document_;
    const CharFormat& letters_;
    const ParaFormat& look_;
    double height_ = 0;   ///< in points
    double perStep_ = 0;  ///< what one 240th of every line comes to
};

/// The paragraph's lines closer by so much, where they are spaced by the height of their letters.
ParaFormat Closer(ParaFormat format, int by);

}  // namespace quillmark::word::docx::write
