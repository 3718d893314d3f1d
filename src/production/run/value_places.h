#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/job.h"

/// Where the values of a job's fields stand in a document that was typed from them. The document is typed a
/// second time from a job in which the letters and digits of each value are a sign of its field: what comes
/// out at a place tells whose value stands there, also when it is raised, cut or joined to another.
namespace quillmark {

/// A stretch of the document's text that one field gave it, in code points.
struct ValuePlace {
    int n = 0;               ///< the field; 0 for a marker that no field has
    std::size_t at = 0;      ///< from the start of the text
    std::size_t length = 0;  ///< at least 1
    bool isOpen = false;     ///< a marker: the field has no value

    bool operator==(const ValuePlace&) const = default;
};

/// The job with signs for values. Values that documents do not merely type but look into (amounts, choices,
/// towns) stay as they are.
Job WithSigns(const Job& job);

/// The places in order, none over another. `signs` is the same document typed from `WithSigns`. Where the two
/// do not correspond, the values are searched for instead.
std::vector<ValuePlace> FindValues(const Job& job, std::u32string_view text, std::u32string_view signs);

/// The markers that a document may show: of this job's fields and derived values without a value, of its
/// user-defined fields, and of any field, whose marker a form may hold though the job has a value for it.
class OpenMarkers {
 public:
    explicit OpenMarkers(const Job& job);

    /// Those in a text, in order, in whatever case. Brackets that a form prints are none.
    std::vector<ValuePlace> In(std::u32string_view text) const;
    /// The field of a marker with its brackets, in small letters; 0 for one that no field has; nothing for
    /// what is no marker.
    std::optional<int> FieldOf(const std::u32string& marker) const;

 private:
    std::map<std::u32string, int> markers_;
};

/// Whether every character of the one text has its counterpart in the other.
bool Correspond(std::u32string_view text, std::u32string_view signs);

}  // namespace quillmark
