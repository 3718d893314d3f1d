#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/folders.h"
#include "core/job.h"

namespace quillmark {

/// Characters that no job name may hold: \ / : * ? < > | { } and the double quote.
inline constexpr std::string_view kIllegalNameCharacters = "\\/:*?<>|{}\"";
/// One of them, or a control character.
bool HoldsIllegalNameCharacter(std::string_view name);

/// "{ REGENCY_template }" for "Regency": the file name, without extension, of the template of that name.
std::string TemplateName(std::string_view name);
/// A file name that begins with "{" is a template's.
bool IsTemplateName(std::string_view name);

/// The job file of that name: `JobFolder` + name + ".dat". An existing file is found whatever its case.
std::filesystem::path JobFilePath(const Folders& folders, std::string_view name);

/// A job that cannot be kept as it is. what() names the field and what is wrong with its value.
class JobFileError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// What one job file holds. Numbers and options have been checked.
struct JobFileContents {
    std::string documents;                                  ///< each name followed by ":"
    std::array<std::optional<bool>, kOptions + 1> options;  ///< by number; none where the file has no record
    std::vector<std::pair<int, std::string>> fields;        ///< in the order of the file
    std::vector<std::pair<std::string, std::string>> userFields;  ///< marker and value
    int newerOption = 0;               ///< the first option above 15, which a later version writes
    std::vector<std::string> notices;  ///< what the user should know about the file
};

inline constexpr std::size_t kJobFileLimit = 16 * 1024 * 1024;  ///< bytes of the largest job file

/// The content of a job file's bytes. Throws RecordError with the record's number, key and what is wrong
/// (`file` is its name for the message), JobFileError for options of one group that are both set and for
/// UTF-8 text that the code page lacks. Options above 15 are passed over with a notice, the retired field 172
/// without one; a field above 240 makes the file one of a newer version, which is refused.
JobFileContents JobFileContentsOf(const std::string& file, std::string_view bytes);

/// The bytes of the job's file. `D(1)`, fields without a value and fields filled from a single firm default
/// are left out; user-defined values stand in reverse order. Throws JobFileError.
std::string JobFileRecords(const Job& job);

/// Puts a file's content into the job: documents are appended to `JobDocuments`, fields go through the change
/// rule and, except in a template, are locked. Throws JobFileError, with the job unchanged, where it cannot
/// hold so many user-defined values.
void ApplyJobFile(const JobFileContents& contents, Job& job, bool asTemplate);

struct JobFileRead {
    std::string bytes;                 ///< of the file
    std::vector<std::string> notices;  ///< what the user should know about it
};

/// Reads a job file, wherever it stands, and the pictures of its name in `ImagesFolder` into the job. Throws
/// FileError, RecordError and JobFileError, all before anything in the job is changed. The job's own name is
/// left to the caller.
JobFileRead ReadJobFile(const Folders& folders, const std::filesystem::path& file, Job& job, bool asTemplate);

/// Writes the job's file and pictures under the job's name, and removes pictures that it no longer has. The
/// file is written after its pictures and before any is removed. Throws FileError and JobFileError.
void SaveJobFiles(const Folders& folders, const Job& job);

/// Gives a job's file and pictures another name. False, with nothing changed, if that name is taken. Throws
/// FileError and JobFileError.
bool RenameJobFiles(const Folders& folders, std::string_view name, std::string_view newName);

/// Removes a job's file and pictures. Throws FileError.
void DeleteJobFiles(const Folders& folders, std::string_view name);

}  // namespace quillmark
