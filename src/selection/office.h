#pragma once

#include "core/firm_defaults.h"
#include "core/folders.h"
#include "core/settings.h"
#include "platform/clock.h"
#include "platform/dialogs.h"

namespace quillmark {

/// What surrounds the job: the office's settings, folders and defaults, its calendar and the person.
struct Office {
    Settings& settings;
    Folders& folders;
    FirmDefaults& firmDefaults;
    const Clock& clock;
    Dialogs& dialogs;
};

}  // namespace quillmark
