#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/custom_forms.h"

/// All markers that a form can use.
namespace quillmark {

struct MarkerRow {
    FormMarker marker;
    std::string description;  ///< begins with a blank
    bool IsUserField() const { return marker.field == 0; }
};

/// The last row of the list as it is shown.
inline constexpr std::string_view kAddCustomField = "** ADD CUSTOM FIELD **";

/// The markers in the order in which they are shown and looked for: the plain ones by field number, those of
/// derived values, the user-defined ones of this folder. Throws FileError.
std::vector<MarkerRow> MarkerRows(const std::filesystem::path& folder);

/// Why a text, trimmed, is no name for a user-defined field: it is too long or holds something other than
/// letters, digits and single blanks between words.
bool IsFieldName(std::string_view name);
/// Whether a marker of this name is there already, in whatever letter case.
bool HasMarker(const std::vector<MarkerRow>& rows, std::string_view marker);

/// Adds a user-defined field, and takes one out. Throw FileError; the file is then as it was.
void AddUserField(const std::filesystem::path& folder, std::string_view name);
void RemoveUserField(const std::filesystem::path& folder, std::string_view name);

}  // namespace quillmark
