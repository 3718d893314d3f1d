#include "tools/backup/restore.h"

#include <algorithm>
#include <map>
#include <set>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/file_lock.h"
#include "platform/paths.h"
#include "tools/backup/backup.h"
#include "tools/backup/drive_lock.h"
#include "tools/backup/replacement.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr int kLongestWait = 200;               ///< pauses of the lock: ten seconds
constexpr std::chrono::seconds kClockSteps{2};  ///< times on a memory stick are even seconds

bool Exists(const fs::path& path) {
    std::error_code none;
    return fs::exists(fs::symlink_status(path, none));
}

/// The names in folders, each folder read once.
class Names {
 public:
    /// The entry that a user means by the name; the name itself where there is none.
    fs::path Find(const fs::path& folder, const fs::path& name) {
        const Folder& entries = Read(folder);
        if (entries.exact.contains(name)) return name;
        const auto found = entries.byCapitals.find(UpperCase(TextOf(name)));
        return found == entries.byCapitals.end() ? name : found->second;
    }

 private:
    struct Folder {
        std::set<fs::path> exact;
        std::map<std::string, fs::path> byCapitals;
    };

    const Folder& Read(const fs::path& path) {
        const auto [entry, isNew] = folders_.try_emplace(path);
        std::error_code error;
        if (!isNew) return entry->second;
        for (fs::directory_iterator at(path, error), end; !error && at != end; at.increment(error)) {
            const fs::path name = at->path().filename();
            entry->second.exact.insert(name);
            entry->second.byCapitals.emplace(UpperCase(TextOf(name)), name);
        }
        return entry->second;
    }

    std::map<fs::path, Folder> folders_;
};

/// Where the things of a backup stand at home.
class Places {
 public:
    explicit Places(const BackupHome& home) : home_(home) {}

    /// `inBackup` is below the backup's folder.
    fs::path Of(const fs::path& inBackup) {
        auto part = inBackup.begin();
        const bool isData = UpperCase(TextOf(*part)) == "DATA" && std::next(part) != inBackup.end();
        fs::path place = home_.files;
        if (isData) {
            place = home_.data;
            ++part;
        }
        for (; part != inBackup.end(); ++part) place /= names_.Find(place, *part);
        return place;
    }

 private:
    const BackupHome& home_;
    Names names_;
};

/// While the address books are replaced nobody adds to the ones that go.
std::optional<FileLock> HoldAddressBooks(const BackupHome& home) {
    const fs::path file = FindExisting(home.data / "Access.lok");
    if (!Exists(file)) return std::nullopt;
    return FileLock(file, [pauses = 0]() mutable { return ++pauses < kLongestWait; });
}

/// A lock that others may be holding is never replaced.
bool Stays(const fs::path& target) {
    return IsLock(target) && Exists(target);
}

}  // namespace

void RestoreBackup(const Drive& drive, const BackupHome& home, const CopyWatch& watch) {
    const DriveLock lock(drive);
    CopyMeter meter(watch);
    meter.Begin(CopyProgress::Stage::Looking);
    CopyList list = ListOfBackup(BackupFolderOf(drive), meter);
    Replacement replacement(home.data, home.files);
    Places places(home);
    std::erase_if(list.items, [&](const CopyItem& item) { return Stays(places.Of(item.to)); });
    for (const fs::path& folder : list.folders) replacement.AddFolder(places.Of(folder));
    std::vector<fs::path> fresh;
    for (const CopyItem& item : list.items) fresh.push_back(replacement.Add(places.Of(item.to)));
    CopyAndCompare(
        list.items, [&](std::size_t i) { return fresh[i]; }, {home.data, home.files}, meter);
    meter.Begin(CopyProgress::Stage::Replacing);
    const auto held = HoldAddressBooks(home);
    replacement.Replace([&] { meter.FileDone(); });
}

RestorePreview PreviewOfRestore(const Drive& drive, const BackupHome& home) {
    const CopyWatch none;
    CopyMeter meter(none);
    Places places(home);
    RestorePreview preview;
    for (const CopyItem& item : ListOfBackup(BackupFolderOf(drive), meter).items) {
        const fs::path target = places.Of(item.to);
        const bool isJob =
            item.to.parent_path() == PathOf(kBackupData) && UpperCase(TextOf(item.to.extension())) == ".DAT";
        preview.jobs += isJob ? 1 : 0;
        ++preview.files;
        preview.bytes += item.bytes;
        std::error_code missing;
        const auto written = fs::last_write_time(target, missing);
        if (missing || Stays(target)) continue;
        ++preview.replaced;
        preview.newer += written > item.written + kClockSteps ? 1 : 0;
    }
    return preview;
}

}  // namespace quillmark
