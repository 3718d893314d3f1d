#include "tools/backup/copy_list.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/medium.h"
#include "platform/paths.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

/// Deeper than any office sorts its files: a folder that is linked into itself.
constexpr int kDeepest = 32;

/// Files that are there only while somebody works: the program's own, and a word processor's marks of a form
/// that is open.
bool IsPassing(const fs::path& name) {
    const std::string text = TextOf(name);
    return text.starts_with(kOwnPrefix) || (text.starts_with('.') && text.ends_with(".lok")) ||
           text.starts_with("~$") || text.starts_with(".~lock.");
}

[[noreturn]] void Fail(const fs::path& file, const std::error_code& error) {
    throw FileError(file, error);
}

/// Adds what lies in folders to a list.
class Lister {
 public:
    Lister(CopyList& list, std::function<bool(const fs::path&)> leavesOut, CopyMeter& meter)
        : list_(list), leavesOut_(std::move(leavesOut)), meter_(meter) {}

    void Add(const fs::path& folder, const fs::path& to, int depth = 0) {
        if (depth > kDeepest)
            throw FileError(folder, FileError::Kind::Other, "lies too deep, or holds itself by a link");
        for (const fs::path& entry : EntriesOf(folder)) {
            std::error_code error;
            const fs::file_status status = fs::status(entry, error);
            if (!fs::exists(status))
                Fail(entry, error ? error : make_error_code(std::errc::no_such_file_or_directory));
            const fs::path target = to / entry.filename();
            if (fs::is_directory(status)) {
                if (leavesOut_ && leavesOut_(entry)) continue;
                AddFolder(target);
                Add(entry, target, depth + 1);
            } else {
                AddFile(entry, target);
            }
        }
    }

    void AddFile(const fs::path& file, const fs::path& to) {
        if (IsTaken(to)) return;
        std::error_code error;
        CopyItem item{file, to, fs::file_size(file, error), {}};
        if (!error) item.written = fs::last_write_time(file, error);
        if (error) Fail(file, error);
        meter_.Add(item.bytes);
        list_.items.push_back(std::move(item));
    }

    void AddFolder(const fs::path& to) {
        if (!IsTaken(to)) list_.folders.push_back(to);
    }

    /// From here on only what has no namesake, as a medium without regard to case sees it.
    void FillUp() { fillsUp_ = true; }

 private:
    static std::vector<fs::path> EntriesOf(const fs::path& folder) {
        std::vector<fs::path> entries;
        std::error_code error;
        for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
            if (!IsPassing(at->path().filename())) entries.push_back(at->path());
        if (error) Fail(folder, error);
        std::ranges::sort(entries);
        return entries;
    }
    bool IsTaken(const fs::path& to) { return !taken_.insert(UpperCase(TextOf(to))).second && fillsUp_; }

    CopyList& list_;
    std::function<bool(const fs::path&)> leavesOut_;
    CopyMeter& meter_;
    std::set<std::string> taken_;
    bool fillsUp_ = false;
};

fs::path OwnDataOf(const Folders& folders) {
    return FindExisting(folders.ProgramFolder / PathOf(kBackupData));
}

bool IsSame(const fs::path& one, const fs::path& other) {
    std::error_code none;
    return one == other || fs::equivalent(one, other, none);
}

void AddTheFiveFiles(const fs::path& folder, Lister& lister) {
    for (const std::string_view name : kBackupFiles) {
        const fs::path file = FindExisting(folder / PathOf(name));
        std::error_code error;
        const fs::file_status status = fs::status(file, error);
        if (fs::is_regular_file(status))
            lister.AddFile(file, PathOf(name));
        else if (error && !fs::status_known(status))
            Fail(file, error);
    }
}

}  // namespace

bool HasOwnData(const Folders& folders) {
    return IsSame(folders.DatabasePath, OwnDataOf(folders)) ||
           IsSame(folders.DatabasePath, folders.ProgramFolder);
}

BackupHome HomeOf(BackupMode mode, const Folders& folders) {
    const fs::path own = OwnDataOf(folders);
    if (mode == BackupMode::Admin) return {own, folders.ProgramFolder};
    if (HasOwnData(folders)) return {folders.DatabasePath, folders.ProgramFolder};
    return {folders.DatabasePath, folders.DatabasePath.parent_path(), FindExisting(own / "customforms")};
}

bool IsLock(const fs::path& file) {
    return UpperCase(TextOf(file.filename())) == "ACCESS.LOK";
}

CopyList ListOfHome(const BackupHome& home, const std::function<bool(const fs::path&)>& leavesOut,
                    CopyMeter& meter) {
    CopyList list;
    Lister lister(list, leavesOut, meter);
    lister.AddFolder(PathOf(kBackupData));
    lister.Add(home.data, PathOf(kBackupData));
    AddTheFiveFiles(home.files, lister);
    std::error_code none;
    if (!home.moreForms.empty() && fs::is_directory(home.moreForms, none)) {
        // As the data folder spells it, if it has one.
        const fs::path to = PathOf(kBackupData) / FindExisting(home.data / "customforms").filename();
        lister.FillUp();
        lister.AddFolder(to);
        lister.Add(home.moreForms, to);
    }
    return list;
}

CopyList ListOfBackup(const fs::path& backup, CopyMeter& meter) {
    CopyList list;
    Lister lister(list, {}, meter);
    lister.Add(FindExisting(backup / PathOf(kBackupData)), PathOf(kBackupData));
    AddTheFiveFiles(backup, lister);
    return list;
}

std::string SizeText(std::uintmax_t bytes) {
    if (bytes < 1'000'000) return fmt::format("{} KB", (bytes + 999) / 1000);
    return fmt::format("{:.1f} MB", static_cast<double>(bytes) / 1e6);
}

void CopyAndCompare(const std::vector<CopyItem>& items, const std::function<fs::path(std::size_t)>& placeOf,
                    const std::vector<fs::path>& media, CopyMeter& meter) {
    const auto watch = [&](std::size_t bytes) { meter.Bytes(bytes); };
    std::vector<Digest> digests;
    meter.Begin(CopyProgress::Stage::Copying);
    for (std::size_t i = 0; i < items.size(); ++i) {
        digests.push_back(CopyToNewFile(items[i].from, placeOf(i), watch));
        meter.FileDone();
    }
    for (const fs::path& medium : media) FlushMedium(medium);
    meter.Begin(CopyProgress::Stage::Comparing);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (DigestOnMedium(placeOf(i), watch) != digests[i])
            throw FileError(placeOf(i), FileError::Kind::Other, "what was written is not what is read back");
        meter.FileDone();
    }
}

}  // namespace quillmark
