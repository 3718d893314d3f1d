#ifndef _WIN32

#include "platform/drives.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "platform/paths.h"
#include "platform/posix/mounts.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

constexpr std::array<std::string_view, 12> kNetworks = {"nfs",   "nfs4",       "cifs",        "smb3",
                                                        "smbfs", "9p",         "afpfs",       "ncpfs",
                                                        "davfs", "fuse.sshfs", "fuse.rclone", "fuse.davfs2"};
/// The places that a person has opened in the desktop's file manager.
constexpr std::string_view kDesktopsMounts = "fuse.gvfsd-fuse";

/// Blanks and their like stand as a backslash and three octal digits.
std::string Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\' && at + 3 < text.size()) {
            plain +=
                static_cast<char>((text[at + 1] - '0') * 64 + (text[at + 2] - '0') * 8 + text[at + 3] - '0');
            at += 3;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

/// Each of these places itself, and the media right in it or, by the user's name, one folder further down.
bool IsAmongPeoplesMedia(const fs::path& folder) {
    const fs::path above = folder.parent_path();
    return above == "/mnt" || folder == "/mnt" || above == "/media" || above.parent_path() == "/media" ||
           above.parent_path() == "/run/media";
}

/// What the kernel says of a block device, or of the disk that it is a part of.
bool IsRemovable(std::string_view device) {
    if (!device.starts_with("/dev/")) return false;
    std::error_code none;
    const fs::path entry = fs::canonical(fs::path("/sys/class/block") / fs::path(device).filename(), none);
    for (const fs::path& disk : {entry, entry.parent_path()}) {
        char removable = '0';
        if (std::ifstream(disk / "removable") >> removable) return removable == '1';
    }
    return false;
}

std::vector<fs::path> FoldersIn(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code failed;
    for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed))
        found.push_back(at->path());
    std::ranges::sort(found);
    return found;
}

}  // namespace

std::vector<Drive> DrivesAmong(std::string_view mounts,
                               const std::function<bool(std::string_view)>& isRemovable,
                               const std::function<std::vector<fs::path>(const fs::path&)>& placesIn) {
    std::vector<Drive> drives;
    const auto add = [&](const fs::path& folder) {
        const Drive drive{TextOf(folder), folder};
        if (std::ranges::find(drives, drive) == drives.end()) drives.push_back(drive);
    };
    std::istringstream lines{std::string(mounts)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string device, folder, kind;
        if (!(words >> device >> folder >> kind)) continue;
        folder = Unescaped(folder);
        if (folder == "/") continue;
        if (kind == kDesktopsMounts)
            std::ranges::for_each(placesIn(folder), add);
        else if (std::ranges::find(kNetworks, kind) != kNetworks.end() || IsAmongPeoplesMedia(folder) ||
                 isRemovable(device))
            add(folder);
    }
    return drives;
}

std::vector<Drive> MountedDrives() {
    std::ifstream mounts("/proc/self/mounts");
    const std::string text{std::istreambuf_iterator<char>(mounts), {}};
    return DrivesAmong(text, IsRemovable, FoldersIn);
}

}  // namespace quillmark

#endif
