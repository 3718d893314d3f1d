#pragma once

/// The fields of a job by name. The numbers are those of the job files; what is known of each field stands
/// beside its name in core/fields.inc.
namespace quillmark::field {

enum Field : int {
#define FIELD(number, name, marker, sortKey, description) name = (number),
#include "core/fields.inc"
#undef FIELD
};

/// Part k (1 to 4) of a field, a value that its smart rule derives, in the numbering of `Job::D`.
constexpr int Part(int k, Field n) {
    return k * 1000 + n;
}

}  // namespace quillmark::field
