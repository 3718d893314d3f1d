#pragma once

#include <string>
#include <string_view>

#include "core/job.h"

/// What the smart rules share.
namespace quillmark::rules {

/// Sets the field to its shown form where that differs from what it holds; the rule runs again over it.
void Reshape(Job& job, int n, std::string_view shown);

/// Part k of field n: the value, or the part's own marker while the field is unfilled.
void SetPart(Job& job, int k, int n, std::string_view value, std::string_view marker);

}  // namespace quillmark::rules
