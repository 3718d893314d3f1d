#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmark {

/// The firm's own details, kept apart from any job in "defaults.fld". A value may hold several choices
/// separated by ";".
class FirmDefaults {
 public:
    /// The value of a field by its marker; the marker itself if the firm has set none.
    std::string ValueOf(std::string_view marker) const;

    /// An empty value, or one that is a marker, takes the entry away.
    void Set(std::string_view marker, std::string_view value);

    bool IsEmpty() const { return rows_.empty(); }

    /// Marker and value in the order of the file.
    const std::vector<std::pair<std::string, std::string>>& Rows() const { return rows_; }

 private:
    std::vector<std::pair<std::string, std::string>> rows_;
};

/// The row of the settings list that is also the file's record: marker, ":", blanks up to character 29,
/// value.
std::string FirmDefaultRow(std::string_view marker, std::string_view value);

/// The defaults of a file's bytes, one text a record. Throws RecordError (`file` is its name for the
/// message).
FirmDefaults FirmDefaultsOfRecords(const std::string& file, std::string_view bytes);
/// Throws UnencodableError for a value that data files cannot hold.
std::string FirmDefaultsRecords(const FirmDefaults& defaults);

/// A file that is missing gives no defaults. Throws FileError and RecordError.
FirmDefaults ReadFirmDefaults(const std::filesystem::path& file);
inline constexpr std::size_t kFirmDefaultsLimit = 1024 * 1024;  ///< bytes of the largest file

/// What stands after a change from `before` to `mine` of defaults that somebody else has changed to `present`
/// meanwhile: each value that only one has changed is as changed. `contested` gets the markers of those that
/// both have changed to different values; they are as in `mine`.
FirmDefaults MergedDefaults(const FirmDefaults& before, const FirmDefaults& mine, FirmDefaults present,
                            std::vector<std::string>& contested);

}  // namespace quillmark
