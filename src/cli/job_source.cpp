#include "cli/job_source.h"

#include <algorithm>

#include "core/fields.h"
#include "core/job_file.h"
#include "core/text_conversions.h"
#include "entry/smart_fields.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "selection/relevant_fields.h"

namespace quillmark::cli {

namespace fs = std::filesystem;

namespace {

/// The seller's attorney's fields, which the firm's defaults fill. The last one, the e-mail address, belongs
/// to the attorney chosen, so of several none is taken.

bool IsDataFile(const fs::path& path) {
    return Lowered(TextOf(path.extension())) == ".dat";
}

bool Exists(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

/// A job file that stands elsewhere may have its pictures with it.
fs::path ImagesOf(const fs::path& file, const Folders& folders) {
    const fs::path beside = fs::absolute(file).parent_path() / "images";
    return Exists(beside) ? beside : folders.ImagesFolder;
}

JobSource SourceOf(const fs::path& file, const Folders& folders) {
    return {file, TextOf(file.stem()), ImagesOf(file, folders)};
}

void FillFirmFields(const FirmDefaults& defaults, Job& job) {
    for (int n = field::SellerLawfirm; n <= field::SellerAttyEmail; ++n) {
        if (job.IsFilled(n)) continue;
        const std::string value = defaults.ValueOf(FieldMarker(n));
        const auto choice = value.find(';');
        if (choice != value.npos && n == field::SellerAttyEmail) continue;
        job.SetField(n, Trimmed(std::string_view(value).substr(0, choice)));
        // A single default is not the job's own value, so it is not kept with the job.
        if (choice == value.npos && job.IsFilled(n)) job.txtField(n).top = 0;
    }
}

}  // namespace

JobSource FindJob(const std::string& word, const Folders& folders) {
    const fs::path path = PathOf(word);
    const bool isPath = path.has_parent_path() || IsDataFile(path);
    if (isPath && Exists(path)) return SourceOf(path, folders);
    const fs::path inFolder = JobFilePath(folders, IsDataFile(path) ? TextOf(path.stem()) : word);
    if (!path.has_parent_path() && Exists(inFolder)) return SourceOf(inFolder, folders);
    if (isPath) throw FileError(path, FileError::Kind::NotFound, "there is no such job file");
    throw FileError(inFolder, FileError::Kind::NotFound, "there is no such job");
}

std::vector<std::string> ReadJob(const JobSource& source, Folders folders, const FirmDefaults& defaults,
                                 Job& job) {
    folders.ImagesFolder = source.ImagesFolder;
    ReadJobFile(folders, source.file, job, IsTemplateName(source.name));
    job.name = source.name;
    FillFirmFields(defaults, job);
    // Nobody has chosen fields in a grid here, so every one of them counts.
    for (int n = 1; n <= kFields; ++n) job.txtField(n).relevant = true;
    std::vector<std::string> refused;
    for (int n : AttachSmartFields(job))
        refused.push_back(std::string(FieldMarker(n)) + " holds \"" + job.D(n) + "\", which is not a date");
    for (int n = 1; n <= kFields; ++n)
        if (job.D(n) == kImageLiteral && job.FieldPictures[static_cast<std::size_t>(n)].empty())
            refused.push_back(std::string(FieldMarker(n)) + " is a picture, but its file \"" + job.name +
                              "_" + std::to_string(n) + ".bmp\" is missing");
    return refused;
}

void KeepRelevantFields(const std::vector<std::string>& documents, const Office& office, Job& job) {
    SelectionState screen;
    screen.job = job;
    for (int n = 1; n <= kFields; ++n) {
        screen.job.txtField(n).relevant = false;
        screen.job.txtField(n).locked = job.IsFilled(n);
    }
    for (const std::string& document : documents) screen.List2.push_back({document, false});
    RefreshFields(screen, office);
    for (int n = 1; n <= kFields; ++n) job.txtField(n).relevant = screen.job.txtField(n).relevant;
}

}  // namespace quillmark::cli
