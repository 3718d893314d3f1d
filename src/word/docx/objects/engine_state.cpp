#include "word/docx/objects/engine_state.h"

#include <algorithm>

#include "word/docx/objects/pictures.h"
#include "word/docx/read/document_reader.h"

namespace quillmark::word::docx::objects {

namespace fs = std::filesystem;

EngineState::EngineState(EngineOptions options) : options_(std::move(options)) {
    if (!options_.clipboard) options_.clipboard = std::make_shared<MemoryClipboard>();
}

void EngineState::CheckRunning() const {
    if (hasQuit_)
        throw AutomationError(error::kServerGone,
                              "The remote server machine does not exist or is unavailable");
}

void EngineState::Quit() {
    for (const auto& document : documents_) document->MarkServerGone();
    documents_.clear();
    active_ = nullptr;
    hasQuit_ = true;
}

// ---- Documents ----

OpenDocument& EngineState::Keep(std::shared_ptr<OpenDocument> document) {
    active_ = document.get();
    documents_.insert(documents_.begin(), std::move(document));
    return *active_;
}

OpenDocument& EngineState::AddDocument() {
    const std::string name = "Document" + std::to_string(nextDocumentNumber_++);
    return Keep(
        std::make_shared<OpenDocument>(weak_from_this(), std::make_unique<Document>(), name, fs::path()));
}

OpenDocument& EngineState::OpenFile(const std::string& fileName) {
    const fs::path path = PathOf(fileName);
    for (const auto& document : documents_) {
        std::error_code ignored;
        if (document->path().empty() || !fs::equivalent(document->path(), path, ignored)) continue;
        Activate(*document);
        return *document;
    }
    return Keep(std::make_shared<OpenDocument>(weak_from_this(), read::OpenDocx(path),
                                               path.filename().string(), path));
}

void EngineState::Close(OpenDocument& document) {
    document.MarkClosed();
    const auto kept = document.Self();
    std::erase(documents_, kept);
    if (active_ == &document) active_ = documents_.empty() ? nullptr : documents_.front().get();
}

void EngineState::Activate(OpenDocument& document) {
    active_ = &document;
}

OpenDocument& EngineState::Active() {
    if (active_) return *active_;
    throw AutomationError(error::kNoDocumentOpen,
                          "This command is not available because no document is open.");
}

fs::path EngineState::PathOf(const std::string& fileName) const {
    const fs::path path(std::u8string(fileName.begin(), fileName.end()));
    return path.is_absolute() || options_.folder.empty() ? path : options_.folder / path;
}

// ---- The clipboard ----

void EngineState::SetCopied(paste::CopiedText copied) {
    options_.clipboard->Clear();
    copied_ = std::move(copied);
    copiedAt_ = options_.clipboard->changes();
}

paste::CopiedText EngineState::copied() const {
    return options_.clipboard->changes() == copiedAt_ ? copied_ : paste::CopiedText();
}

find::ClipboardContent EngineState::clipboardContent() const {
    const MemoryClipboard& clipboard = *options_.clipboard;
    if (!clipboard.picture().empty()) return MakePicture(clipboard.picture(), clipboard.description());
    if (!clipboard.text().empty()) return clipboard.text();
    return std::monostate();
}

}  // namespace quillmark::word::docx::objects
