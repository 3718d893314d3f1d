#include "core/job_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <map>

#include "core/fields.h"
#include "core/options.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/file_names.h"
#include "platform/paths.h"
#include "platform/record_file.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kDocumentKey = "000";
constexpr int kFirstSavedField = 2;  // a reopened job takes the date of the day
constexpr std::size_t kPictureLimit = 256 * 1024 * 1024;

constexpr std::array<std::array<int, 3>, 7> kOptionGroups = {{
    {OneSeller, TwoSellers},
    {Person, Entity},
    {OneBuyer, TwoBuyers},
    {OnePayoff, TwoPayoffs},
    {Condo, Commercial, LandMultiFamily},
    {Letterhead, DefaultLetterhead},
    {PowerOfAttorney, EstateTrust},
}};

bool HasMarker(int n) {
    return !FieldMarker(n).empty() && FieldMarker(n) != "[]";
}

bool IsSaved(const Job& job, int n) {
    const FieldHolder& holder = job.txtField(n);
    return HasMarker(n) && job.IsFilled(n) && holder.top != 0 && !holder.forShow;
}

/// The number that the text is as a whole; -1 if it is none.
int WholeNumber(std::string_view digits) {
    int number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? number : -1;
}

void ReadOption(const RecordReader& reader, std::string_view key, JobFileContents& contents) {
    const int n = key.size() == 3 ? WholeNumber(key.substr(1)) : -1;
    if (n < 1) reader.Fail(fmt::format("\"{}\" is no option, they run from C01 to C15", key));
    const bool on = reader.Boolean(1);
    if (n <= kOptions)
        contents.options[static_cast<std::size_t>(n)] = on;
    else if (contents.newerOption == 0)
        contents.newerOption = n;
}

void ReadField(const RecordReader& reader, const std::string& key, JobFileContents& contents) {
    const int n = key.size() <= 3 ? WholeNumber(key) : -1;
    const std::string& value = reader.Text(1);
    if (n > kFields)
        reader.Fail(
            fmt::format("there is no field {} yet: the job was saved by a newer version of Quillmark", n));
    if (n < 1) reader.Fail(fmt::format("\"{}\" is no field, they run from 002 to 240", key));
    if (n == field::Retired) return;
    if (!HasMarker(n)) reader.Fail(fmt::format("field {} (\"{}\") is not known to this version", n, value));
    contents.fields.emplace_back(n, value);
}

void ReadUserField(const RecordReader& reader, const std::string& key, JobFileContents& contents) {
    if (reader.Text(1).empty()) return;
    if (contents.userFields.size() == kUserFields) {
        reader.Fail(fmt::format("{} is more than the {} user-defined fields of a job", key, kUserFields));
    }
    contents.userFields.emplace_back(key, reader.Text(1));
}

void ReadRecord(const RecordReader& reader, JobFileContents& contents) {
    const std::string& key = reader.Text(0);
    if (reader.Items() != 2)
        reader.Fail(fmt::format("\"{}\" has {} items instead of two", key, reader.Items()));
    if (key == kDocumentKey) {
        contents.documents += reader.Text(1) + ':';
    } else if (key.starts_with('C')) {
        ReadOption(reader, key, contents);
    } else if (key.starts_with('[')) {
        ReadUserField(reader, key, contents);
    } else {
        ReadField(reader, key, contents);
    }
}

/// Of the options of a group one at most is set.
void RequireAgreement(const std::string& file, const JobFileContents& contents) {
    for (const auto& group : kOptionGroups) {
        int chosen = 0;
        for (const int n : group) {
            if (n == 0 || !contents.options[static_cast<std::size_t>(n)].value_or(false)) continue;
            if (chosen != 0)
                throw JobFileError(fmt::format("{}: the options \"{}\" and \"{}\" contradict each other",
                                               file, OptionCaption(chosen), OptionCaption(n)));
            chosen = n;
        }
    }
}

/// An option that is set takes the place of another of its group.
void ApplyOption(Job& job, int n, bool on) {
    for (const auto& group : kOptionGroups) {
        if (!on || std::find(group.begin(), group.end(), n) == group.end()) continue;
        for (const int other : group) job.SetOption(other, false);
    }
    job.SetOption(n, on);
}

void PutInto(Job& job, const JobFileContents& contents, bool asTemplate) {
    for (int n = 1; n <= kOptions; ++n) {
        if (const auto on = contents.options[static_cast<std::size_t>(n)]) ApplyOption(job, n, *on);
    }
    if (!asTemplate) job.JobDocuments += contents.documents;
    for (const auto& [n, value] : contents.fields) {
        job.SetField(n, value);
        job.txtField(n).locked = !asTemplate;
    }
    job.userFields.insert(job.userFields.end(), contents.userFields.begin(), contents.userFields.end());
}

/// `what` is the value's name in messages.
void Write(RecordWriter& writer, std::string_view key, std::string_view value, std::string_view what) {
    try {
        writer.Write({key, value});
    } catch (const UnencodableError& error) {
        throw JobFileError(fmt::format("{}: {}", what, error.what()));
    }
}

void WriteDocuments(RecordWriter& writer, std::string_view documents) {
    while (!documents.empty()) {
        const auto end = std::min(documents.find(':'), documents.size());
        Write(writer, kDocumentKey, documents.substr(0, end), "name of a document");
        documents.remove_prefix(std::min(end + 1, documents.size()));
    }
}

/// A template's name may hold the braces that make it one.
void CheckName(std::string_view name) {
    std::string_view inside = name;
    if (IsTemplateName(name) && name.ends_with('}') && name.size() > 1)
        inside = name.substr(1, name.size() - 2);
    if (inside.empty() || HoldsIllegalNameCharacter(inside))
        throw JobFileError(fmt::format("\"{}\" is no name for a job", name));
    const std::string fault = FaultOfFileName(std::string(name) + ".dat");
    if (!fault.empty())
        throw JobFileError(fmt::format("\"{}\" is no name for a job: its file's name {}", name, fault));
}

/// The records of a file that some other program has written as UTF-8; nothing for windows-1252. Text in that
/// code page beyond ASCII is practically never UTF-8, too.
std::optional<std::string> RecordsOfUtf8(const std::string& file, std::string_view bytes) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    const bool marked = bytes.starts_with(kMark);
    if (marked) bytes.remove_prefix(kMark.size());
    const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](unsigned char c) { return c < 0x80; });
    if (!marked && ascii) return std::nullopt;
    if (!IsUtf8(bytes)) return std::nullopt;
    try {
        return ToWindows1252(bytes);
    } catch (const UnencodableError& error) {
        throw JobFileError(
            fmt::format("{} is UTF-8 text and holds {}, which no job file can keep", file, error.where.name));
    }
}

fs::path PicturePath(const Folders& folders, std::string_view name, int n) {
    return folders.ImagesFolder / PathOf(fmt::format("{}_{}.bmp", name, n));
}

/// The picture files that a job of this name has on disk, by field.
std::map<int, fs::path> PicturesOnDisk(const Folders& folders, std::string_view name) {
    std::map<int, fs::path> pictures;
    const std::string prefix = UpperCase(name) + '_';
    constexpr std::string_view kSuffix = ".BMP";
    std::error_code error;
    for (fs::directory_iterator it(folders.ImagesFolder, error), end; !error && it != end;
         it.increment(error)) {
        const std::string entry = UpperCase(TextOf(it->path().filename()));
        if (!entry.starts_with(prefix) || !entry.ends_with(kSuffix)) continue;
        if (entry.size() <= prefix.size() + kSuffix.size()) continue;
        const std::string digits = entry.substr(prefix.size(), entry.size() - prefix.size() - kSuffix.size());
        const int n = WholeNumber(digits);
        if (n >= 1 && n <= kFields && digits == std::to_string(n)) pictures.emplace(n, it->path());
    }
    return pictures;
}

bool Exists(const fs::path& file) {
    std::error_code error;
    return fs::exists(file, error);
}

void CreateFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw FileError(folder, error);
}

void Remove(const fs::path& file) {
    std::error_code error;
    fs::remove(file, error);
    if (error) throw FileError(file, error);
}

void Rename(const fs::path& file, const fs::path& newFile) {
    std::error_code error;
    fs::rename(file, newFile, error);
    if (error) throw FileError(file, error);
}

}  // namespace

bool HoldsIllegalNameCharacter(std::string_view name) {
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' '; };
    return name.find_first_of(kIllegalNameCharacters) != std::string_view::npos ||
           std::any_of(name.begin(), name.end(), isControl);
}

std::string TemplateName(std::string_view name) {
    return "{ " + UpperCase(name) + "_template }";
}

bool IsTemplateName(std::string_view name) {
    return name.starts_with('{');
}

fs::path JobFilePath(const Folders& folders, std::string_view name) {
    return FindExisting(folders.JobFolder / PathOf(std::string(name) + ".dat"));
}

JobFileContents JobFileContentsOf(const std::string& file, std::string_view bytes) {
    JobFileContents contents;
    const std::optional<std::string> fromUtf8 = RecordsOfUtf8(file, bytes);
    RecordReader reader(file, fromUtf8 ? *fromUtf8 : bytes);
    while (reader.Next()) ReadRecord(reader, contents);
    RequireAgreement(file, contents);
    if (fromUtf8)
        contents.notices.push_back(file + " is UTF-8 text and was read as such; job files are windows-1252.");
    if (contents.newerOption != 0)
        contents.notices.push_back(fmt::format(
            "{} was saved by a newer version of Quillmark: option C{} is not known here and is left out.",
            file, contents.newerOption));
    return contents;
}

std::string JobFileRecords(const Job& job) {
    RecordWriter writer;
    WriteDocuments(writer, job.JobDocuments);
    for (int n = 1; n <= kOptions; ++n) writer.Write({fmt::format("C{:02}", n), job.optConf(n)});
    for (int n = kFirstSavedField; n <= kFields; ++n) {
        if (IsSaved(job, n)) Write(writer, fmt::format("{:03}", n), job.D(n), FieldMarker(n));
    }
    for (auto row = job.userFields.rbegin(); row != job.userFields.rend(); ++row) {
        if (row->second.empty()) continue;
        if (!row->first.starts_with('[')) {  // it could not be told from the other records
            throw JobFileError(fmt::format("\"{}\" is no marker of a user-defined field", row->first));
        }
        Write(writer, row->first, row->second, row->first);
    }
    return writer.Bytes();
}

void ApplyJobFile(const JobFileContents& contents, Job& job, bool asTemplate) {
    if (job.userFields.size() + contents.userFields.size() > kUserFields) {
        throw JobFileError(fmt::format("more than {} user-defined fields", kUserFields));
    }
    Job before = job;
    try {
        PutInto(job, contents, asTemplate);
    } catch (...) {  // a rule failed: no half of a job may stay behind
        job = std::move(before);
        throw;
    }
}

JobFileRead ReadJobFile(const Folders& folders, const fs::path& file, Job& job, bool asTemplate) {
    const std::string fileName = TextOf(file.filename());
    JobFileRead read{ReadFile(file, kJobFileLimit), {}};
    JobFileContents contents = JobFileContentsOf(fileName, read.bytes);
    std::map<int, std::string> pictures;
    for (const auto& [n, value] : contents.fields) {
        if (value != kImageLiteral) continue;
        const fs::path picture = FindExisting(PicturePath(folders, TextOf(file.stem()), n));
        if (Exists(picture)) pictures[n] = ReadFile(picture, kPictureLimit);
    }
    ApplyJobFile(contents, job, asTemplate);
    for (auto& [n, picture] : pictures) job.FieldPictures[static_cast<std::size_t>(n)] = std::move(picture);
    read.notices = std::move(contents.notices);
    return read;
}

void SaveJobFiles(const Folders& folders, const Job& job) {
    CheckName(job.name);
    const std::string records = JobFileRecords(job);
    auto onDisk = PicturesOnDisk(folders, job.name);
    for (int n = kFirstSavedField; n <= kFields; ++n) {
        const std::string& picture = job.FieldPictures[static_cast<std::size_t>(n)];
        if (picture.empty()) continue;
        CreateFolder(folders.ImagesFolder);
        const auto found = onDisk.find(n);
        ReplaceFile(found == onDisk.end() ? PicturePath(folders, job.name, n) : found->second, picture);
        onDisk.erase(n);
    }
    ReplaceFile(JobFilePath(folders, job.name), records);
    for (const auto& [n, file] : onDisk) {
        if (n >= kFirstSavedField) Remove(file);
    }
}

bool RenameJobFiles(const Folders& folders, std::string_view name, std::string_view newName) {
    CheckName(newName);
    const fs::path file = JobFilePath(folders, name);
    const fs::path taken = JobFilePath(folders, newName);
    const fs::path newFile = folders.JobFolder / PathOf(std::string(newName) + ".dat");
    std::error_code missing;
    if (fs::equivalent(taken, file, missing))
        Rename(file, newFile);  // the same name in another case
    else if (Exists(taken) || !RenameUnlessTaken(file, newFile))
        return false;
    for (const auto& [n, picture] : PicturesOnDisk(folders, name)) {
        Rename(picture, PicturePath(folders, newName, n));
    }
    return true;
}

void DeleteJobFiles(const Folders& folders, std::string_view name) {
    Remove(JobFilePath(folders, name));
    for (const auto& [n, picture] : PicturesOnDisk(folders, name)) Remove(picture);
}

}  // namespace quillmark
