#include "core/job_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

#include "core/fields.h"
#include "core/options.h"
#include "platform/code_page.h"
#include "platform/file_names.h"
#include "platform/record_file.h"

namespace quillmark {
namespace {

constexpr std::string_view kDocumentKey = "000";
constexpr int kFirstSavedField = 2;  // a reopened job takes the date of the day

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
    if (value.size() > kLongestValue)
        reader.Fail(fmt::format("the value of field {} is longer than {} KB", key, kLongestValue / 1024));
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
    if (key.size() + reader.Text(1).size() > kLongestValue)
        reader.Fail(fmt::format("a value is longer than {} KB", kLongestValue / 1024));
    if (contents.userFields.size() == kUserFields) {
        reader.Fail(fmt::format("{} is more than the {} user-defined fields of a job", key, kUserFields));
    }
    contents.userFields.emplace_back(key, reader.Text(1));
}

/// `documents` counts those of the file.
void ReadRecord(const RecordReader& reader, JobFileContents& contents, std::size_t& documents) {
    const std::string& key = reader.Text(0);
    if (reader.Items() != 2)
        reader.Fail(fmt::format("\"{}\" has {} items instead of two", key, reader.Items()));
    if (key == kDocumentKey) {
        if (++documents > kMostDocuments)
            reader.Fail(fmt::format("more than the {} documents of a job", kMostDocuments));
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
    if (key.size() + value.size() > kLongestValue)
        throw JobFileError(fmt::format("{} is longer than the {} KB that a job's file can hold",
                                       what.substr(0, 100), kLongestValue / 1024));
    try {
        writer.Write({key, value});
    } catch (const UnencodableError& error) {
        throw JobFileError(fmt::format("{}: {}", what, error.what()));
    }
}

void WriteDocuments(RecordWriter& writer, std::string_view documents) {
    if (static_cast<std::size_t>(std::ranges::count(documents, ':')) > kMostDocuments)
        throw JobFileError(fmt::format("the job lists more than {} documents", kMostDocuments));
    while (!documents.empty()) {
        const auto end = std::min(documents.find(':'), documents.size());
        Write(writer, kDocumentKey, documents.substr(0, end), "name of a document");
        documents.remove_prefix(std::min(end + 1, documents.size()));
    }
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

void RequireJobName(std::string_view name) {
    std::string_view inside = name;  // a template's may hold the braces that make it one
    if (IsTemplateName(name) && name.ends_with('}') && name.size() > 1)
        inside = name.substr(1, name.size() - 2);
    if (inside.empty() || HoldsIllegalNameCharacter(inside))
        throw JobFileError(fmt::format("\"{}\" is no name for a job", name));
    const std::string fault = FaultOfFileName(std::string(name) + ".dat");
    if (!fault.empty())
        throw JobFileError(fmt::format("\"{}\" is no name for a job: its file's name {}", name, fault));
}

JobFileContents JobFileContentsOf(const std::string& file, std::string_view bytes) {
    JobFileContents contents;
    const std::optional<std::string> fromUtf8 = RecordsOfUtf8(file, bytes);
    RecordReader reader(file, fromUtf8 ? *fromUtf8 : bytes);
    std::size_t documents = 0;
    while (reader.Next()) ReadRecord(reader, contents, documents);
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
    if (job.userFields.size() > kUserFields)
        throw JobFileError(fmt::format("the job has more than {} user-defined fields", kUserFields));
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
    if (writer.Bytes().size() > kJobFileLimit)
        throw JobFileError(fmt::format("the job is larger than the {} MB that its file can hold",
                                       kJobFileLimit / 1024 / 1024));
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

}  // namespace quillmark
