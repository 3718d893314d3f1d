#include "platform/change_set.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

#include "platform/atomic_file.h"
#include "platform/file_names.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/temporary_name.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr const char* kRecord = ".quillmark-change";
constexpr std::string_view kHeading = "quillmark change 1\n";
constexpr std::size_t kRecordLimit = 512u << 20;
constexpr std::size_t kFileLimit = 256u << 20;

/// How one change is taken back; it need not have been made.
struct Undo {
    enum class Kind : char {
        PutBack = 'P',   ///< `file` holds `bytes` again
        Unmake = 'U',    ///< `file` goes, if its content is the one with the sum `bytes`
        MoveBack = 'M',  ///< `to` becomes `file`, if it is there and `file` is not
        Drop = 'D',      ///< all is done, and `file`, that was removed, can go for good
    };
    Kind kind;
    fs::path file;
    std::string bytes = {};
    fs::path to = {};
};

/// Tells one content from another.
std::string SumOf(std::string_view bytes) {
    std::uint64_t sum = 14695981039346656037u;
    for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211u;
    return fmt::format("{}.{:016x}", bytes.size(), sum);
}

bool Exists(const fs::path& file) {
    std::error_code error;
    return fs::exists(fs::symlink_status(file, error));
}

constexpr std::string_view kAside = ".quillmark-aside-";

/// What is removed stands beside its former place until all is done.
fs::path AsideOf(const fs::path& file) {
    return file.parent_path() / (std::string(kAside) + TemporaryName());
}

bool IsAside(const fs::path& file) {
    return TextOf(file.filename()).starts_with(kAside);
}

/// A name in the folder, or one in a folder directly below it.
bool IsInside(const fs::path& path) {
    if (path.empty() || path.has_root_path()) return false;
    const auto isName = [](const fs::path& part) { return part != "." && part != ".." && !part.empty(); };
    return std::distance(path.begin(), path.end()) <= 2 && std::all_of(path.begin(), path.end(), isName);
}

// The record is a heading, the changes as kind and three texts, each text as its length, a colon and its
// bytes, and at the end the sum of all before it.

void Append(std::string_view text, std::string& record) {
    record += fmt::format("{}:", text.size());
    record += text;
}

std::string RecordOf(const std::vector<Undo>& undos) {
    std::string record(kHeading);
    for (const Undo& undo : undos) {
        record += static_cast<char>(undo.kind);
        Append(TextOf(undo.file), record);
        Append(undo.bytes, record);
        Append(TextOf(undo.to), record);
    }
    return record + '=' + SumOf(record);
}

std::optional<std::string> TakeText(std::string_view& rest) {
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), length);
    if (error != std::errc() || end == rest.data() + rest.size() || *end != ':') return std::nullopt;
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()) + 1);
    if (length > rest.size()) return std::nullopt;
    std::string text(rest.substr(0, length));
    rest.remove_prefix(length);
    return text;
}

std::optional<std::vector<Undo>> UndosOf(std::string_view record) {
    const auto sum = record.rfind('=');
    if (!record.starts_with(kHeading) || sum == record.npos) return std::nullopt;
    if (record.substr(sum + 1) != SumOf(record.substr(0, sum))) return std::nullopt;
    std::string_view rest = record.substr(kHeading.size(), sum - kHeading.size());
    std::vector<Undo> undos;
    while (!rest.empty()) {
        Undo undo{static_cast<Undo::Kind>(rest.front()), {}};
        rest.remove_prefix(1);
        auto file = TakeText(rest), bytes = TakeText(rest), to = TakeText(rest);
        if (!file || !bytes || !to) return std::nullopt;
        undo.file = PathOf(*file);
        undo.bytes = std::move(*bytes);
        undo.to = PathOf(*to);
        const bool moves = undo.kind == Undo::Kind::MoveBack;
        if (!IsInside(undo.file) || (moves && !IsInside(undo.to))) return std::nullopt;
        undos.push_back(std::move(undo));
    }
    return undos;
}

void TakeBack(const fs::path& folder, const Undo& undo) {
    const fs::path file = folder / undo.file;
    switch (undo.kind) {
        case Undo::Kind::PutBack:
            if (!Exists(file) || ReadFile(file, kFileLimit) != undo.bytes) ReplaceFile(file, undo.bytes);
            break;
        case Undo::Kind::Unmake:
            if (Exists(file) && SumOf(ReadFile(file, kFileLimit)) == undo.bytes) RemoveFile(file);
            break;
        case Undo::Kind::MoveBack:
            if (Exists(folder / undo.to) && !Exists(file)) RenameUnlessTaken(folder / undo.to, file);
            break;
        case Undo::Kind::Drop:
            if (IsAside(file)) RemoveFile(file);
            break;
    }
}

void TakeBackAll(const fs::path& folder, const std::vector<Undo>& undos) {
    for (auto undo = undos.rbegin(); undo != undos.rend(); ++undo) TakeBack(folder, *undo);
    RemoveFile(folder / kRecord);
}

struct Step {
    FileChange change;
    Undo undo;
};

Step StepOf(const fs::path& folder, const FileChange& change) {
    Step step{change, {Undo::Kind::MoveBack, change.file, {}, change.to}};
    if (change.kind == FileChange::Kind::Remove) {
        step.change.kind = FileChange::Kind::Move;
        step.change.to = step.undo.to = AsideOf(change.file);
    } else if (change.kind == FileChange::Kind::Write && Exists(folder / change.file)) {
        step.undo = {Undo::Kind::PutBack, change.file, ReadFile(folder / change.file, kFileLimit)};
    } else if (change.kind == FileChange::Kind::Write) {
        step.undo = {Undo::Kind::Unmake, change.file, SumOf(change.bytes)};
    }
    return step;
}

/// All is done from here on: after a kill only what was removed is still to go.
void Commit(const fs::path& folder, const std::vector<Step>& steps) {
    std::vector<Undo> drops;
    for (const Step& step : steps) {
        if (IsAside(step.change.to)) drops.push_back({Undo::Kind::Drop, step.change.to});
    }
    if (drops.empty()) return RemoveFile(folder / kRecord);
    ReplaceFile(folder / kRecord, RecordOf(drops));
    try {
        TakeBackAll(folder, drops);
    } catch (const FileError&) {
        // The record stands and has it done before the next change.
    }
}

bool Make(const fs::path& folder, const FileChange& change) {
    if (change.kind == FileChange::Kind::Move)
        return RenameUnlessTaken(folder / change.file, folder / change.to);
    ReplaceFile(folder / change.file, change.bytes);
    return true;
}

}  // namespace

bool HoldsBrokenChange(const fs::path& folder) {
    return Exists(folder / kRecord);
}

bool ChangeTogether(const fs::path& folder, const std::vector<FileChange>& changes) {
    std::vector<Step> steps;
    std::vector<Undo> undos;
    for (const FileChange& change : changes) {
        steps.push_back(StepOf(folder, change));
        undos.push_back(steps.back().undo);
    }
    ReplaceFile(folder / kRecord, RecordOf(undos));
    try {
        for (const Step& step : steps) {
            if (Make(folder, step.change)) continue;
            TakeBackAll(folder, undos);
            return false;
        }
        Commit(folder, steps);
    } catch (...) {
        try {
            TakeBackAll(folder, undos);
        } catch (const FileError&) {
            // The record stands; what is left is taken back before the next change.
        }
        throw;
    }
    return true;
}

bool UndoBrokenChange(const fs::path& folder) {
    if (!HoldsBrokenChange(folder)) return false;
    const auto undos = UndosOf(ReadFile(folder / kRecord, kRecordLimit));
    if (!undos) {
        MoveOnto(folder / kRecord, folder / (std::string(kRecord) + ".damaged"));
        return false;
    }
    TakeBackAll(folder, *undos);
    return true;
}

}  // namespace quillmark
