#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/job.h"
#include "core/settings.h"
#include "production/kit/word_session.h"

namespace quillmark {

/// What the footer pass needs to know of a run.
struct FooterPlan {
    std::span<const std::string> documents = {};  ///< the job list's entries, one for each section in order
    std::string_view LegalList = {};  ///< names of the entries on legal-size paper, joined by commas
    Footers footers = Footers::Description;
    bool nameUsable = true;  ///< the job has a name that can be shown
    bool isWholeJob = true;  ///< the job list has no other entries
};

/// Whether the document goes on the land records, or is the firm's own form: such a document takes no
/// descriptive footer.
bool IsRecordedDocument(std::string_view name, const Job& job);

/// Gives every section that begins on a new page its paper, page numbers from 1, and its footer: on one line
/// job name, document name and page number at the left, product or firm at the right.
void FinishSections(const WordSession& session, const Job& job, const FooterPlan& plan);

/// Locks the footers and nothing else: the document is protected, and every section is open again.
void LockFooters(const WordSession& session);

}  // namespace quillmark
