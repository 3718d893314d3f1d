#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/folders.h"
#include "core/job.h"
#include "platform/file_holder.h"

/// Jobs on disk: a job's file and its pictures, which change as one, under a lock that all who share the
/// folder take. After a kill at any moment a job is as before or as after; what is left of the change is
/// taken back before the next one, and at the next start.
namespace quillmark {

/// The job file of that name: `JobFolder` + name + ".dat". An existing file is found whatever its case.
std::filesystem::path JobFilePath(const Folders& folders, std::string_view name);

/// What stands on disk under a job's name, to tell later whether another has changed it.
struct JobOnDisk {
    std::optional<std::string> bytes = {};     ///< of the file; nothing where there is none
    std::map<int, std::string> pictures = {};  ///< a sum over each picture's bytes, by field

    bool operator==(const JobOnDisk&) const = default;
};

/// Throws FileError.
JobOnDisk LookAtJob(const Folders& folders, std::string_view name);

struct JobFileRead {
    JobOnDisk onDisk;                  ///< what was read
    std::vector<std::string> notices;  ///< what the user should know about the file
};

/// Reads a job file, wherever it stands, and the pictures of its name in `ImagesFolder` into the job. Throws
/// FileError, RecordError and JobFileError, all before anything in the job is changed. The job's own name is
/// left to the caller.
JobFileRead ReadJobFile(const Folders& folders, const std::filesystem::path& file, Job& job, bool asTemplate,
                        const WaitForFile& wait = {});

/// How a job is saved or deleted among others who may save it too.
struct SaveTerms {
    /// What may be replaced or removed; null for whatever stands there. After a save, what was written.
    JobOnDisk* onDisk = nullptr;
    WaitForFile wait = {};
};

/// Writes the job's file and pictures under the job's name, and removes pictures that it no longer has; one
/// that the job still speaks of but could not read stays. False, with nothing changed, where something else
/// stands there than the terms allow. Throws FileError and JobFileError, which names the value.
bool SaveJobFiles(const Folders& folders, const Job& job, const SaveTerms& terms = {});

/// Gives a job's file and pictures another name. False, with nothing changed, if that name is taken. Throws
/// FileError and JobFileError.
bool RenameJobFiles(const Folders& folders, std::string_view name, std::string_view newName,
                    const WaitForFile& wait = {});

/// Removes a job's file and pictures. False, with nothing changed, where something else stands there than the
/// terms allow. Throws FileError.
bool DeleteJobFiles(const Folders& folders, std::string_view name, const SaveTerms& terms = {});

/// Takes back what a program that ended in the midst of a save, renaming or deletion has left. Throws
/// FileError.
void MendJobFolder(const Folders& folders, const WaitForFile& wait = {});

}  // namespace quillmark
