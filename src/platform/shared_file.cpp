#include "platform/shared_file.h"

#include <fmt/format.h>

#include "platform/atomic_file.h"
#include "platform/shared_lock.h"

namespace quillmark {

namespace {

std::optional<std::string> Present(const std::filesystem::path& file, std::size_t limit) {
    try {
        return ReadFile(file, limit);
    } catch (const FileError& failure) {
        if (failure.kind != FileError::Kind::NotFound) throw;
        return std::nullopt;
    }
}

/// Out of sight among the files that a user knows.
std::filesystem::path LockOf(const std::filesystem::path& file) {
    std::filesystem::path name = ".";
    name += file.filename();
    name += ".lok";
    return file.parent_path() / name;
}

}  // namespace

void ChangeSharedFile(
    const std::filesystem::path& file, std::size_t limit,
    const std::function<std::optional<std::string>(const std::optional<std::string>&)>& change,
    const WaitForFile& wait) {
    const SharedLock lock(LockOf(file), wait);
    const std::optional<std::string> content = change(Present(file, limit));
    if (!content) return;
    if (content->size() > limit)
        throw FileError(file, FileError::Kind::TooLarge, "would be larger than any file of this kind");
    RetriedWhileInUse(wait, [&] { ReplaceFile(file, *content); });
}

std::string LastChangeOf(const std::filesystem::path& file) {
    const auto by = LastHolderOf(LockOf(file));
    if (!by) return "changed by another user";
    return fmt::format("changed by {} at {}, {}", by->user, by->computer, by->since);
}

}  // namespace quillmark
