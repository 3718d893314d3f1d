#pragma once

#include <memory>
#include <utility>

#include "word/seam/clipboard.h"
#include "word/seam/hints.h"
#include "word/word.h"

namespace quillmark {

/// The word processor as it is held from the start of a Create run until the next one. The objects appear one
/// by one while `SetUpWordSession` runs, so that a run which fails half-way can still put the options back.
struct WordSession {
    /// Takes the application object over; nothing is asked of it yet. The clipboard is the one that this
    /// word processor pastes from.
    WordSession(word::ObjectPtr application, std::shared_ptr<word::Clipboard> pasteFrom,
                std::shared_ptr<word::Hints> wordHints = nullptr)
        : WordApp(std::move(application)), clipboard(std::move(pasteFrom)), hints(std::move(wordHints)) {}

    word::Application WordApp;
    std::shared_ptr<word::Clipboard> clipboard;
    std::shared_ptr<word::Hints> hints;       ///< null where the word processor takes none
    bool isEmbedded = false;                  ///< the word processor is the one within this program
    word::Document WordDoc;                   ///< the one new document of the run
    word::Selection WordSel{nullptr};         ///< the insertion point that every builder types at
    word::Style ListParagraphStyle{nullptr};  ///< "List Paragraph"; an old Word has none
    word::ListTemplate ListTemplateSimple;    ///< one level: 1.
    word::ListTemplate ListTemplateOutline;   ///< three levels: 1. a. i.
    bool SpellingWasOn = false;               ///< the checkers were on before the session and are to be on
    bool GrammarWasOn = false;                ///< again after it
};

/// Turns the checkers off, adds the document and gives it the default page: margins of 0.625 inch all round,
/// header 0.5 and footer 0.25 inch from the edge, tab stops every quarter inch, no space after paragraphs,
/// 12-point lines, and the two list templates. Throws word::AutomationError; only the missing style is let
/// go.
void SetUpWordSession(WordSession& session);

/// Puts the spelling and grammar options back to what they were.
void RestoreCheckers(WordSession& session);

}  // namespace quillmark
