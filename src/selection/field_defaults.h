#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "selection/firm_context.h"
#include "selection/job_in_hand.h"

namespace quillmark {

/// The value that a field starts with, or its choices, separated by ";": today for dates, fixed lists, else
/// the firm's default. The marker itself where there is none. A job that comes from a template takes no firm
/// defaults.
std::string FieldDefault(std::string_view marker, const JobInHand& hand, const FirmContext& firm);

/// Whether a default is a list of choices.
bool IsChoiceList(std::string_view value);
/// The first of a list of choices, trimmed; the value itself if it is no list.
std::string_view FirstChoice(std::string_view value);

}  // namespace quillmark
