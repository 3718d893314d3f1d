#include "core/folders.h"

#include <string>

#include "platform/paths.h"

namespace quillmark {
namespace {

constexpr std::string_view kLocalData = "data\\";

}  // namespace

Folders FoldersOf(const std::filesystem::path& programFolder, const Settings& settings,
                  std::string_view client) {
    Folders folders;
    folders.ProgramFolder = std::filesystem::absolute(programFolder);
    const std::string_view stored = settings.databasePath.empty() ? kLocalData : settings.databasePath;
    folders.DatabasePath = PathOfStored(stored, folders.ProgramFolder);
    folders.JobFolder = folders.DatabasePath;
    if (settings.paraPro && !client.empty()) {
        folders.JobFolder = PathOfStored(std::string(kLocalData).append(client), folders.ProgramFolder);
    }
    folders.CustomFormsFolder = FindExisting(folders.DatabasePath / "customforms");
    folders.ImagesFolder = FindExisting(folders.JobFolder / "images");
    const auto& defaultsFolder = settings.paraPro ? folders.JobFolder : folders.ProgramFolder;
    folders.firmDefaultsFile = FindExisting(defaultsFolder / "defaults.fld");
    return folders;
}

}  // namespace quillmark
