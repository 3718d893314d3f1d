#pragma once

#include <filesystem>
#include <string_view>

#include "core/settings.h"

namespace quillmark {

/// The folders of a run, as absolute paths.
struct Folders {
    std::filesystem::path ProgramFolder;      ///< settings, firm defaults, packages
    std::filesystem::path DatabasePath;       ///< the firm's data, perhaps shared with other computers
    std::filesystem::path JobFolder;          ///< job files and templates
    std::filesystem::path CustomFormsFolder;  ///< the firm's own forms
    std::filesystem::path ImagesFolder;       ///< pictures of fields
    std::filesystem::path firmDefaultsFile;   ///< "defaults.fld"
};

/// The folders that the settings name. In Para-Pro mode `client` is the law firm being served: job files,
/// pictures and firm defaults are then in "data\CLIENT\" below the program folder; empty before one has
/// been chosen.
Folders FoldersOf(const std::filesystem::path& programFolder, const Settings& settings,
                  std::string_view client = {});

}  // namespace quillmark
