#include "session/client_folders.h"

#include <chrono>
#include <optional>
#include <system_error>

#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/damaged_file.h"
#include "platform/file_names.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/record_file.h"
#include "platform/shared_file.h"
#include "platform/temporary_name.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr const char* kList = "parapro.dir";
constexpr std::size_t kListLimit = 1024 * 1024;
constexpr const char* kImages = "images";  ///< below a client's folder, made with it
constexpr std::size_t kDefaultsLimit = 1024 * 1024;

/// A folder that is on its way to become a client's, or to nothing.
constexpr std::string_view kStage = ".quillmark-client-";
/// In a client's folder: it is not on the list yet, or will go.
constexpr const char* kBeingAdded = ".being-added";
constexpr const char* kBeingDeleted = ".being-deleted";

bool IsThere(const fs::path& file) {
    std::error_code error;
    return fs::exists(file, error);
}

void RemoveAll(const fs::path& folder) {
    std::error_code error;
    fs::remove_all(folder, error);
    if (error) throw FileError(folder, error);
}

/// Nobody works for an hour on a folder with one file.
bool IsLeftover(const fs::path& stage) {
    std::error_code error;
    const auto made = fs::last_write_time(stage, error);
    return !error && fs::file_time_type::clock::now() - made > std::chrono::hours(1);
}

/// The texts of the records up to a damaged one. `fault` tells of that.
std::vector<std::string> TextsOf(std::string_view bytes, std::string& fault) {
    std::vector<std::string> texts;
    try {
        RecordReader records(kList, bytes);
        while (records.Next()) texts.push_back(records.Text(0));
    } catch (const RecordError& error) {
        fault = error.what();
    }
    return texts;
}

}  // namespace

std::string FaultOfClientName(std::string_view name) {
    std::string fault = FaultOfFileName(name);
    const std::string lowered = Lowered(name);
    if (fault.empty() && (lowered == kImages || lowered == "customforms"))
        fault = "is the name of a folder of the program's own";
    if (fault.empty() && name.starts_with('.')) fault = "begins with a dot";
    return fault;
}

/// A damaged list shows what is whole and says what is not; a line that is no name of a folder below the data
/// folder is no client.
ClientFolders::List ClientFolders::Read() const {
    List list;
    const fs::path file = programFolder_ / kList;
    if (!IsThere(file)) return list;
    std::string damage;
    for (const std::string& name : TextsOf(ReadFile(file, kListLimit), damage)) {
        const std::string fault = FaultOfClientName(name);
        if (fault.empty())
            list.names.push_back(name);
        else
            list.trouble += "\n\"" + name + "\" " + fault;
    }
    if (!damage.empty()) list.trouble += "\n" + damage;
    return list;
}

fs::path ClientFolders::FolderOf(std::string_view name) const {
    return programFolder_ / "data" / PathOf(name);
}

bool ClientFolders::IsOwn(const fs::path& folder) const {
    std::error_code error;
    return !fs::is_symlink(folder, error) && fs::is_directory(folder / kImages, error);
}

/// Others may have changed the list since it was read: one line of it is this program's. A list that is
/// damaged is kept beside it before what is whole takes its place.
void ClientFolders::ChangeList(std::string_view name, bool isToStand) const {
    const fs::path file = programFolder_ / kList;
    ChangeSharedFile(
        file, kListLimit,
        [&](const std::optional<std::string>& present) {
            std::string damage;
            RecordWriter changed;
            for (const std::string& text : TextsOf(present.value_or(""), damage))
                if (text != name) changed.Write({std::string_view(text)});
            if (!damage.empty()) KeepDamagedCopy(file, *present);
            if (isToStand) changed.Write({name});
            return changed.Bytes();
        },
        wait_);
}

bool ClientFolders::Add(const std::string& name) const {
    const fs::path folder = FolderOf(name);
    if (IsThere(folder)) return false;
    MakeFolder(folder.parent_path());
    const fs::path stage = folder.parent_path() / (std::string(kStage) + TemporaryName());
    const fs::path defaults = programFolder_ / "defaults.fld";
    MakeFolder(stage);
    try {
        MakeFolder(stage / kImages);
        if (IsThere(defaults)) ReplaceFile(stage / "defaults.fld", ReadFile(defaults, kDefaultsLimit));
        ReplaceFile(stage / kBeingAdded, "");
        if (!RenameUnlessTaken(stage, folder)) {
            RemoveAll(stage);
            return false;
        }
    } catch (...) {
        std::error_code ignored;
        fs::remove_all(stage, ignored);
        throw;
    }
    EndAdding(folder);
    return true;
}

/// Where the list cannot be changed, the client is none: its folder, which holds nothing yet, goes again.
void ClientFolders::EndAdding(const fs::path& folder) const {
    try {
        ChangeList(TextOf(folder.filename()), true);
    } catch (...) {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
        throw;
    }
    RemoveFile(folder / kBeingAdded);
}

bool ClientFolders::Delete(std::string_view name) const {
    const fs::path folder = FolderOf(name);
    if (!FaultOfClientName(name).empty() || !IsOwn(folder)) {
        ChangeList(name, false);
        return false;
    }
    ReplaceFile(folder / kBeingDeleted, "");
    EndDeleting(folder);
    return true;
}

void ClientFolders::EndDeleting(const fs::path& folder) const {
    try {
        ChangeList(TextOf(folder.filename()), false);
    } catch (...) {
        std::error_code ignored;
        fs::remove(folder / kBeingDeleted, ignored);
        throw;
    }
    const fs::path stage = folder.parent_path() / (std::string(kStage) + TemporaryName());
    MoveOnto(folder, stage);
    RemoveAll(stage);
}

void ClientFolders::Mend() const {
    std::vector<fs::path> folders;
    std::error_code error;
    for (fs::directory_iterator at(programFolder_ / "data", error), end; !error && at != end;
         at.increment(error)) {
        std::error_code unreadable;
        if (at->is_directory(unreadable) && !at->is_symlink(unreadable)) folders.push_back(at->path());
    }
    for (const fs::path& folder : folders) {
        try {
            MendFolder(folder);
        } catch (const FileError&) {
            // Another program is about it at this moment, or the folder may only be read.
        }
    }
}

void ClientFolders::MendFolder(const fs::path& folder) const {
    const std::string name = TextOf(folder.filename());
    if (name.starts_with(kStage)) {
        if (IsLeftover(folder)) RemoveAll(folder);
    } else if (IsThere(folder / kBeingDeleted) && IsOwn(folder)) {
        EndDeleting(folder);
    } else if (IsThere(folder / kBeingAdded) && IsOwn(folder)) {
        ChangeList(name, true);
        RemoveFile(folder / kBeingAdded);
    }
}

}  // namespace quillmark
