#include "session/firm.h"

#include <algorithm>

#include "core/job_folder.h"
#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/file_names.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/record_file.h"
#include "platform/shared_file.h"
#include "tools/backup/replacement.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kLocalData = "data\\";
constexpr std::size_t kClientListLimit = 1024 * 1024;

/// A data folder on the network holds a copy of the program; so it is told from a folder that is not there.
bool HoldsProgram(const fs::path& dataFolder) {
    return fs::exists(FindExisting(dataFolder / "Quillmark.exe")) || fs::exists(dataFolder / "quillmark");
}

constexpr const char* kClientList = "parapro.dir";
constexpr const char* kClientImages = "images";  ///< below a client's folder, made with it

bool IsLocal(std::string_view databasePath) {
    return Lowered(databasePath) == kLocalData;
}

}  // namespace

std::string FaultOfClientName(std::string_view name) {
    std::string fault = FaultOfFileName(name);
    const std::string lowered = Lowered(name);
    if (fault.empty() && (lowered == kClientImages || lowered == "customforms"))
        fault = "is the name of a folder of the program's own";
    return fault;
}

Firm::Firm(fs::path programFolder, Machine& machine)
    : programFolder_(std::move(programFolder)),
      machine_(machine),
      context_{settings_, folders_, defaults_, machine.clock} {}

/// A restore that was cut short has changed some files and not others.
void Firm::UndoUnfinishedRestore(const fs::path& data) const {
    try {
        if (!Replacement::UndoUnfinished(data)) return;
        machine_.dialogs.Tell(
            "  BACKUP",
            "A restore was cut short. Your files are as they were before it:\nplease restore "
            "once more.",
            DialogIcon::Warning);
    } catch (const FileError& failure) {
        machine_.dialogs.Tell(
            "  BACKUP",
            std::string("A restore was cut short, and what it replaced could not be put back "
                        "yet:\n") +
                failure.what() + "\nIt is tried again at the next start.",
            DialogIcon::Warning);
    }
}

void Firm::Read() {
    UndoUnfinishedRestore(FindExisting(programFolder_ / "data"));
    settings_ = ReadSettings(programFolder_);
    if (!settings_.databasePath.ends_with('\\') && !settings_.databasePath.ends_with('/'))
        settings_.databasePath += '\\';
    const fs::path data = PathOfStored(settings_.databasePath, programFolder_);
    if (!IsLocal(settings_.databasePath) && !HoldsProgram(data)) {
        machine_.dialogs.Tell("",
                              "UNABLE TO CONNECT TO DATABASE @ ...\n" + settings_.databasePath +
                                  "\nSwitching to local data folder.  \nPlease correct 'Path' setting in "
                                  "defaults.",
                              DialogIcon::Warning);
        dataPathLost_ = true;  // the setting itself stays until it is changed
    }
    UndoUnfinishedRestore(data);
    ReadClients();
}

/// A damaged list shows what is whole and says what is not; a line that is no name of a folder below the data
/// folder is no client.
void Firm::ReadClients() {
    clientLines_.assign(1, std::string(kAddClient));
    const fs::path file = programFolder_ / kClientList;
    if (!fs::exists(file)) return;
    const std::string bytes = ReadFile(file, kClientListLimit);
    std::string trouble;
    try {
        RecordReader records(kClientList, bytes);
        while (records.Next()) {
            const std::string name = records.Text(0);
            const std::string fault = FaultOfClientName(name);
            if (fault.empty()) {
                clientLines_.push_back(name);
            } else {
                trouble += "\n\"" + name + "\" " + fault;
            }
        }
    } catch (const RecordError& error) {
        trouble += std::string("\n") + error.what();
    }
    if (!trouble.empty()) {
        machine_.dialogs.Tell("", "The list of clients has lines that are left out:" + trouble,
                              DialogIcon::Warning);
    }
}

/// With the data folder out of reach, the local one serves.
Settings Firm::ReachableSettings() const {
    Settings reachable = settings_;
    if (dataPathLost_) reachable.databasePath = kLocalData;
    return reachable;
}

bool Firm::DataIsNewer() const {
    const fs::path marker = PathOfStored(ReachableSettings().databasePath, programFolder_) / "vers.txt";
    return fs::exists(machine_.programFile) && fs::exists(marker) &&
           fs::last_write_time(marker) > fs::last_write_time(machine_.programFile);
}

void Firm::Serve(std::string_view client) {
    client_ = client;
    folders_ = FoldersOf(programFolder_, ReachableSettings(), client);
    defaults_ = ReadFirmDefaults(folders_.firmDefaultsFile);
}

void Firm::MakeFolders() const {
    try {
        if (IsLocal(ReachableSettings().databasePath)) MakeFolder(folders_.DatabasePath);
        MakeFolder(folders_.ImagesFolder);
        MendJobFolder(folders_, machine_.waitForFiles);
    } catch (const FileError& failure) {
        // A folder that may only be read can still be worked from.
        if (failure.kind != FileError::Kind::Denied) throw;
    }
}

AddressBooks Firm::Books() const {
    return {folders_.DatabasePath, machine_.clock, machine_.waitForFiles};
}

void Firm::ChangeDatabasePath(const std::string& path) {
    settings_.databasePath = path;
    dataPathLost_ = false;
    folders_ = FoldersOf(programFolder_, settings_, client_);
}

void Firm::Keep(FirmDefaults defaults) {
    WriteFirmDefaults(folders_.firmDefaultsFile, defaults);
    WriteSettings(programFolder_, settings_);
    defaults_ = std::move(defaults);
}

/// Others may have changed the list since it was read: one line of it is this program's.
void Firm::ChangeClientList(std::string_view name, bool isToStand) const {
    ChangeSharedFile(programFolder_ / kClientList, kClientListLimit,
                     [&](const std::optional<std::string>& present) {
                         RecordWriter changed;
                         const std::string bytes = present.value_or("");
                         RecordReader records(kClientList, bytes);
                         while (records.Next()) {
                             if (records.Text(0) != name) changed.Write({std::string_view(records.Text(0))});
                         }
                         if (isToStand) changed.Write({name});
                         return changed.Bytes();
                     });
}

fs::path Firm::ClientFolder(std::string_view name) const {
    return programFolder_ / "data" / PathOf(name);
}

bool Firm::AddClient(const std::string& name) {
    const fs::path folder = ClientFolder(name);
    if (fs::exists(folder)) return false;
    const fs::path defaults = programFolder_ / "defaults.fld";
    fs::create_directories(folder / kClientImages);
    if (fs::exists(defaults)) fs::copy_file(defaults, folder / "defaults.fld");
    ChangeClientList(name, true);
    clientLines_.push_back(name);
    return true;
}

bool Firm::DeleteClient(std::string_view name) {
    const fs::path folder = ClientFolder(name);
    const bool isOwn = FaultOfClientName(name).empty() && !fs::is_symlink(folder) &&
                       fs::is_directory(folder / kClientImages);
    if (isOwn) fs::remove_all(folder);
    ChangeClientList(name, false);
    std::erase(clientLines_, name);
    return isOwn;
}

}  // namespace quillmark
