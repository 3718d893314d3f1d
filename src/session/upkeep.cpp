#include "session/upkeep.h"

#include <system_error>

#include "core/text_conversions.h"
#include "session/machine.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kUpgradeAddress = "https://www.quillmark.example/quillmark/version/current.txt";
constexpr std::chrono::milliseconds kUpgradeLimit{1000};

bool Renames(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    fs::rename(from, to, failed);
    return !failed;
}

/// Whether files of the program folder may be renamed, tried on one that an install leaves there.
bool MayChange(const fs::path& programFolder) {
    const fs::path present = programFolder / "st6unst.txt";
    const fs::path renamed = programFolder / "st6unst.log";
    if (!fs::exists(present)) return true;
    return Renames(present, renamed) && Renames(renamed, present);
}

void TellOfRights(const std::string& why, Dialogs& dialogs) {
    dialogs.Tell(
        " Elevated Privileges Required",
        why + ". Please RE-START by RIGHT-Clicking the shortcut and choosing \"Run As Administrator\"",
        DialogIcon::Warning);
}

std::optional<std::chrono::year_month_day> ReleaseDate(HttpClient& http) {
    constexpr std::size_t kAnswer = 20;
    constexpr std::size_t kDate = 10;
    const auto answer = http.Get(std::string(kUpgradeAddress), kUpgradeLimit);
    if (!answer || answer->size() != kAnswer) return std::nullopt;
    return ReadDate(answer->substr(0, kDate));
}

std::chrono::year_month_day DateOf(const fs::path& file) {
    const auto written = std::chrono::file_clock::to_sys(fs::last_write_time(file));
    return std::chrono::year_month_day{std::chrono::floor<std::chrono::days>(written)};
}

}  // namespace

bool EndsAtStart(const fs::path& programFolder, const Machine& machine) {
    if (machine.handOver && machine.handOver()) return true;
    if (RunPatch(programFolder, machine.shell, machine.dialogs)) return true;
    if (machine.http && fs::exists(machine.programFile) &&
        OffersUpgrade(programFolder, DateOf(machine.programFile), *machine.http, machine.shell,
                      machine.dialogs))
        return true;
    return RestoresStrandedFiles(programFolder, StoreFolderOf(programFolder, machine.shell), machine.dialogs);
}

fs::path StoreFolderOf(const fs::path& programFolder, Shell& shell) {
    try {
        const fs::path store =
            shell.FolderOf(SpecialFolder::LocalApplication) / "VirtualStore" / programFolder.relative_path();
        if (fs::is_directory(store)) return store;
    } catch (const MachineError&) {
        // A system without such a folder has no virtualisation either.
    }
    return programFolder;
}

void StartUpgrade(const fs::path& programFolder, Shell& shell) {
    shell.Start(programFolder / "UpgradeQM.exe", {"/Quillmark:quillmark"});
}

bool RunPatch(const fs::path& programFolder, Shell& shell, Dialogs& dialogs) {
    const fs::path patch = programFolder / "PATCH.EXE";
    const fs::path started = programFolder / "PATCH.run";
    if (!fs::exists(patch)) return false;
    if (fs::exists(started)) {
        std::error_code ignored;
        fs::remove(patch, ignored);
        fs::remove(started, ignored);
        return false;
    }
    if (!MayChange(programFolder)) {
        TellOfRights("The Upgrade Patch performs file operations that require Administrator privileges",
                     dialogs);
        return true;
    }
    fs::create_directory(started);
    shell.Start(patch, {});
    return true;
}

bool OffersUpgrade(const fs::path& programFolder, std::chrono::year_month_day programDate, HttpClient& http,
                   Shell& shell, Dialogs& dialogs) {
    const auto release = ReleaseDate(http);
    if (!release || *release <= programDate) return false;
    if (!dialogs.Confirm("  UPGRADE NOTICE",
                         "A newer version of Quillmark is available.\nWould you like to upgrade now ???"))
        return false;
    if (!MayChange(programFolder)) {
        TellOfRights("The Upgrade Patch performs file operations that require Administrator privileges",
                     dialogs);
        return true;
    }
    StartUpgrade(programFolder, shell);
    return true;
}

bool RestoresStrandedFiles(const fs::path& programFolder, const fs::path& storeFolder, Dialogs& dialogs) {
    const fs::path stored = storeFolder / "data" / "customforms";
    const fs::path own = programFolder / "data" / "customforms";
    if (storeFolder == programFolder || !fs::is_directory(stored)) return false;
    try {
        // The stored forms are copied beside the present ones first: a failure leaves both as they were.
        const fs::path arriving = programFolder / "data" / "customforms.new";
        fs::remove_all(arriving);
        fs::copy(stored, arriving, fs::copy_options::recursive);
        fs::remove_all(own);
        fs::rename(arriving, own);
        fs::remove_all(stored);
    } catch (const fs::filesystem_error&) {
        TellOfRights("Administrator privileges are required to complete the Restore operation", dialogs);
        return true;
    }
    dialogs.Tell("", "Restore Completed ...\nrestart normally", DialogIcon::Information);
    return true;
}

}  // namespace quillmark
