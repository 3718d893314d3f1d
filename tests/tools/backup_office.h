#pragma once

#include <gmock/gmock.h>

#include <map>
#include <optional>
#include <string>

#include "core/folders.h"
#include "platform/clock.h"
#include "platform/paths.h"
#include "support/scratch.h"
#include "tools/backup/backup_window.h"

/// An office whose data lie on the network, a program folder with data of its own, and drives E, F and,
/// without a medium, G.
namespace quillmark::test {

namespace fs = std::filesystem;

/// The files below a folder by their path, with their bytes. Empty folders are "NAME/".
using Tree = std::map<std::string, std::string>;

inline Tree TreeOf(const fs::path& folder) {
    Tree tree;
    if (!fs::exists(folder)) return tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).generic_string();
        if (entry.is_regular_file()) tree[name] = ReadBytes(entry.path());
        if (entry.is_directory() && fs::is_empty(entry.path())) tree[name + "/"] = "";
    }
    return tree;
}

class BackupOfficeTest : public ::testing::Test {
 protected:
    BackupOfficeTest() {
        Put(scratch / "program", {{"data/Local.dat", "local job"},
                                  {"data/customforms/Rider.docx", "local rider"},
                                  {"data/customforms/Letter.docx", "stale letter"},
                                  {"config.txt", "c"},
                                  {"DBasePath.txt", "\"z\\data\\\"\r\n"},
                                  {"defaults.fld", "d"},
                                  {"quillmark.exe", "no part of a backup"}});
        Put(scratch / "z", {{"data/Smith.dat", "job"},
                            {"data/Attorneys.lst", "list"},
                            {"data/images/Smith_201.bmp", std::string(300'000, 'p')},
                            {"data/customforms/Letter.docx", "letter"},
                            {"data/.quillmark-0123.tmp", "half a file of somebody at work"},
                            {"package.def", "packages"},
                            {"parapro.dir", "clients"}});
        fs::create_directories(scratch / "e");
        fs::create_directories(scratch / "f");
    }

    static void Put(const fs::path& folder, const Tree& files) {
        for (const auto& [name, bytes] : files) {
            fs::create_directories((folder / name).parent_path());
            WriteBytes(folder / name, bytes);
        }
    }

    /// With the data folder that the settings name; the network's by default.
    Folders FoldersAt(const std::string& stored = "../z/data") const {
        Settings settings;
        settings.databasePath = stored;
        return FoldersOf(scratch / "program", settings);
    }
    BackupHome Home(BackupMode mode = BackupMode::User) const { return HomeOf(mode, FoldersAt()); }
    Drive DriveOf(char letter) const {
        const char folder[] = {static_cast<char>(letter - 'A' + 'a'), '\0'};
        return {std::string{letter, ':'}, scratch / folder};
    }
    BackupOffice Office(const std::string& stored = "../z/data") {
        return {FoldersAt(stored), dialogs, clock, [this] {
                    return std::vector{DriveOf('E'), DriveOf('F'), DriveOf('G')};
                }};
    }
    fs::path BackupOn(char letter) const { return DriveOf(letter).root / "QUILLMARK BACKUP"; }

    std::string LastBox() { return dialogs.Shown().empty() ? std::string() : dialogs.Shown().back().text; }

    ScratchFolder scratch;
    ScriptedDialogs dialogs;
    FixedClock clock{std::chrono::year(2026) / 3 / 9};

    const Tree kNetwork = {{"data/Smith.dat", "job"},
                           {"data/Attorneys.lst", "list"},
                           {"data/images/Smith_201.bmp", std::string(300'000, 'p')},
                           {"data/customforms/Letter.docx", "letter"},
                           {"data/customforms/Rider.docx", "local rider"},
                           {"package.def", "packages"},
                           {"parapro.dir", "clients"}};
    const Tree kOwn = {{"data/Local.dat", "local job"},
                       {"data/customforms/Rider.docx", "local rider"},
                       {"data/customforms/Letter.docx", "stale letter"},
                       {"config.txt", "c"},
                       {"DBasePath.txt", "\"z\\data\\\"\r\n"},
                       {"defaults.fld", "d"}};
};

}  // namespace quillmark::test
