#include "tools/backup/backup_window.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/paths.h"
#include "platform/temporary_name.h"
#include "tools/backup/backup.h"
#include "tools/backup/restore.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr const char* kBoxTitle = "  BACKUP";

enum class FolderAccess { Full, None, Meddled };

/// Tried and not asked for: rights come from more than the folder's mode. What can be made there and cannot
/// be renamed or taken away again is in the hands of another program.
FolderAccess AccessTo(const fs::path& folder) {
    const fs::path probe = folder / TemporaryName();
    const fs::path renamed = folder / TemporaryName();
    std::error_code error;
    try {
        ReplaceFile(probe, "");
    } catch (const FileError&) {
        return FolderAccess::None;
    }
    fs::rename(probe, renamed, error);
    if (!error) fs::rename(renamed, probe, error);
    if (!error) fs::remove(probe, error);
    return error ? FolderAccess::Meddled : FolderAccess::Full;
}

bool Exists(const fs::path& file) {
    std::error_code none;
    return fs::exists(FindExisting(file), none);
}

/// "mm/dd/yy".
std::string ShortDate(std::chrono::local_seconds time) {
    const std::chrono::year_month_day date{std::chrono::floor<std::chrono::days>(time)};
    return fmt::format("{:02}/{:02}/{:02}", static_cast<unsigned>(date.month()),
                       static_cast<unsigned>(date.day()), static_cast<int>(date.year()) % 100);
}

std::chrono::local_seconds DateOf(const Drive& drive) {
    std::error_code none;
    return LocalTimeOf(fs::last_write_time(BackupFolderOf(drive), none));
}

std::string AgeOf(std::chrono::local_seconds then, std::chrono::year_month_day today) {
    const auto days = (std::chrono::local_days{today} - std::chrono::floor<std::chrono::days>(then)).count();
    if (days < 0) return "";
    return days == 0 ? ", made today" : days == 1 ? ", made yesterday" : fmt::format(", {} days old", days);
}

std::string Count(std::size_t number, std::string_view one, std::string_view several) {
    return fmt::format("{} {}", number, number == 1 ? one : several);
}

}  // namespace

BackupWindow::BackupWindow(BackupOffice office) : office_(std::move(office)) {
    TestProgramFolder();
    if (endsProgram_) return;
    FindMissing();
    ShowDrives(Look());
}

void BackupWindow::TestProgramFolder() {
    const FolderAccess access = AccessTo(office_.folders.ProgramFolder);
    endsProgram_ = access == FolderAccess::Meddled;
    if (endsProgram_)
        office_.dialogs.Tell(kBoxTitle,
                             "ANTI-VIRUS SOFTWARE MAY BE INTERFERING WITH THIS OPERATION\nTemporarily "
                             "deactivate any such program(s) and try again.",
                             DialogIcon::Stop);
    modeShown_ = access == FolderAccess::Full && !HasOwnData(office_.folders);
    if (modeShown_) mode_ = BackupMode::Admin;
}

void BackupWindow::FindMissing() {
    const bool isLocal = HasOwnData(office_.folders);
    const fs::path& folder = isLocal ? office_.folders.ProgramFolder : office_.folders.DatabasePath;
    for (const char* name : {"DBasePath.txt", "vers.txt", "package.def", "defaults.fld"}) {
        // The marker of the data's version lies among the data in any case.
        const bool isThere = Exists(folder / name) || (std::string_view(name) == "vers.txt" &&
                                                       Exists(office_.folders.DatabasePath / name));
        if (!isThere) missing_.emplace_back(name);
    }
}

std::vector<BackupWindow::Place> BackupWindow::Look() const {
    std::vector<Place> places;
    for (const Drive& drive : office_.drives()) {
        std::error_code none;
        Place place{drive, fs::is_directory(drive.root, none)};
        if (place.isReady) SettleBackup(drive);
        if (place.isReady && HasBackup(drive)) place.backup = DateOf(drive);
        places.push_back(std::move(place));
    }
    return places;
}

/// The chosen drive stays chosen while it is there.
void BackupWindow::ShowDrives(std::vector<Place> places) {
    const std::string chosen = Chosen() ? Chosen()->drive.name : std::string();
    places_ = std::move(places);
    const auto same = std::ranges::find(places_, chosen, [](const Place& place) { return place.drive.name; });
    chosen_ = same == places_.end() ? 0 : static_cast<std::size_t>(same - places_.begin());
    Describe();
}

void BackupWindow::Describe() {
    const Place* place = Chosen();
    if (!place) {
        there_ = "There is no drive to back up to: connect a memory stick or a network place.";
    } else if (!place->isReady) {
        there_ = fmt::format("There is nothing in drive {}.", place->drive.name);
    } else if (!place->backup) {
        there_ = fmt::format("There is no backup on {} yet.", place->drive.name);
    } else {
        try {
            there_ = DescriptionOfBackup(*place);
        } catch (const FileError& failure) {
            there_ = failure.what();
        }
    }
}

std::string BackupWindow::DescriptionOfBackup(const Place& place) const {
    const RestorePreview preview = PreviewOfRestore(place.drive, Home());
    const auto date = *place.backup;
    std::string text = fmt::format("The backup of {}{}: {}, {} in all ({}).\n", ShortDate(date),
                                   AgeOf(date, office_.clock.Today()), Count(preview.jobs, "job", "jobs"),
                                   Count(preview.files, "file", "files"), SizeText(preview.bytes));
    if (preview.replaced == 0) return text + "A restore replaces nothing here.";
    text += fmt::format("A restore replaces {} here", Count(preview.replaced, "file", "files"));
    if (preview.newer == 0) return text + ".";
    return text + fmt::format(", {} of them NEWER than in the backup.", preview.newer);
}

/// A folder that a medium was mounted on may outlive the medium.
bool BackupWindow::IsReady(const Drive& drive) const {
    return std::ranges::any_of(Look(),
                               [&](const Place& place) { return place.drive == drive && place.isReady; });
}

std::vector<WindowControl> BackupWindow::Controls() const {
    std::vector<std::string> names;
    std::vector<std::string> backups;
    std::optional<std::size_t> chosen, line;
    for (const Place& place : places_) {
        if (&place == Chosen()) chosen = names.size();
        names.push_back(place.drive.name);
        if (!place.backup) continue;
        if (&place == Chosen()) line = backups.size();
        backups.push_back(place.drive.name + " " + ShortDate(*place.backup));
    }
    const std::string listed = line ? backups[*line] : std::string();
    if (backups.empty()) backups = {"no existing", "  backups  "};
    const Place* place = Chosen();
    using enum ControlKind;
    return {
        {.name = "lblAcct",
         .kind = Button,
         .text = mode_ == BackupMode::Admin ? "admin" : "user",
         .visible = modeShown_,
         .tooltip = " admin: this computer's own folder; user: the data folder of the settings "},
        {.name = "Drive1",
         .kind = List,
         .text = place ? place->drive.name : "",
         .items = names,
         .index = chosen},
        {.name = "path", .text = place ? BackupPathText(place->drive) : ""},
        {.name = "there", .text = there_},
        {.name = "List1", .kind = List, .text = listed, .items = backups, .index = line},
        {.name = "missing",
         .kind = List,
         .text = fmt::format("{}", fmt::join(missing_, "\n")),
         .items = missing_},
        {.name = "cmdBackup",
         .kind = Button,
         .text = "BACKUP",
         .enabled = place != nullptr,
         .tooltip = " copy jobs and settings to the drive "},
        {.name = "cmdRestore",
         .kind = Button,
         .text = "RESTORE",
         .enabled = place && place->backup,
         .tooltip = " copy jobs and settings back from the drive "},
        {.name = "cmdExit", .kind = Button, .text = "EXIT"},
        {.name = "Timer1", .kind = Timer},
    };
}

void BackupWindow::OnPick(std::string_view name, std::size_t entry) {
    if (name == "Drive1") {
        chosen_ = entry;
    } else if (name == "List1") {
        std::size_t line = 0;
        for (std::size_t i = 0; i < places_.size(); ++i)
            if (places_[i].backup && line++ == entry) chosen_ = i;
    }
    ShowDrives(Look());
}

void BackupWindow::OnClick(std::string_view name, bool, const fs::path&) {
    if (name == "lblAcct") return SwitchMode();
    if (name == "cmdBackup") return Backup();
    if (name == "cmdRestore") return Restore();
    if (name == "cmdExit") return Close();
    if (name != "Timer1") return;
    std::vector<Place> present = Look();
    if (present != places_) ShowDrives(std::move(present));
}

void BackupWindow::SwitchMode() {
    mode_ = mode_ == BackupMode::Admin ? BackupMode::User : BackupMode::Admin;
    Describe();
}

void BackupWindow::Backup() {
    const Drive drive = Chosen()->drive;
    const std::string stays =
        HasBackup(drive) ? fmt::format("\n\nThe backup of {} is as it was.", ShortDate(DateOf(drive))) : "";
    const bool done = Carry([&](const CopyWatch& watch) { MakeBackup(Home(), drive, watch); }, stays);
    ShowDrives(Look());
    if (!done) return;
    office_.dialogs.Tell(kBoxTitle, "Backup completed to location ...\n\n   " + BackupPathText(drive),
                         DialogIcon::Information);
}

void BackupWindow::Restore() {
    const Drive drive = Chosen()->drive;
    if (IsReady(drive) && !HasBackup(drive)) {
        office_.dialogs.Tell(kBoxTitle, "No backup found on drive " + UpperCase(drive.name),
                             DialogIcon::Warning);
        return ShowDrives(Look());
    }
    const bool done = Carry([&](const CopyWatch& watch) { RestoreBackup(drive, Home(), watch); },
                            "\n\nYour files here are as they were.");
    hasRestored_ = hasRestored_ || done;
    ShowDrives(Look());
    if (!done) return;
    office_.dialogs.Tell(kBoxTitle, "Restore completed from location ...\n\n   " + BackupPathText(drive),
                         DialogIcon::Information);
}

/// True when it came to its end. Else the person has been told, or has given up.
bool BackupWindow::Carry(const Copying& copying, std::string_view whatStays) {
    const Drive drive = Chosen()->drive;
    try {
        if (!IsReady(drive))
            throw FileError(drive.root, std::make_error_code(std::errc::no_such_file_or_directory));
        carrier_ ? carrier_(copying) : copying({});
        return true;
    } catch (const CopyCanceled&) {
        return false;
    } catch (const FileError& failure) {
        const bool isReady = IsReady(drive);
        office_.dialogs.Tell(kBoxTitle,
                             isReady ? failure.what() + std::string(whatStays) : "Drive not ready [No Disk]",
                             DialogIcon::Warning);
    }
    return false;
}

}  // namespace quillmark
