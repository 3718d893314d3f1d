#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/folders.h"
#include "tools/backup/copy_meter.h"

namespace quillmark {

/// The folder of a backup that holds the data.
inline constexpr std::string_view kBackupData = "data";
/// The files beside it.
inline constexpr std::array<std::string_view, 5> kBackupFiles = {
    "config.txt", "DBasePath.txt", "defaults.fld", "package.def", "parapro.dir"};
/// What begins a name of the program's own among other files, for the time of its work.
inline constexpr std::string_view kOwnPrefix = ".quillmark-";

enum class BackupMode {
    Admin,  ///< the program's own folder
    User,   ///< the data folder that the settings name, and the folder above it
};

/// Where the office keeps what a backup holds.
struct BackupHome {
    std::filesystem::path data;   ///< what the backup has as `data`
    std::filesystem::path files;  ///< where the five files lie
    /// Custom forms beside those of the data folder, whose own come first; empty for none.
    std::filesystem::path moreForms = {};
};

/// Whether the data folder is the program's own folder or its `data`.
bool HasOwnData(const Folders& folders);
BackupHome HomeOf(BackupMode mode, const Folders& folders);

struct CopyItem {
    std::filesystem::path from;
    std::filesystem::path to;  ///< below the folder of the copy
    std::uintmax_t bytes = 0;
    std::filesystem::file_time_type written = {};
};

struct CopyList {
    std::vector<std::filesystem::path>
        folders;  ///< below the folder of the copy, each after the one it is in
    std::vector<CopyItem> items;
};

/// Whether a lock that says only that somebody is at work: it tells nothing about the past.
bool IsLock(const std::filesystem::path& file);

/// What a backup of the office is to hold. `leavesOut` names folders that are passed over. Throws FileError,
/// NotFound where there is no data folder; a missing one of the five files is none.
CopyList ListOfHome(const BackupHome& home,
                    const std::function<bool(const std::filesystem::path&)>& leavesOut, CopyMeter& meter);
/// What a backup holds. Throws FileError as above.
CopyList ListOfBackup(const std::filesystem::path& backup, CopyMeter& meter);

/// "340 KB", "12.5 MB".
std::string SizeText(std::uintmax_t bytes);

/// Copies one after the other to the paths that `placeOf` gives, flushes the folders `media` around them, and
/// reads every copy back. Throws FileError, also where a copy is not what was written.
void CopyAndCompare(const std::vector<CopyItem>& items,
                    const std::function<std::filesystem::path(std::size_t)>& placeOf,
                    const std::vector<std::filesystem::path>& media, CopyMeter& meter);

}  // namespace quillmark
