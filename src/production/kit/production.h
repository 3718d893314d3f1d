#pragma once

#include "core/job.h"
#include "core/settings.h"
#include "platform/dialogs.h"

namespace quillmark {

/// What the documents of a run are made from, and the person whom a few of them ask.
struct Production {
    const Job& job;
    const Settings& settings;
    Dialogs& dialogs;
};

}  // namespace quillmark
