#pragma once

#include <memory>

#include "word/docx/objects/engine_state.h"
#include "word/seam/hints.h"

namespace quillmark::word::docx::objects {

/// Hints to the active document of a running engine; after it has quit they do nothing.
class EngineHints final : public Hints {
 public:
    explicit EngineHints(std::weak_ptr<EngineState> engine) : engine_(std::move(engine)) {}

    void SetRole(Role role) override;
    void SetProperties(const DocumentProperties& properties) override;
    void SetBestFit(bool on) override;

 private:
    template <class Change>
    void WithDocument(const Change& change);

    std::weak_ptr<EngineState> engine_;
};

}  // namespace quillmark::word::docx::objects
