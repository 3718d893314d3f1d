#include "session/journal.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

#include "platform/append_file.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "platform/temporary_name.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kEnding = ".journal";
constexpr std::string_view kDeclined = ".declined";
constexpr std::string_view kLock = ".lock";
constexpr std::string_view kRecord = "QJ2";
constexpr std::size_t kLimit = std::size_t{1} << 30;

std::uint64_t HashOf(std::string_view bytes) {
    std::uint64_t hash = 14695981039346656037u;
    for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211u;
    return hash;
}

fs::path WithEnding(const fs::path& file, std::string_view ending) {
    fs::path other = file;
    return other += ending;
}

/// A record: a line with the length and the hash of what follows, and that: number of changes, time, cells.
std::string RecordOf(const Snapshot::Cells& cells, std::size_t changes, std::chrono::local_seconds time) {
    std::string body = fmt::format("{} {} {}\n", changes, time.time_since_epoch().count(), cells.size());
    for (const auto& [name, value] : cells) body += fmt::format("{} {}\n", name, value.size()) + value;
    return fmt::format("{} {} {:016x}\n", kRecord, body.size(), HashOf(body)) + body;
}

class Lines {
 public:
    explicit Lines(std::string_view text) : rest(text) {}
    std::string_view Next(char end) {
        const std::size_t at = rest.find(end);
        if (at == rest.npos) throw std::runtime_error("the journal's record is damaged");
        const std::string_view line = rest.substr(0, at);
        rest.remove_prefix(at + 1);
        return line;
    }
    std::uint64_t Number(char end, int base = 10) {
        const std::string_view digits = Next(end);
        std::uint64_t value = 0;
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
        if (read.ec != std::errc{} || read.ptr != digits.data() + digits.size())
            throw std::runtime_error("the journal's record is damaged");
        return value;
    }
    std::string_view Bytes(std::size_t count) {
        if (count > rest.size()) throw std::runtime_error("the journal's record is damaged");
        const std::string_view bytes = rest.substr(0, count);
        rest.remove_prefix(count);
        return bytes;
    }
    std::string_view rest;
};

/// What the whole records of a journal say, up to the first that is torn.
Journal::Left ReadJournal(const std::string& bytes) {
    Journal::Left left;
    Snapshot::Cells cells;
    Lines lines(bytes);
    try {
        while (!lines.rest.empty()) {
            if (lines.Next(' ') != kRecord) break;
            const std::size_t size = lines.Number(' ');
            const std::uint64_t hash = lines.Number('\n', 16);
            const std::string_view body = lines.Bytes(size);
            if (HashOf(body) != hash) break;
            Lines record(body);
            const std::size_t changes = record.Number(' ');
            const std::chrono::seconds time(record.Number(' '));
            Snapshot::Cells next = cells;
            for (std::size_t count = record.Number('\n'); count > 0; --count) {
                const std::string name(record.Next(' '));
                const std::size_t length = record.Number('\n');
                next[name] = record.Bytes(length);
            }
            cells = std::move(next);
            left.changes = changes;
            left.time = std::chrono::local_seconds(time);
        }
    } catch (const std::runtime_error&) {
        // Torn while it was written: what is before counts.
    }
    if (left.changes == 0) return left;
    try {
        left.state = Snapshot::FromCells(cells);
        left.job = left.state->JobName();
    } catch (const std::runtime_error&) {
        left.state = nullptr;
    }
    return left;
}

/// Nothing while the program that writes the journal lives.
std::optional<FileLock> Take(const fs::path& journal) {
    try {
        return FileLock(WithEnding(journal, kLock), [] { return false; });
    } catch (const FileError&) {
        return {};
    }
}

void Remove(const fs::path& journal) {
    std::error_code ignored;
    for (const std::string_view ending : {std::string_view(), kDeclined, kLock})
        fs::remove(WithEnding(journal, ending), ignored);
}

}  // namespace

Journal::Journal(fs::path folder, const fs::path& programFolder)
    : folder_(std::move(folder)),
      prefix_(fmt::format("{:016x}-", HashOf(TextOf(fs::weakly_canonical(programFolder))))),
      file_(folder_ / PathOf(prefix_ + TemporaryName() + std::string(kEnding))) {}

Journal::~Journal() {
    writer_.request_stop();
    if (writer_.joinable()) writer_.join();
    if (lock_) Remove(file_);
}

void Journal::Enter(Entry entry) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(entry));
        used_ = true;
    }
    if (!writer_.joinable()) writer_ = std::jthread([this](std::stop_token stop) { Write(stop); });
    changed_.notify_one();
}

void Journal::Add(std::shared_ptr<const Snapshot> now, std::size_t changes, std::chrono::local_seconds time) {
    Enter({std::move(now), changes, time});
}

void Journal::TakeOver(std::shared_ptr<const Snapshot> now, const Left& left) {
    Enter({std::move(now), left.changes, left.time, left.file});
}

void Journal::Clear() {
    {
        const std::lock_guard lock(mutex_);
        waiting_.clear();
        if (!used_) return;
        used_ = false;
        waiting_.push_back({});
    }
    changed_.notify_one();
}

void Journal::Write(std::stop_token stop) {
    for (;;) {
        std::vector<Entry> entries;
        {
            std::unique_lock lock(mutex_);
            if (!changed_.wait(lock, stop, [this] { return !waiting_.empty(); })) return;
            entries.swap(waiting_);
        }
        try {
            // Each is the whole state: what came meanwhile stands for what was before it.
            for (const Entry& entry : entries)
                if (&entry == &entries.back() || !entry.state || !entry.replaces.empty()) Append(entry);
        } catch (const std::exception&) {
            // A full disk, say: the next record is a whole one in a new file.
            std::error_code ignored;
            fs::remove(file_, ignored);
            written_ = nullptr;
        }
    }
}

void Journal::Append(const Entry& entry) {
    if (!entry.state) {
        std::error_code ignored;
        fs::remove(file_, ignored);
        written_ = nullptr;
        return;
    }
    if (!lock_) {
        MakeOwnFolder(folder_);
        lock_.emplace(WithEnding(file_, kLock), [] { return false; });
    }
    AppendToOwnFile(file_, RecordOf(entry.state->CellsSince(written_.get()), entry.changes, entry.time));
    written_ = entry.state;
    if (!entry.replaces.empty()) Remove(entry.replaces);
}

std::vector<Journal::Left> Journal::LeftByOthers() const {
    std::vector<Left> found;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder_, none)) {
        const std::string name = TextOf(entry.path().filename());
        if (!name.starts_with(prefix_) || !name.ends_with(kEnding) || entry.path() == file_) continue;
        if (!Take(entry.path())) continue;
        Left left;
        try {
            left = ReadJournal(ReadFile(entry.path(), kLimit));
        } catch (const FileError&) {
            continue;
        }
        left.file = entry.path();
        left.wasDeclined = fs::exists(WithEnding(left.file, kDeclined), none);
        left.state ? found.push_back(std::move(left)) : Remove(left.file);
    }
    std::ranges::sort(found, std::greater(), &Left::time);
    return found;
}

void Journal::Decline(const Left& left) const {
    if (left.wasDeclined) return Remove(left.file);
    try {
        AppendToOwnFile(WithEnding(left.file, kDeclined), "");
    } catch (const FileError&) {
        // Asked once more than need be.
    }
}

void Journal::Drop(const Left& left) const {
    Remove(left.file);
}

}  // namespace quillmark
