#pragma once

#include <array>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

// What a job may hold is bounded alike where it is entered, written and read.
inline constexpr std::size_t kJobFileLimit = 16 * 1024 * 1024;  ///< bytes of the largest job file
inline constexpr std::size_t kLongestValue = 256 * 1024;        ///< bytes of a value
inline constexpr std::size_t kMostDocuments = 1000;             ///< records of documents
inline constexpr std::size_t kLongestJobName = 200;  ///< bytes; a template's and a picture's names are longer

/// Throws JobFileError where a job or template cannot have that name.
void RequireJobName(std::string_view name);

/// The content of a job file's bytes. Throws RecordError with the record's number, key and what is wrong
/// (`file` is its name for the message), JobFileError for options of one group that are both set and for
/// UTF-8 text that the code page lacks. Options above 15 are passed over with a notice, the retired field 172
/// without one; a field above 240 makes the file one of a newer version, which is refused.
JobFileContents JobFileContentsOf(const std::string& file, std::string_view bytes);

/// The bytes of the job's file. `D(1)`, fields without a value and fields filled from a single firm default
/// are left out; user-defined values stand in reverse order. Throws
/// JobFileError where a value cannot be written, or where they would be more than a reader takes.
std::string JobFileRecords(const Job& job);

/// Puts a file's content into the job: documents are appended to `JobDocuments`, fields go through the change
/// rule and, except in a template, are locked. Throws JobFileError, with the job unchanged, where it cannot
/// hold so many user-defined values.
void ApplyJobFile(const JobFileContents& contents, Job& job, bool asTemplate);

}  // namespace quillmark
