#include "platform/files.h"

#include <string>
#include <system_error>

#include "platform/atomic_file.h"
#include "platform/file_step.h"
#include "platform/paths.h"

namespace quillmark {

namespace fs = std::filesystem;

void RemoveFile(const fs::path& file) {
    BeforeStep(FileStep::Remove, file);
    std::error_code error;
    const bool removed = fs::remove(file, error);
    if (error) throw FileError(file, error);
    if (removed) FlushFolder(file.parent_path());
}

void MoveOnto(const fs::path& file, const fs::path& newFile) {
    BeforeStep(FileStep::Rename, file);
    std::error_code error;
    fs::rename(file, newFile, error);
    if (error) throw FileError(file, error);
    FlushFolder(newFile.parent_path());
    if (file.parent_path() != newFile.parent_path()) FlushFolder(file.parent_path());
}

void MakeFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::is_directory(folder, error)) return;
    BeforeStep(FileStep::MakeFolder, folder);
    fs::create_directory(folder, error);
    if (error) throw FileError(folder, error);
    FlushFolder(folder.parent_path());
}

namespace {

template <class IsFree>
fs::path FirstFree(const fs::path& wanted, IsFree isFree) {
    fs::path free = wanted;
    for (int n = 2; !isFree(free); ++n)
        free.replace_filename(
            PathOf(TextOf(wanted.stem()) + " (" + std::to_string(n) + ")" + TextOf(wanted.extension())));
    return free;
}

}  // namespace

fs::path ClaimedName(const fs::path& wanted) {
    return FirstFree(wanted, ClaimName);
}

fs::path FreeName(const fs::path& wanted) {
    std::error_code none;
    return FirstFree(wanted, [&](const fs::path& file) { return !fs::exists(file, none); });
}

void GiveUpClaim(const fs::path& file) {
    std::error_code unreadable;
    if (fs::is_empty(file, unreadable) && !unreadable) fs::remove(file, unreadable);
}

}  // namespace quillmark
