#pragma once

#include <algorithm>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "core/job.h"
#include "core/settings.h"
#include "platform/dialogs.h"

namespace quillmark {

/// What the documents of a run are made from, and the person whom a few of them ask.
struct Production {
    const Job& job;
    const Settings& settings;
    Dialogs& dialogs;
    std::span<const std::string> documents = {};   ///< the entries of the job list, in order
    std::filesystem::path CustomFormsFolder = {};  ///< where the firm's own forms lie

    /// Whether the run makes this document too.
    bool Makes(std::string_view document) const {
        return std::ranges::find(documents, document) != documents.end();
    }
};

}  // namespace quillmark
