#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/firm_defaults.h"
#include "core/folders.h"
#include "core/job.h"
#include "selection/firm_context.h"
#include "session/job_files.h"

namespace quillmark::cli {

/// Reads the job and completes it: what it leaves open of the firm's own details comes from `defaults`, the
/// first one of several choices; derived values follow. Gives a sentence for each value that its field cannot
/// take. Throws FileError, RecordError and JobFileError.
std::vector<std::string> ReadJob(const JobSource& source, Folders folders, const FirmDefaults& defaults,
                                 Job& job);

/// Leaves those fields relevant that these documents need with the job's options, as the grid would list
/// them. Throws FileError and RecordError for a custom document whose list of markers cannot be read.
void KeepRelevantFields(const std::vector<std::string>& documents, const FirmContext& firm, Job& job);

}  // namespace quillmark::cli
