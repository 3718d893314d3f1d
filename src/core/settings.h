#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// What stands at the foot of every page.
enum class Footers : char {
    None = 'N',
    Description = 'Y',  ///< the document's description
    LawFirm = 'P',      ///< the same with the law firm's name
};

/// The program's settings, kept in "DBasePath.txt" in the program folder.
struct Settings {
    std::string databasePath = "data\\";  ///< as typed; `Folders` makes a path of it
    bool wordAutoSave = false;            ///< save created documents in the user's documents folder
    bool documentAlerts = true;           ///< show notices about chosen and created documents
    bool bestFitPageView = true;          ///< zoom created documents to the page
    Footers footers = Footers::Description;
    bool paraPro = false;    ///< a separate data folder for each law firm
    bool properCase = true;  ///< capitals at the beginnings of words, as one types
    bool leapYears = true;   ///< count the additional day in prorations

    bool operator==(const Settings&) const = default;
};

/// The settings of a file's bytes: eight records of one text each, in the order of `Settings`. Answers are
/// read in any case; records that are missing, and answers that are none of the possible ones, leave the
/// default. Throws RecordError (`file` is its name for the message).
Settings SettingsOfRecords(const std::string& file, std::string_view bytes);
std::string SettingsRecords(const Settings& settings);

/// A file that is missing gives the defaults. Throws FileError and RecordError.
Settings ReadSettings(const std::filesystem::path& programFolder);
/// Where the settings of a program folder stand.
std::filesystem::path SettingsFile(const std::filesystem::path& programFolder);
inline constexpr std::size_t kSettingsLimit = 64 * 1024;  ///< bytes of the largest settings file

/// What stands after a change from `before` to `mine` of settings that somebody else has changed to `present`
/// meanwhile: each setting that only one has changed is as changed. `contested` gets the names of those that
/// both have changed to different values; they are as in `mine`.
Settings MergedSettings(const Settings& before, const Settings& mine, const Settings& present,
                        std::vector<std::string>& contested);

}  // namespace quillmark
