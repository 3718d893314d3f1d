#include "core/job_saves.h"

#include <fmt/format.h>

#include <optional>
#include <system_error>
#include <vector>

#include "core/job_folder.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/note_file.h"
#include "platform/record_file.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr const char* kSaves = ".jobs.log";
constexpr std::size_t kMost = 200;
constexpr std::size_t kLimit = 256 * 1024;

struct SaveNote {
    std::string name;
    std::string version;  ///< the file's time of change
    FileHolder by;
};

/// Tells one state of the file from a later one.
std::string VersionOf(const Folders& folders, std::string_view name) {
    std::error_code error;
    const auto time = fs::last_write_time(JobFilePath(folders, name), error);
    return error ? std::string() : fmt::to_string(time.time_since_epoch().count());
}

/// What can be read; a note that is damaged ends them.
std::vector<SaveNote> NotesIn(const Folders& folders) {
    std::vector<SaveNote> notes;
    try {
        const std::string bytes = ReadFile(folders.JobFolder / kSaves, kLimit);
        RecordReader reader(kSaves, bytes);
        while (reader.Next())
            notes.push_back(
                {reader.Text(0), reader.Text(1), {reader.Text(2), reader.Text(3), reader.Text(4)}});
    } catch (const FileError&) {
    } catch (const RecordError&) {
    }
    return notes;
}

}  // namespace

void NoteSave(const Folders& folders, std::string_view name) {
    const auto holder = ThisHolder(SystemClock());
    if (!holder) return;
    std::vector<SaveNote> notes = NotesIn(folders);
    std::erase_if(notes, [&](const SaveNote& note) { return note.name == name; });
    if (notes.size() >= kMost) notes.erase(notes.begin());
    notes.push_back({std::string(name), VersionOf(folders, name), *holder});
    RecordWriter records;
    for (const SaveNote& note : notes) {
        try {
            records.Write({note.name, note.version, note.by.user, note.by.computer, note.by.since});
        } catch (const UnencodableError&) {
            // A name that the records cannot hold is not noted.
        }
    }
    WriteNote(folders.JobFolder / kSaves, records.Bytes());
}

std::string LastSaveOf(const Folders& folders, std::string_view name) {
    const std::string version = VersionOf(folders, name);
    for (const SaveNote& note : NotesIn(folders)) {
        if (UpperCase(note.name) == UpperCase(name) && note.version == version)
            return fmt::format("saved by {} at {}, {}", note.by.user, note.by.computer, note.by.since);
    }
    return "saved by another user";
}

}  // namespace quillmark
