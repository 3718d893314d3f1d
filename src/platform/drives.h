#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quillmark {

/// A place that can be carried away, or that lies on another computer.
struct Drive {
    std::string name;            ///< "E:"; where there are no letters, the folder that it is mounted on
    std::filesystem::path root;  ///< where its files begin; not there while it holds no medium

    bool operator==(const Drive&) const = default;
};

/// The drives that are there at this moment, in the system's order: removable volumes and network places that
/// are mounted; on Windows also fixed disks beside the system's own, as many a disk that is carried around
/// calls itself fixed.
std::vector<Drive> MountedDrives();

}  // namespace quillmark
