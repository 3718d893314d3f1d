#include <algorithm>
#include <fstream>

#include "core/text_conversions.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/paths.h"
#include "platform/record_file.h"
#include "selection/document_catalogue.h"
#include "selection/packages.h"
#include "session/main_screen.h"
#include "session/upkeep.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kLocalData = "data\\";
constexpr std::string_view kAddClient = "< ADD LAWFIRM / CLIENT >";
constexpr std::size_t kClientListLimit = 1024 * 1024;

std::chrono::year_month_day DateOf(const fs::path& file) {
    const auto written = std::chrono::file_clock::to_sys(fs::last_write_time(file));
    return std::chrono::year_month_day{std::chrono::floor<std::chrono::days>(written)};
}

/// A data folder on the network holds a copy of the program; so it is told from a folder that is not there.
bool HoldsProgram(const fs::path& dataFolder) {
    return fs::exists(FindExisting(dataFolder / "Quillmark.exe")) || fs::exists(dataFolder / "quillmark");
}

std::string ClientRecords(const std::vector<std::string>& clients) {
    RecordWriter records;
    for (const std::string& client : clients) records.Write({std::string_view(client)});
    return records.Bytes();
}

bool IsLocal(std::string_view databasePath) {
    return Lowered(databasePath) == kLocalData;
}

}  // namespace

bool MainScreen::Start() {
    if ((machine_.handOver && machine_.handOver()) || Upkeep()) {
        ended_ = true;
        return false;
    }
    ReadOffice();
    if (DataIsNewer()) {
        machine_.dialogs.Tell("", "UPGRADE REQUIRED, please visit https://www.quillmark.example",
                              DialogIcon::Warning);
        ended_ = true;
        return false;
    }
    UseFolders({});
    FillList1();
    WarnOfEmptyDefaults();
    StartAnew();
    if (settings_.paraPro) AskForClient();
    return true;
}

bool MainScreen::Upkeep() {
    if (RunPatch(programFolder_, machine_.shell, machine_.dialogs)) return true;
    if (machine_.http && fs::exists(machine_.programFile) &&
        OffersUpgrade(programFolder_, DateOf(machine_.programFile), *machine_.http, machine_.shell,
                      machine_.dialogs))
        return true;
    return RestoresStrandedFiles(programFolder_, StoreFolderOf(programFolder_, machine_.shell),
                                 machine_.dialogs);
}

void MainScreen::ReadOffice() {
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
    ReadClients();
}

/// With the data folder out of reach, the local one serves.
Settings MainScreen::ReachableSettings() const {
    Settings reachable = settings_;
    if (dataPathLost_) reachable.databasePath = kLocalData;
    return reachable;
}

bool MainScreen::DataIsNewer() {
    const fs::path marker = PathOfStored(ReachableSettings().databasePath, programFolder_) / "vers.txt";
    return fs::exists(machine_.programFile) && fs::exists(marker) &&
           fs::last_write_time(marker) > fs::last_write_time(machine_.programFile);
}

void MainScreen::UseFolders(std::string_view client) {
    client_ = client;
    folders_ = FoldersOf(programFolder_, ReachableSettings(), client);
    fs::create_directories(folders_.ImagesFolder);
    firmDefaults_ = ReadFirmDefaults(folders_.firmDefaultsFile);
}

void MainScreen::FillList1() {
    PackageFile packages;
    try {
        packages = ReadPackages(programFolder_);
        for (const std::string& fault : packages.faults)
            machine_.dialogs.Tell("", fault, DialogIcon::Warning);
    } catch (const FileError& failure) {
        machine_.dialogs.Tell("", failure.what(), DialogIcon::Warning);
    }
    quillmark::FillList1(packages, folders_, screen_);
}

void MainScreen::WarnOfEmptyDefaults() {
    if (settings_.paraPro || !firmDefaults_.IsEmpty()) return;
    machine_.dialogs.Tell("IMPORTANT",
                          "Your company defaults have not been set !!\n(see Page 3 of User's Guide for "
                          "instructions)",
                          DialogIcon::Warning);
}

void MainScreen::ReadClients() {
    clients_.assign(1, std::string(kAddClient));
    const fs::path file = programFolder_ / "parapro.dir";
    if (!fs::exists(file)) return;
    const std::string bytes = ReadFile(file, kClientListLimit);
    RecordReader records(TextOf(file), bytes);
    while (records.Next()) clients_.push_back(records.Text(0));
}

void MainScreen::AskForClient() {
    choosingClient_ = true;
    screen_.List1Enabled = screen_.List2Enabled = false;
    for (Button* button : {&screen_.cmdOpen, &screen_.cmdTemplate, &screen_.cmdPackages, &screen_.cmdCustom,
                           &screen_.cmdReset})
        button->enabled = false;
    screen_.picInfo.clear();
    screen_.cmdSelect.visible = false;
}

void MainScreen::ServeClient(const std::string& name) {
    choosingClient_ = false;
    UseFolders(name);
    StartAnew();
}

void MainScreen::AddClient() {
    const auto name = machine_.dialogs.Ask({" NEW CLIENT ...", "ENTER NAME OF LAWFIRM", ""});
    if (!name || name->empty()) return;
    const fs::path folder = programFolder_ / "data" / PathOf(*name);
    if (fs::exists(folder)) {
        machine_.dialogs.Tell("", "A client of this name exists already: " + *name, DialogIcon::Warning);
        return;
    }
    const fs::path defaults = programFolder_ / "defaults.fld";
    fs::create_directories(folder / "images");
    if (fs::exists(defaults)) fs::copy_file(defaults, folder / "defaults.fld");
    std::vector<std::string> names(clients_.begin() + 1, clients_.end());
    names.push_back(*name);
    ReplaceFile(programFolder_ / "parapro.dir", ClientRecords(names));
    clients_.push_back(*name);
    ServeClient(*name);
    TypeName("DEFAULTS");
    EnterName();
}

void MainScreen::SelectClient(std::string_view name) {
    Require(choosingClient_, "no client is being chosen");
    Require(std::find(clients_.begin(), clients_.end(), name) != clients_.end(),
            "there is no client \"" + std::string(name) + "\"");
    if (name == kAddClient) return AddClient();
    ServeClient(std::string(name));
}

void MainScreen::DeleteClient(std::string_view name) {
    Require(choosingClient_, "no client is being chosen");
    const auto client = std::find(clients_.begin() + 1, clients_.end(), name);
    Require(client != clients_.end(), "there is no client \"" + std::string(name) + "\"");
    const auto answer = machine_.dialogs.Show(
        {" Warning",
         "You are about to permanently delete  " + UpperCase(name) + "  and all associated data.",
         {DialogButton::OK, DialogButton::Cancel},
         DialogButton::Cancel,
         DialogIcon::Warning});
    if (answer == DialogButton::Cancel) {
        machine_.dialogs.Tell("", "Action Canceled");
        return;
    }
    fs::remove_all(programFolder_ / "data" / PathOf(std::string(name)));
    clients_.erase(client);
    ReplaceFile(programFolder_ / "parapro.dir",
                ClientRecords(std::vector<std::string>(clients_.begin() + 1, clients_.end())));
    machine_.dialogs.Tell("", "Client Deleted");
}

}  // namespace quillmark
