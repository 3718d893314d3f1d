#include "platform/temporary_name.h"

#include <fmt/format.h>

#include <chrono>
#include <mutex>
#include <optional>
#include <random>
#include <set>

#include "platform/paths.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kPrefix = ".quillmark-";
constexpr std::string_view kSuffix = ".tmp";
/// A file just made is not held yet; where files cannot be held at all, a writer is given a day.
constexpr std::chrono::seconds kBeforeHeld{10};
constexpr std::chrono::hours kLongestWriting{24};

bool IsTemporary(const fs::directory_entry& entry) {
    const std::string name = TextOf(entry.path().filename());
    std::error_code error;
    return name.starts_with(kPrefix) && name.ends_with(kSuffix) && entry.is_regular_file(error);
}

/// Whether its writer is gone, `age` after it was last written.
bool IsLeftover(const fs::path& file, fs::file_time_type::duration age) {
    const std::optional<bool> isHeld = IsBeingWritten(file);
    return isHeld ? !*isHeld && age >= kBeforeHeld : age >= kLongestWriting;
}

bool IsFirstVisit(const fs::path& folder) {
    static std::mutex guard;
    static std::set<fs::path> visited;
    const std::lock_guard lock(guard);
    return visited.insert(folder).second;
}

}  // namespace

std::string TemporaryName() {
    std::random_device random;
    return fmt::format("{}{:08x}{:08x}{}", kPrefix, random(), random(), kSuffix);
}

void SweepLeftovers(const fs::path& present) {
    std::error_code error;
    const fs::path folder = fs::absolute(present, error).parent_path();
    const auto now = fs::last_write_time(present, error);
    if (error || !IsFirstVisit(folder)) return;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        if (!IsTemporary(*at)) continue;
        std::error_code unreadable;
        const auto written = fs::last_write_time(at->path(), unreadable);
        if (!unreadable && IsLeftover(at->path(), now - written)) fs::remove(at->path(), unreadable);
    }
}

}  // namespace quillmark
