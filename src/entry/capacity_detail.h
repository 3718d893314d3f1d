#pragma once

#include <optional>
#include <string_view>

#include "core/job.h"
#include "platform/dialogs.h"

/// A capacity picked for the fiduciary that says too little by itself: an executor needs a decedent.
namespace quillmark {

struct CapacityDetail {
    int n;
    std::string_view name;  ///< as the question has it, such as "DECEDENT"
};

/// The field that goes with a pick of [fiduciary type], if the job needs that field.
std::optional<CapacityDetail> CapacityDetailOf(std::string_view fiduciaryType, const Job& job);

/// The box that asks for it, with the field's present value proposed. The pick may not be completed without
/// an answer; the empty one also makes the field unfilled, a cancelled box leaves it as it was.
InputDialog DetailQuestion(const CapacityDetail& detail, const Job& job);

}  // namespace quillmark
