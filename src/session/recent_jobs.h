#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/folders.h"

namespace quillmark {

struct RecentJob {
    std::string name;
    std::chrono::sys_seconds saved;  ///< when its file was last written
};

/// The names of the jobs that a user last opened or saved, in a file of that user's own. What the disk
/// refuses is let go: the list is a convenience.
class RecentJobList {
 public:
    RecentJobList(const std::filesystem::path& folder, const std::filesystem::path& programFolder);

    /// This one is the newest from now on.
    void Touch(const std::string& name);
    /// Newest first; without those that have no file any more.
    std::vector<RecentJob> Jobs(const Folders& folders) const;

 private:
    std::vector<std::string> Read() const;

    std::filesystem::path file_;
};

}  // namespace quillmark
