#include "session/firm.h"

#include <algorithm>

#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "platform/record_file.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kLocalData = "data\\";
constexpr std::size_t kClientListLimit = 1024 * 1024;

/// A data folder on the network holds a copy of the program; so it is told from a folder that is not there.
bool HoldsProgram(const fs::path& dataFolder) {
    return fs::exists(FindExisting(dataFolder / "Quillmark.exe")) || fs::exists(dataFolder / "quillmark");
}

bool IsLocal(std::string_view databasePath) {
    return Lowered(databasePath) == kLocalData;
}

}  // namespace

Firm::Firm(fs::path programFolder, Machine& machine)
    : programFolder_(std::move(programFolder)),
      machine_(machine),
      context_{settings_, folders_, defaults_, machine.clock} {}

void Firm::Read() {
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
    clientLines_.assign(1, std::string(kAddClient));
    const fs::path clients = programFolder_ / "parapro.dir";
    if (!fs::exists(clients)) return;
    const std::string bytes = ReadFile(clients, kClientListLimit);
    RecordReader records(TextOf(clients), bytes);
    while (records.Next()) clientLines_.push_back(records.Text(0));
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
    fs::create_directories(folders_.ImagesFolder);
    defaults_ = ReadFirmDefaults(folders_.firmDefaultsFile);
}

AddressBooks Firm::Books() const {
    return {folders_.DatabasePath, machine_.clock, machine_.waitForBooks};
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

void Firm::WriteClients() const {
    RecordWriter records;
    for (std::size_t i = 1; i < clientLines_.size(); ++i) records.Write({std::string_view(clientLines_[i])});
    ReplaceFile(programFolder_ / "parapro.dir", records.Bytes());
}

bool Firm::AddClient(const std::string& name) {
    const fs::path folder = programFolder_ / "data" / PathOf(name);
    if (fs::exists(folder)) return false;
    const fs::path defaults = programFolder_ / "defaults.fld";
    fs::create_directories(folder / "images");
    if (fs::exists(defaults)) fs::copy_file(defaults, folder / "defaults.fld");
    clientLines_.push_back(name);
    try {
        WriteClients();
    } catch (...) {
        clientLines_.pop_back();
        throw;
    }
    return true;
}

void Firm::DeleteClient(std::string_view name) {
    fs::remove_all(programFolder_ / "data" / PathOf(std::string(name)));
    std::erase(clientLines_, name);
    WriteClients();
}

}  // namespace quillmark
