#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/firm_defaults.h"
#include "core/folders.h"
#include "core/job.h"
#include "selection/office.h"

namespace quillmark::cli {

/// Where a job named on the command line is kept.
struct JobSource {
    std::filesystem::path file;
    std::string name;  ///< the file's, without its extension
    std::filesystem::path ImagesFolder;
};

/// The job that a word of the command line means: the path of a .dat file, or a name in the job folder.
/// Throws FileError if there is no such file.
JobSource FindJob(const std::string& word, const Folders& folders);

/// Reads the job and completes it: what it leaves open of the firm's own details comes from `defaults`, the
/// first one of several choices; derived values follow. Gives a sentence for each value that its field cannot
/// take. Throws FileError, RecordError and JobFileError.
std::vector<std::string> ReadJob(const JobSource& source, Folders folders, const FirmDefaults& defaults,
                                 Job& job);

/// Leaves those fields relevant that these documents need with the job's options, as the grid would list
/// them. Throws FileError and RecordError for a custom document whose list of markers cannot be read.
void KeepRelevantFields(const std::vector<std::string>& documents, const Office& office, Job& job);

}  // namespace quillmark::cli
