#include "tools/backup/replacement.h"

#include <algorithm>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/medium.h"
#include "platform/paths.h"
#include "tools/backup/copy_list.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kRoom = ".quillmark-restore";
constexpr std::size_t kListLimit = 256 * 1024 * 1024;

// What an entry of the list is.
constexpr char kFile = 'F';
constexpr char kFolder = 'N';

fs::path RoomIn(const fs::path& folder) {
    return folder / PathOf(kRoom);
}

fs::path ListIn(const fs::path& data) {
    return RoomIn(data) / "moves";
}

bool Exists(const fs::path& path) {
    std::error_code none;
    return fs::exists(fs::symlink_status(path, none));
}

void Rename(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    if (error) throw FileError(to, error);
}

void MakeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw FileError(folder, error);
}

bool IsOneOfTheFiles(const fs::path& name) {
    return std::ranges::any_of(
        kBackupFiles, [&](std::string_view file) { return UpperCase(file) == UpperCase(TextOf(name)); });
}

/// The list lies where others can write: it leads to nothing but files of the data folder and the five above.
bool IsAllowed(const fs::path& place) {
    if (place.empty() || place.has_root_path()) return false;
    const bool above = *place.begin() == "..";
    if (above) return place.parent_path() == ".." && IsOneOfTheFiles(place.filename());
    return std::ranges::find(place, fs::path("..")) == place.end();
}

}  // namespace

Replacement::Replacement(const fs::path& data) : data_(data), files_(data.parent_path()) {}

Replacement::Replacement(const fs::path& data, const fs::path& files) : data_(data), files_(files) {
    MakeFolder(data_);
    MakeFolder(files_);
    UndoUnfinished(data_);
    MakeFolder(RoomIn(data_));
    Lock();
    MakeFolder(RoomIn(files_));
}

/// What is still to be put back stays.
Replacement::~Replacement() {
    if (!isOwner_ || Exists(ListIn(data_))) return;
    lock_.reset();
    std::error_code none;
    fs::remove_all(RoomIn(files_), none);
    fs::remove_all(RoomIn(data_), none);
}

/// A disk that knows no locks does without.
void Replacement::Lock() {
    try {
        lock_.emplace(RoomIn(data_) / "lock", [] { return false; });
    } catch (const FileError& failure) {
        if (failure.kind == FileError::Kind::InUse)
            throw FileError(data_, FileError::Kind::InUse, "another computer is restoring a backup there");
    }
    isOwner_ = true;
}

fs::path Replacement::Add(const fs::path& target) {
    const bool above = target.lexically_relative(data_).begin()->native() == fs::path("..").native();
    const fs::path room = RoomIn(above ? files_ : data_);
    const std::string number = std::to_string(moves_.size());
    moves_.push_back({target, room / ("new-" + number), room / ("old-" + number)});
    return moves_.back().fresh;
}

void Replacement::Replace(const std::function<void()>& afterEach) {
    for (const Move& move : moves_) TakeRightsOf(move.target, move.fresh);
    std::erase_if(folders_, Exists);
    WriteList();
    try {
        MakeFolders();
        for (const Move& move : moves_) {
            if (Exists(move.target)) Rename(move.target, move.former);
            afterEach();
            Rename(move.fresh, move.target);
            afterEach();
        }
        Flush();
        std::error_code error;
        fs::remove(ListIn(data_), error);
        if (error) throw FileError(ListIn(data_), error);
    } catch (...) {
        PutBack();
        throw;
    }
    Flush();
}

void Replacement::MakeFolders() const {
    for (const fs::path& folder : folders_) {
        MakeFolder(folder);
        TakeRightsOf(folder, folder);
    }
}

void Replacement::Flush() const {
    FlushMedium(data_);
    FlushMedium(files_);
}

void Replacement::WriteList() const {
    std::string list;
    const auto add = [&](char kind, const fs::path& place) {
        list += kind + TextOf(place.lexically_relative(data_)) + '\0';
    };
    for (const fs::path& folder : folders_) add(kFolder, folder);
    for (const Move& move : moves_) add(kFile, move.target);
    ReplaceFile(ListIn(data_), list);
}

void Replacement::ReadList() {
    const std::string list = ReadFile(ListIn(data_), kListLimit);
    for (std::size_t begin = 0, end; (end = list.find('\0', begin)) != std::string::npos; begin = end + 1) {
        const fs::path place = PathOf(std::string_view(list).substr(begin + 1, end - begin - 1));
        if (end == begin || !IsAllowed(place))
            throw FileError(ListIn(data_), FileError::Kind::Other, "is damaged");
        if (list[begin] == kFolder)
            folders_.push_back(data_ / place);
        else
            Add(data_ / place);
    }
}

/// Whatever moment the replacement has come to, and however often this is begun.
void Replacement::PutBack() const {
    for (auto each = moves_.rbegin(); each != moves_.rend(); ++each) {
        const Move& move = *each;
        if (!Exists(move.fresh) && Exists(move.target)) Rename(move.target, move.fresh);
        if (Exists(move.former)) Rename(move.former, move.target);
    }
    std::error_code none;
    for (auto folder = folders_.rbegin(); folder != folders_.rend(); ++folder) fs::remove(*folder, none);
    Flush();
    fs::remove(ListIn(data_), none);
}

bool Replacement::UndoUnfinished(const fs::path& data) {
    if (!Exists(RoomIn(data))) return false;
    Replacement left(data);
    try {
        left.Lock();
    } catch (const FileError&) {
        return false;
    }
    if (!Exists(ListIn(data))) return false;
    left.ReadList();
    left.PutBack();
    return true;
}

}  // namespace quillmark
