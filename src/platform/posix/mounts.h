#pragma once

#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

#include "platform/drives.h"

namespace quillmark {

/// The drives among the system's mounts, a text of the form of /proc/self/mounts. A mount is a drive when its
/// file system is one of a network, when it lies where people's media are mounted (/media, /run/media, /mnt),
/// or when `isRemovable` says so of its device. `placesIn` gives the network places in the folder of a
/// desktop's own mounts.
std::vector<Drive> DrivesAmong(
    std::string_view mounts, const std::function<bool(std::string_view device)>& isRemovable,
    const std::function<std::vector<std::filesystem::path>(const std::filesystem::path&)>& placesIn);

}  // namespace quillmark
