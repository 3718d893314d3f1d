#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "tools/custom_forms/marker_list.h"
#include "word/start.h"
#include "word/word.h"

/// Looking for markers in forms by way of the word processor.
namespace quillmark {

using StartWord = std::function<word::StartedWordProcessor()>;

/// A word processor with one form open. It quits with the object.
class OpenedForm {
 public:
    /// Throws word::AutomationError: also for a form that is protected.
    OpenedForm(const std::filesystem::path& file, const StartWord& startWord);
    ~OpenedForm();
    OpenedForm(const OpenedForm&) = delete;
    OpenedForm& operator=(const OpenedForm&) = delete;

    bool IsEmbedded() const { return embedded_; }
    const word::Application& application() const { return application_; }
    const word::Document& document() const { return document_; }

    /// The markers of these rows that the form holds, in any letter case, in their order.
    std::vector<FormMarker> Markers(const std::vector<MarkerRow>& rows) const;

 private:
    bool Holds(const std::string& marker) const;

    word::Application application_;
    word::Document document_;
    bool embedded_ = false;
};

}  // namespace quillmark
