#include "tools/custom_forms/form_scan.h"

#include "platform/paths.h"

namespace quillmark {

OpenedForm::OpenedForm(const std::filesystem::path& file, const StartWord& startWord)
    : application_(nullptr) {
    const word::StartedWordProcessor started = startWord();
    application_ = word::Application(started.application);
    embedded_ = started.isEmbedded;
    try {
        document_ = application_.Documents.Open(TextOf(file));
        if (document_.ProtectionType != word::NoProtection)
            throw word::AutomationError(
                word::error::kNotAvailable,
                "This form is protected.  Take its protection off, save it, and import "
                "it again.");
    } catch (const word::AutomationError&) {
        application_.Quit();
        throw;
    }
}

OpenedForm::~OpenedForm() {
    try {
        application_.Quit();
    } catch (const word::AutomationError&) {
        // The user has closed it already.
    }
}

bool OpenedForm::Holds(const std::string& marker) const {
    if (document_.Content.Find.Execute(marker, word::FindContinue)) return true;
    if (embedded_) return false;
    for (const word::Range& story : document_.OtherStories())
        if (story.Find.Execute(marker, word::FindContinue)) return true;
    return false;
}

std::vector<FormMarker> OpenedForm::Markers(const std::vector<MarkerRow>& rows) const {
    std::vector<FormMarker> found;
    for (const MarkerRow& row : rows)
        if (Holds(row.marker.marker)) found.push_back(row.marker);
    return found;
}

}  // namespace quillmark
