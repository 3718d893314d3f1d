#include "session/firm.h"

#include <algorithm>

#include "core/job_folder.h"
#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/damaged_file.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/record_file.h"
#include "platform/shared_file.h"
#include "platform/shared_lock.h"
#include "tools/backup/replacement.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kLocalData = "data\\";

/// A data folder on the network holds a copy of the program; so it is told from a folder that is not there.
bool HoldsProgram(const fs::path& dataFolder) {
    return fs::exists(FindExisting(dataFolder / "Quillmark.exe")) || fs::exists(dataFolder / "quillmark");
}

bool IsLocal(std::string_view databasePath) {
    return Lowered(databasePath) == kLocalData;
}

}  // namespace

/// As the settings are compared and shown: the path ends with a separator.
Settings WithWholePath(Settings settings) {
    if (!settings.databasePath.ends_with('\\') && !settings.databasePath.ends_with('/'))
        settings.databasePath += '\\';
    return settings;
}

Firm::Firm(fs::path programFolder, Machine& machine)
    : programFolder_(std::move(programFolder)),
      machine_(machine),
      clients_(programFolder_, machine.waitForFiles),
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
    settings_ = WithWholePath(
        ReadOrSetAside(SettingsFile(programFolder_), [&] { return ReadSettings(programFolder_); }));
    readSettings_ = settings_;
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

/// A file that cannot be read does not stop the program: it is kept under another name, and what it would
/// have held is as in a new office.
template <class Reader>
auto Firm::ReadOrSetAside(const fs::path& file, Reader read) -> decltype(read()) {
    std::string fault;
    try {
        return RetriedWhileInUse(machine_.waitForFiles, read);
    } catch (const RecordError& error) {
        fault = error.what();
    } catch (const FileError& error) {
        if (error.kind != FileError::Kind::TooLarge && error.kind != FileError::Kind::Other) throw;
        fault = error.what();
    }
    std::string kept = "It could not be renamed.";
    try {
        kept = "It is kept as \"" + TextOf(SetAside(file).filename()) + "\".";
    } catch (const FileError&) {
        // Where nothing can be renamed the file is looked at again at the next start.
    }
    machine_.dialogs.Tell(
        "  ALERT",
        TextOf(file.filename()) + " is damaged, and its defaults are used. " + kept + "\n\n" + fault,
        DialogIcon::Warning);
    return {};
}

void Firm::ReadClients() {
    if (settings_.paraPro) clients_.Mend();
    ClientFolders::List list = clients_.Read();
    clientLines_.assign(1, std::string(kAddClient));
    clientLines_.insert(clientLines_.end(), list.names.begin(), list.names.end());
    if (!list.trouble.empty())
        machine_.dialogs.Tell("", "The list of clients has lines that are left out:" + list.trouble,
                              DialogIcon::Warning);
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
    defaults_ = ReadOrSetAside(folders_.firmDefaultsFile,
                               [&] { return ReadFirmDefaults(folders_.firmDefaultsFile); });
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

/// `merge` gives the bytes that are to stand where these stand now, and names what somebody else has changed
/// as well; the person is asked once about the state that is then replaced. False if the person would rather
/// not replace it.
bool Firm::KeepFile(const fs::path& file, std::size_t limit, const Merge& merge) {
    std::optional<std::string> allowed;
    for (;;) {
        std::vector<std::string> contested;
        std::string seen;
        ChangeSharedFile(
            file, limit,
            [&](const std::optional<std::string>& present) -> std::optional<std::string> {
                seen = present.value_or("");
                std::string after = merge(seen, contested);
                if (contested.empty() || allowed == seen) {
                    contested.clear();
                    return after;
                }
                return std::nullopt;
            },
            machine_.waitForFiles);
        if (contested.empty()) return true;
        if (!ConfirmOver(file, contested)) return false;
        allowed = seen;
    }
}

bool Firm::ConfirmOver(const fs::path& file, const std::vector<std::string>& contested) const {
    std::string names;
    for (const std::string& name : contested) names += "\n" + name;
    const MessageDialog box{"  ALERT",
                            "Somebody else has changed this meanwhile:" + names + "\n\n" +
                                TextOf(file.filename()) + " was " + LastChangeOf(file) +
                                ".\nPut yours in its place ???",
                            {DialogButton::OK, DialogButton::Cancel},
                            DialogButton::Cancel,
                            DialogIcon::Warning};
    return machine_.dialogs.Show(box) == DialogButton::OK;
}

bool Firm::Keep(const FirmDefaults& mine) {
    FirmDefaults keptDefaults;
    const auto mergeDefaults = [&](const std::string& present, std::vector<std::string>& contested) {
        const std::string name = TextOf(folders_.firmDefaultsFile.filename());
        keptDefaults = MergedDefaults(defaults_, mine, FirmDefaultsOfRecords(name, present), contested);
        return FirmDefaultsRecords(keptDefaults);
    };
    if (!KeepFile(folders_.firmDefaultsFile, kFirmDefaultsLimit, mergeDefaults)) return false;
    defaults_ = std::move(keptDefaults);
    Settings keptSettings;
    const auto mergeSettings = [&](const std::string& present, std::vector<std::string>& contested) {
        const Settings now =
            present.empty() ? readSettings_ : WithWholePath(SettingsOfRecords("DBasePath.txt", present));
        keptSettings = MergedSettings(readSettings_, settings_, now, contested);
        return SettingsRecords(keptSettings);
    };
    if (!KeepFile(SettingsFile(programFolder_), kSettingsLimit, mergeSettings)) return false;
    settings_ = readSettings_ = std::move(keptSettings);
    return true;
}

bool Firm::AddClient(const std::string& name) {
    if (!clients_.Add(name)) return false;
    clientLines_.push_back(name);
    return true;
}

bool Firm::DeleteClient(std::string_view name) {
    const bool hadFolder = clients_.Delete(name);
    std::erase(clientLines_, name);
    return hadFolder;
}

}  // namespace quillmark
