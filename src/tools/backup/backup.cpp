#include "tools/backup/backup.h"

#include <fmt/format.h>

#include "platform/atomic_file.h"
#include "platform/medium.h"
#include "platform/paths.h"
#include "tools/backup/drive_lock.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kFolder = "QUILLMARK BACKUP";

bool IsFolder(const fs::path& path) {
    std::error_code none;
    return fs::is_directory(path, none);
}

void RemoveAll(const fs::path& folder) {
    std::error_code error;
    fs::remove_all(folder, error);
    if (error) throw FileError(folder, error);
}

void Rename(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    if (error) throw FileError(from, error);
}

/// A drive's backup and what stands beside it while a new one is made.
struct Site {
    explicit Site(const Drive& drive)
        : root(drive.root), backup(BackupFolderOf(drive)), fresh(Beside(".new")), former(Beside(".old")) {}

    fs::path Beside(const char* ending) const {
        fs::path path = backup;
        path += ending;
        return path;
    }

    fs::path root;
    fs::path backup;
    fs::path fresh;  ///< being written; whole only once it has been compared
    fs::path
        former;  ///< whole: it stands aside for a moment where two folders cannot change names in one step
};

void Settle(const Site& site) {
    if (!IsFolder(site.backup) && IsFolder(site.former)) Rename(site.former, site.backup);
    RemoveAll(site.former);
    RemoveAll(site.fresh);
}

void RequireRoom(const Site& site, std::uintmax_t bytes) {
    std::error_code error;
    const fs::space_info space = fs::space(site.root, error);
    if (error || space.available >= bytes) return;
    throw FileError(
        site.root, FileError::Kind::DiskFull,
        fmt::format("{}: {} are needed{}, {} are free",
                    std::make_error_code(std::errc::no_space_on_device).message(), SizeText(bytes),
                    IsFolder(site.backup) ? " beside the backup that is there" : "",
                    SizeText(space.available)));
}

void MakeFolders(const fs::path& root, const std::vector<fs::path>& folders) {
    std::error_code error;
    fs::create_directory(root, error);
    for (auto folder = folders.begin(); !error && folder != folders.end(); ++folder)
        fs::create_directory(root / *folder, error);
    if (error) throw FileError(root, error);
}

/// From here on the new backup is the one that stands.
void TakePlace(const Site& site) {
    if (!IsFolder(site.backup)) return Rename(site.fresh, site.backup);
    if (ExchangeFolders(site.fresh, site.backup)) return;
    Rename(site.backup, site.former);
    try {
        Rename(site.fresh, site.backup);
    } catch (const FileError&) {
        Rename(site.former, site.backup);
        throw;
    }
}

}  // namespace

fs::path BackupFolderOf(const Drive& drive) {
    return FindExisting(drive.root / PathOf(kFolder));
}

std::string BackupPathText(const Drive& drive) {
    const bool hasLetter = drive.name.ends_with(':');
    return fmt::format("{}{}{}{}", drive.name, hasLetter ? "\\" : "/", kFolder, hasLetter ? "\\" : "/");
}

bool HasBackup(const Drive& drive) {
    return IsFolder(BackupFolderOf(drive));
}

void MakeBackup(const BackupHome& home, const Drive& drive, const CopyWatch& watch) {
    const Site site(drive);
    const DriveLock lock(drive);
    Settle(site);
    CopyMeter meter(watch);
    meter.Begin(CopyProgress::Stage::Looking);
    // Where the data lie on the drive itself, a backup is no part of the next one.
    const CopyList list = ListOfHome(
        home,
        [&](const fs::path& folder) {
            std::error_code none;
            return fs::equivalent(folder, site.backup, none);
        },
        meter);
    RequireRoom(site, meter.Now().bytes);
    try {
        MakeFolders(site.fresh, list.folders);
        CopyAndCompare(
            list.items, [&](std::size_t i) { return site.fresh / list.items[i].to; }, {site.fresh}, meter);
        meter.Begin(CopyProgress::Stage::Replacing);
        TakePlace(site);
    } catch (...) {
        std::error_code none;
        fs::remove_all(site.fresh, none);
        throw;
    }
    FlushMedium(site.root);
    std::error_code none;
    fs::remove_all(site.fresh, none);
    fs::remove_all(site.former, none);
}

void SettleBackup(const Drive& drive) {
    const Site site(drive);
    std::error_code none;
    const bool hasLock = fs::exists(DriveLock::FileOn(drive), none);
    if (!IsFolder(site.fresh) && !IsFolder(site.former) && !hasLock) return;
    try {
        const DriveLock lock(drive);
        Settle(site);
    } catch (const FileError&) {
        // It is tried again before the next backup, which then says so.
    }
}

}  // namespace quillmark
