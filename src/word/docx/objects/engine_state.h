#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "word/docx/find/find_replace.h"
#include "word/docx/objects/engine.h"
#include "word/docx/objects/open_document.h"
#include "word/docx/paste/paste.h"

namespace quillmark::word::docx::objects {

/// What one running engine holds: its documents, its clipboard and its settings.
class EngineState : public std::enable_shared_from_this<EngineState> {
 public:
    explicit EngineState(EngineOptions options);
    ~EngineState() { Quit(); }
    EngineState(const EngineState&) = delete;
    EngineState& operator=(const EngineState&) = delete;

    void CheckRunning() const;
    /// Closes every document without saving; nothing of the engine can be used afterwards.
    void Quit();

    OpenDocument& AddDocument();
    /// Opens a file, or activates the document that it is open in already.
    OpenDocument& OpenFile(const std::string& fileName);
    void Close(OpenDocument& document);
    void Activate(OpenDocument& document);
    /// Throws kNoDocumentOpen when there is none.
    OpenDocument& Active();
    /// The latest opened first, as the word processor counts them.
    const std::vector<std::shared_ptr<OpenDocument>>& documents() const { return documents_; }

    /// A file name of a call as a path: relative ones are against the engine's folder.
    std::filesystem::path PathOf(const std::string& fileName) const;

    /// What `Selection.Copy` put on the clipboard, as long as nothing else was put there.
    void SetCopied(paste::CopiedText copied);
    paste::CopiedText copied() const;
    /// Text or picture on the clipboard; empty when there is neither. A picture is in its natural size.
    find::ClipboardContent clipboardContent() const;

    bool checkSpelling = true;
    bool checkGrammar = true;
    bool visible = false;
    int windowState = 0;

 private:
    OpenDocument& Keep(std::shared_ptr<OpenDocument> document);

    EngineOptions options_;
    std::vector<std::shared_ptr<OpenDocument>> documents_;
    OpenDocument* active_ = nullptr;
    int nextDocumentNumber_ = 1;
    paste::CopiedText copied_;
    std::uint64_t copiedAt_ = 0;
    bool hasQuit_ = false;
};

}  // namespace quillmark::word::docx::objects
