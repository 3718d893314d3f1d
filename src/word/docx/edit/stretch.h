#pragma once

#include <functional>
#include <string>

#include "word/docx/model/document.h"

/// Runs of text across paragraphs: looking at their characters and changing how they look.
namespace quillmark::word::docx::edit {

/// Overwrites what the patch has set.
void Overlay(CharFormat& format, const CharFormat& patch);

/// Part of a paragraph.
struct Stretch {
    Paragraph& paragraph;
    std::size_t from = 0;
    std::size_t to = 0;
    bool withMark = false;
};

/// Calls `function(Stretch)` for what lies between two places of the same blocks, whole tables included.
/// `withLastMark` takes in the mark of the last paragraph.
void ForEachStretch(const Place& start, const Place& end, bool withLastMark,
                    const std::function<void(const Stretch&)>& function);

/// Changes the fonts of a stretch, the paragraph mark's included when it is part of it.
void ChangeFontOf(Document& document, const Stretch& stretch, const CharFormat& patch);
/// Gives the fonts of a stretch, completed by the styles; an empty one's is that of its paragraph mark.
void LookAtFontsOf(const Document& document, const Stretch& stretch,
                   const std::function<void(const CharFormat&)>& look);
/// The plain text of a stretch with its paragraph mark as "\r". Fields show as their results.
std::string PlainText(const Stretch& stretch);

/// Gives a paragraph's format anew: `change(ParaFormat&)`.
template <class Change>
void ChangeParagraph(Document& document, Paragraph& paragraph, const Change& change) {
    ParaFormat format = document.paraFormats[paragraph.format];
    change(format);
    paragraph.format = document.paraFormats.Intern(format);
}

}  // namespace quillmark::word::docx::edit
