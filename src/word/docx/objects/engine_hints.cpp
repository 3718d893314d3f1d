#include "word/docx/objects/engine_hints.h"

#include "word/docx/edit/stretch.h"
#include "word/docx/objects/selection.h"

namespace quillmark::word::docx::objects {

template <class Change>
void EngineHints::WithDocument(const Change& change) {
    const auto engine = engine_.lock();
    if (engine && !engine->documents().empty()) change(engine->Active());
}

void EngineHints::SetRole(Role role) {
    WithDocument([&](OpenDocument& document) {
        document.selection().ForEachParagraph([&](Paragraph& paragraph) {
            if (document.model().paraFormats[paragraph.format].role == role) return;
            edit::ChangeParagraph(document.model(), paragraph,
                                  [&](ParaFormat& format) { format.role = role; });
        });
    });
}

void EngineHints::SetProperties(const DocumentProperties& properties) {
    WithDocument([&](OpenDocument& document) { document.model().properties = properties; });
}

void EngineHints::SetBestFit(bool on) {
    WithDocument([&](OpenDocument& document) { document.model().zoomToPageWidth = on; });
}

}  // namespace quillmark::word::docx::objects
