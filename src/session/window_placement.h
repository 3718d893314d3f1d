#pragma once

#include <filesystem>
#include <optional>

namespace quillmark {

/// Where the frame window was, kept in "mdispec.ini" in the program folder: one record of six numbers.
struct WindowPlacement {
    double height = 0;  ///< twips, as left, top and width
    double left = 0;
    double top = 0;
    double width = 0;
    double scale = 1;   ///< of the display
    double slider = 0;  ///< brightness

    bool operator==(const WindowPlacement&) const = default;
};

/// Nothing without a file, or from one that holds no placement; an older file lacks scale and slider.
std::optional<WindowPlacement> ReadWindowPlacement(const std::filesystem::path& programFolder);
/// Throws FileError.
void WriteWindowPlacement(const std::filesystem::path& programFolder, const WindowPlacement& placement);

}  // namespace quillmark
