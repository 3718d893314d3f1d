#include "core/job_folder.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <system_error>

#include "core/job_file.h"
#include "core/job_saves.h"
#include "platform/atomic_file.h"
#include "platform/change_set.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/shared_lock.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr int kFirstSavedPicture = 2;
constexpr std::size_t kPictureLimit = 64 * 1024 * 1024;
constexpr const char* kLock = ".jobs.lok";

bool Exists(const fs::path& file) {
    std::error_code error;
    return fs::exists(file, error);
}

fs::path PicturePath(const Folders& folders, std::string_view name, int n) {
    return folders.ImagesFolder / PathOf(fmt::format("{}_{}.bmp", name, n));
}

/// The field of a job's picture file, 0 for any other file. `prefix` is the job's name in capitals and "_".
int FieldOfPicture(const fs::path& file, std::string_view prefix) {
    constexpr std::string_view kSuffix = ".BMP";
    const std::string entry = UpperCase(TextOf(file.filename()));
    if (!entry.starts_with(prefix) || !entry.ends_with(kSuffix)) return 0;
    if (entry.size() <= prefix.size() + kSuffix.size()) return 0;
    const std::string digits = entry.substr(prefix.size(), entry.size() - prefix.size() - kSuffix.size());
    int n = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), n);
    return n >= 1 && n <= kFields && digits == std::to_string(n) ? n : 0;
}

/// The picture files that a job of this name has on disk, by field.
std::map<int, fs::path> PicturesOnDisk(const Folders& folders, std::string_view name) {
    std::map<int, fs::path> pictures;
    const std::string prefix = UpperCase(name) + '_';
    std::error_code error;
    for (fs::directory_iterator it(folders.ImagesFolder, error), end; !error && it != end;
         it.increment(error)) {
        if (const int n = FieldOfPicture(it->path(), prefix); n > 0) pictures.emplace(n, it->path());
    }
    return pictures;
}

std::string SumOf(std::string_view picture) {
    return fmt::format("{}.{:x}", picture.size(), std::hash<std::string_view>()(picture));
}

/// One program at a time changes the jobs of a folder; it begins with what one that died has left.
class Turn {
 public:
    Turn(const Folders& folders, const WaitForFile& wait) : lock_(LockIn(folders), wait) {
        UndoBrokenChange(folders.JobFolder);
    }

 private:
    static fs::path LockIn(const Folders& folders) {
        std::error_code error;
        if (!fs::is_directory(folders.JobFolder, error))
            throw FileError(folders.JobFolder, FileError::Kind::NotFound, "the folder is not there");
        return folders.JobFolder / kLock;
    }

    SharedLock lock_;
};

/// Changes of a job's file and pictures, which lie below one folder.
class Changes {
 public:
    explicit Changes(const Folders& folders) : folder_(folders.JobFolder) {}

    void Write(const fs::path& file, std::string_view bytes) {
        changes_.push_back({FileChange::Kind::Write, Inside(file), std::string(bytes)});
    }
    void Move(const fs::path& file, const fs::path& to) {
        if (Exists(to)) Remove(to);
        changes_.push_back({FileChange::Kind::Move, Inside(file), {}, Inside(to)});
    }
    void MoveUnlessTaken(const fs::path& file, const fs::path& to) {
        changes_.push_back({FileChange::Kind::Move, Inside(file), {}, Inside(to)});
    }
    void Remove(const fs::path& file) { changes_.push_back({FileChange::Kind::Remove, Inside(file)}); }

    /// False where a name to move to is taken. One change alone needs no record of what was before.
    bool Make() const {
        if (changes_.size() > 1) return ChangeTogether(folder_, changes_);
        for (const FileChange& change : changes_) {
            const fs::path file = folder_ / change.file;
            if (change.kind == FileChange::Kind::Move) return RenameUnlessTaken(file, folder_ / change.to);
            change.kind == FileChange::Kind::Write ? ReplaceFile(file, change.bytes) : RemoveFile(file);
        }
        return true;
    }

 private:
    fs::path Inside(const fs::path& file) const { return file.lexically_relative(folder_); }

    const fs::path folder_;
    std::vector<FileChange> changes_;
};

JobOnDisk StateOf(const Job& job, std::string_view records) {
    JobOnDisk state{std::string(records), {}};
    for (int n = kFirstSavedPicture; n <= kFields; ++n) {
        const std::string& picture = job.FieldPictures[static_cast<std::size_t>(n)];
        if (!picture.empty()) state.pictures[n] = SumOf(picture);
    }
    return state;
}

/// What of the job's pictures has to be written or removed. The folder for the first picture is made.
void AddPictures(const Folders& folders, const Job& job, Changes& changes, JobOnDisk& after) {
    auto onDisk = PicturesOnDisk(folders, job.name);
    for (int n = kFirstSavedPicture; n <= kFields; ++n) {
        const std::string& picture = job.FieldPictures[static_cast<std::size_t>(n)];
        const auto found = onDisk.find(n);
        if (!picture.empty()) {
            MakeFolder(folders.ImagesFolder);
            const fs::path file = found == onDisk.end() ? PicturePath(folders, job.name, n) : found->second;
            if (found == onDisk.end() || ReadFile(file, kPictureLimit) != picture)
                changes.Write(file, picture);
        } else if (found != onDisk.end() && job.D(n) == kImageLiteral) {
            // It could not be read when the job was opened, and has come back since.
            after.pictures[n] = SumOf(ReadFile(found->second, kPictureLimit));
        } else if (found != onDisk.end()) {
            changes.Remove(found->second);
        }
    }
}

void RequirePicturesInBounds(const Job& job) {
    for (int n = kFirstSavedPicture; n <= kFields; ++n) {
        if (job.FieldPictures[static_cast<std::size_t>(n)].size() > kPictureLimit)
            throw JobFileError(fmt::format("the picture of {} is larger than {} MB", FieldMarker(n),
                                           kPictureLimit / 1024 / 1024));
    }
}

}  // namespace

fs::path JobFilePath(const Folders& folders, std::string_view name) {
    return FindExisting(folders.JobFolder / PathOf(std::string(name) + ".dat"));
}

JobOnDisk LookAtJob(const Folders& folders, std::string_view name) {
    JobOnDisk state;
    try {
        state.bytes = ReadFile(JobFilePath(folders, name), kJobFileLimit);
    } catch (const FileError& failure) {
        if (failure.kind != FileError::Kind::NotFound) throw;
    }
    for (const auto& [n, file] : PicturesOnDisk(folders, name)) {
        if (n >= kFirstSavedPicture) state.pictures[n] = SumOf(ReadFile(file, kPictureLimit));
    }
    return state;
}

namespace {

/// What a job's file and pictures hold, read one after the other.
struct JobBytes {
    std::string file;
    std::map<int, std::string> pictures;
};

JobBytes ReadBytes(const Folders& folders, const fs::path& file) {
    JobBytes bytes{ReadFile(file, kJobFileLimit), {}};
    for (const auto& [n, picture] : PicturesOnDisk(folders, TextOf(file.stem())))
        if (n >= kFirstSavedPicture) bytes.pictures[n] = ReadFile(picture, kPictureLimit);
    return bytes;
}

/// A folder that may only be read is read as it is.
void MendIfAllowed(const fs::path& folder, const WaitForFile& wait) {
    Folders folders;
    folders.JobFolder = folder;
    try {
        MendJobFolder(folders, wait);
    } catch (const FileError& failure) {
        if (failure.kind != FileError::Kind::Denied) throw;
    }
}

/// File and pictures that belong together: neither before nor after reading is a change under way, and the
/// file is the same then.
JobBytes ReadTogether(const Folders& folders, const fs::path& file, const WaitForFile& wait) {
    constexpr int kMostTries = 20;
    const fs::path folder = file.parent_path();
    for (int tries = 1;; ++tries) {
        MendIfAllowed(folder, wait);
        JobBytes bytes = ReadBytes(folders, file);
        const bool isWhole = bytes.pictures.empty() ||
                             (!HoldsBrokenChange(folder) && ReadFile(file, kJobFileLimit) == bytes.file);
        if (isWhole || tries == kMostTries) return bytes;
    }
}

}  // namespace

JobFileRead ReadJobFile(const Folders& folders, const fs::path& file, Job& job, bool asTemplate,
                        const WaitForFile& wait) {
    JobBytes bytes = ReadTogether(folders, file, wait);
    JobFileContents contents = JobFileContentsOf(TextOf(file.filename()), bytes.file);
    JobFileRead read{{std::move(bytes.file), {}}, std::move(contents.notices)};
    for (const auto& [n, picture] : bytes.pictures) read.onDisk.pictures[n] = SumOf(picture);
    ApplyJobFile(contents, job, asTemplate);
    for (const auto& [n, value] : contents.fields) {
        const auto picture = bytes.pictures.find(n);
        if (value == kImageLiteral && picture != bytes.pictures.end())
            job.FieldPictures[static_cast<std::size_t>(n)] = picture->second;
    }
    return read;
}

bool SaveJobFiles(const Folders& folders, const Job& job, const SaveTerms& terms) {
    RequireJobName(job.name);
    RequirePicturesInBounds(job);
    const std::string records = JobFileRecords(job);
    const Turn turn(folders, terms.wait);
    if (terms.onDisk && LookAtJob(folders, job.name) != *terms.onDisk) return false;
    JobOnDisk after = StateOf(job, records);
    Changes changes(folders);
    AddPictures(folders, job, changes, after);
    changes.Write(JobFilePath(folders, job.name), records);
    changes.Make();
    NoteSave(folders, job.name);
    if (terms.onDisk) *terms.onDisk = std::move(after);
    return true;
}

bool RenameJobFiles(const Folders& folders, std::string_view name, std::string_view newName,
                    const WaitForFile& wait) {
    RequireJobName(newName);
    const Turn turn(folders, wait);
    const fs::path file = JobFilePath(folders, name);
    const fs::path taken = JobFilePath(folders, newName);
    const fs::path newFile = folders.JobFolder / PathOf(std::string(newName) + ".dat");
    std::error_code missing;
    if (fs::equivalent(taken, file, missing)) {  // the same name in another case
        MoveOnto(file, newFile);
        for (const auto& [n, picture] : PicturesOnDisk(folders, name))
            MoveOnto(picture, PicturePath(folders, newName, n));
        return true;
    }
    if (Exists(taken)) return false;
    Changes changes(folders);
    changes.MoveUnlessTaken(file, newFile);
    for (const auto& [n, picture] : PicturesOnDisk(folders, name))
        changes.Move(picture, PicturePath(folders, newName, n));
    return changes.Make();
}

bool DeleteJobFiles(const Folders& folders, std::string_view name, const SaveTerms& terms) {
    const Turn turn(folders, terms.wait);
    if (terms.onDisk && LookAtJob(folders, name) != *terms.onDisk) return false;
    Changes changes(folders);
    if (const fs::path file = JobFilePath(folders, name); Exists(file)) changes.Remove(file);
    for (const auto& [n, picture] : PicturesOnDisk(folders, name)) changes.Remove(picture);
    changes.Make();
    return true;
}

void MendJobFolder(const Folders& folders, const WaitForFile& wait) {
    if (HoldsBrokenChange(folders.JobFolder)) const Turn turn(folders, wait);
}

}  // namespace quillmark
