#pragma once

#include "core/firm_defaults.h"
#include "core/folders.h"
#include "core/settings.h"
#include "platform/clock.h"

namespace quillmark {

/// What the rules know beside the job: the firm's settings, folders and own details, and today's date.
struct FirmContext {
    const Settings& settings;
    const Folders& folders;
    const FirmDefaults& firmDefaults;
    const Clock& clock;
};

}  // namespace quillmark
