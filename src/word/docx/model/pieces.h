#pragma once

#include <cstddef>
#include <vector>

#include "word/docx/model/document.h"

/// Cutting and joining paragraphs: the one place where text, spans, objects and bookmarks' marks are divided
/// and put together. Whoever edits, finds, reads or pastes builds on these; marks of the engine's own
/// (edit/marks.h) are the callers' to move.
namespace quillmark::word::docx::inline model {

/// Takes out what is behind an offset of the text and gives it as a paragraph of the same format, with the
/// paragraph's mark and the section that it ends. What is left keeps a mark of the same look and ends no
/// section. Bookmarks' marks at the offset stay. Costs time by the length of the tail alone.
Paragraph CutTail(Paragraph& paragraph, std::size_t offset);

/// Takes out the first `length` bytes of the text, which hold no object; bookmarks' marks in them go to the
/// beginning.
void DropFront(Paragraph& paragraph, std::size_t length);

/// Puts the text of another paragraph, with its objects and bookmarks' marks, behind this one's. Formats and
/// sections stay as they are.
void AppendText(Paragraph& paragraph, Paragraph&& next);
/// The same, and takes over the other's format, the look of its mark and the section that it ends.
void Append(Paragraph& paragraph, Paragraph&& next);

/// Cuts the paragraph at each "\r" of its text. Gives the paragraphs before the last, which have its format
/// and the look of its mark; the last keeps the mark and the section.
std::vector<Paragraph> SplitAtReturns(Paragraph& paragraph);

}  // namespace quillmark::word::docx::inline model
