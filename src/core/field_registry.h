#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quillmark {

class Job;

/// Fields are numbered from 1 to 240; the numbers are part of the job file format.
inline constexpr int kFields = 240;

/// The field's marker, such as "[seller 1 name]": its row label, and its text while it has no value. Empty
/// for numbers without one; the retired number 172 has "[]". Both kinds take no row and are never saved.
std::string_view FieldMarker(int n);

/// The sort key that places the field in the grid and, by its thousands, in a group; 0 for no such field.
float FieldSortKey(int n);

/// The help text of a field (0 to 213, 240) or of a derived value (k*1000+n), beginning with a blank.
/// Five of them depend on the job.
std::string FieldDescription(int n, const Job& job);

/// The field with this marker, 0 if there is none. "[]" names no field.
int FieldOfMarker(std::string_view marker);

/// A derived value that custom documents can name.
struct DerivedField {
    int number;  ///< k*1000 + parent field
    std::string_view marker;
    std::string_view description;
};
/// The 24 derived values with markers, in the order of their parents.
std::span<const DerivedField> DerivedFields();

/// The marker of derived value k*1000+n, empty for one that custom documents cannot name.
std::string_view DerivedMarker(int number);

/// The first lines of the 19 addresses. The second line of address n is field n+1, and both feed the derived
/// values of n.
std::span<const int> AddressFields();

}  // namespace quillmark
