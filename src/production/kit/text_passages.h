#pragma once

#include <span>
#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

namespace quillmark {

/// A piece of a text document that C++ types, under the name by which the text calls it: `{price table}`.
/// It finds the insertion point where the text stands and leaves the characters' and the paragraph's format
/// as it found them.
struct Passage {
    std::string_view name;
    void (*type)(const JobValues& job, Typist& type);
};
using Passages = std::span<const Passage>;

/// The passages that every text may use.
Passages CommonPassages();

}  // namespace quillmark
