#include "session/recent_jobs.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>

#include "core/job_file.h"
#include "core/job_folder.h"
#include "platform/append_file.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMost = 50;
constexpr std::size_t kLimit = 1 << 20;

}  // namespace

RecentJobList::RecentJobList(const fs::path& folder, const fs::path& programFolder)
    : file_(folder / fmt::format("recent-{:016x}.txt",
                                 std::hash<std::string>{}(TextOf(fs::weakly_canonical(programFolder))))) {}

std::vector<std::string> RecentJobList::Read() const {
    std::vector<std::string> names;
    try {
        std::error_code none;
        if (!fs::exists(file_, none)) return names;
        const std::string bytes = ReadFile(file_, kLimit);
        for (std::size_t begin = 0; begin < bytes.size();) {
            const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
            if (end > begin) names.push_back(bytes.substr(begin, end - begin));
            begin = end + 1;
        }
    } catch (const FileError&) {
        names.clear();
    }
    return names;
}

void RecentJobList::Touch(const std::string& name) {
    std::vector<std::string> names = Read();
    if (!names.empty() && names.front() == name) return;
    std::erase(names, name);
    names.insert(names.begin(), name);
    if (names.size() > kMost) names.resize(kMost);
    std::string bytes;
    for (const std::string& each : names) bytes += each + "\n";
    try {
        MakeOwnFolder(file_.parent_path());
        ReplaceFile(file_, bytes);
    } catch (const FileError&) {
        // The list stays as it was.
    }
}

std::vector<RecentJob> RecentJobList::Jobs(const Folders& folders) const {
    std::vector<RecentJob> jobs;
    for (std::string& name : Read()) {
        std::error_code gone;
        const auto written = fs::last_write_time(JobFilePath(folders, name), gone);
        if (gone) continue;
        const auto time = std::chrono::file_clock::to_sys(written);
        jobs.push_back({std::move(name), std::chrono::floor<std::chrono::seconds>(time)});
    }
    return jobs;
}

}  // namespace quillmark
