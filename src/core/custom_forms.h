#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// The firm's own forms as they lie in `CustomFormsFolder`: each a file of the word processor with the list
/// of its markers in a ".inf" file of the same name, and "userfields.lst", the names of user-defined fields.
namespace quillmark {

/// A marker that a form holds, and where its value comes from.
struct FormMarker {
    std::string marker;  ///< with its brackets
    int field = 0;       ///< 1 to 240, or 0 for a user-defined field
    int form = 0;        ///< 0 for the field's plain value, 1 to 4 for a derived one
    bool operator==(const FormMarker&) const = default;
};

/// The forms' file names in order of name, as the user of a system to whom case makes no difference sorts
/// them. Lists of markers and fields, temporary and hidden files are none. Empty for a folder that is not
/// there.
std::vector<std::string> FormFiles(const std::filesystem::path& folder);

/// A file's name up to its last dot: what the form is called in the lists.
std::string_view FormName(std::string_view file);
/// The file's ending from its last dot on, in small letters; empty without one.
std::string FormExtension(std::string_view file);

/// The first of the forms' files that has this name; empty if there is none. Where no name is spelled so, one
/// that differs in case alone is meant.
std::string FormFileOf(const std::filesystem::path& folder, std::string_view name);

/// Where the markers of the form of this name are listed; whether there is such a file or not. Throws
/// FileError for what is no file's name.
std::filesystem::path MarkerFile(const std::filesystem::path& folder, std::string_view name);
/// Reads a list of markers. Throws FileError, and RecordError for what is no such list.
std::vector<FormMarker> ReadFormMarkers(const std::filesystem::path& file);
/// The bytes of such a list. Throws UnencodableError.
std::string FormMarkerRecords(const std::vector<FormMarker>& markers);

/// The file of user-defined fields, and what it names: without brackets, in the order in which they were
/// added. Throws FileError where there is a file that cannot be read.
std::filesystem::path UserFieldFile(const std::filesystem::path& folder);
std::vector<std::string> UserFieldNames(const std::filesystem::path& folder);

}  // namespace quillmark
