#pragma once

#include <memory>

#include "word/docx/objects/engine.h"
#include "word/seam/automation.h"
#include "word/seam/clipboard.h"
#include "word/seam/hints.h"

namespace quillmark::word {

/// Which word processor makes the documents. Automatic is Word where there is one and it starts, the embedded
/// engine everywhere else.
enum class WordProcessor { Automatic, Word, Embedded };

struct StartedWordProcessor {
    ObjectPtr application;
    std::shared_ptr<Clipboard> clipboard;  ///< the one that this application pastes from
    bool isEmbedded = false;
    std::shared_ptr<Hints> hints = {};  ///< the embedded engine's; null for Word
};

/// Starts the word processor of choice. `options` are the embedded engine's and mean nothing to Word.
/// Throws AutomationError kCannotCreate when Word is asked for by name and is not on this machine.
StartedWordProcessor StartWordProcessor(WordProcessor choice, docx::objects::EngineOptions options = {});

}  // namespace quillmark::word
