#pragma once

#include <optional>

#include "core/job.h"
#include "platform/dialogs.h"

namespace quillmark {

/// What keeps the job's documents from being made, as the box that tells it; nothing when they can be. Only
/// relevant fields are looked at, in this order: the property's town, the tenancy, the principal of a power
/// of attorney, the proration date.
std::optional<MessageDialog> WhyNotCreate(const Job& job);

}  // namespace quillmark
