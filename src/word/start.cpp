#include "word/start.h"

#include <optional>
#include <utility>

#include "word/com/com_clipboard.h"
#include "word/com/com_word.h"

namespace quillmark::word {
namespace {

#ifdef _WIN32
StartedWordProcessor StartInstalledWord() {
    return {StartWord(), std::make_shared<SystemClipboard>(), false, nullptr};
}
#else
StartedWordProcessor StartInstalledWord() {
    throw AutomationError(error::kCannotCreate, "Word runs on Windows only");
}
#endif

std::optional<StartedWordProcessor> TryInstalledWord() {
    try {
        return StartInstalledWord();
    } catch (const AutomationError& refusal) {
        if (refusal.number() != error::kCannotCreate) throw;
        return std::nullopt;
    }
}

StartedWordProcessor StartEmbedded(docx::objects::EngineOptions options) {
    if (!options.clipboard) options.clipboard = std::make_shared<MemoryClipboard>();
    const auto clipboard = options.clipboard;
    ObjectPtr application = docx::objects::StartEngine(std::move(options));
    return {application, clipboard, true, docx::objects::HintsOf(application)};
}

}  // namespace

StartedWordProcessor StartWordProcessor(WordProcessor choice, docx::objects::EngineOptions options) {
    if (choice == WordProcessor::Word) return StartInstalledWord();
    if (choice == WordProcessor::Automatic) {
        if (auto word = TryInstalledWord()) return *std::move(word);
    }
    return StartEmbedded(std::move(options));
}

}  // namespace quillmark::word
