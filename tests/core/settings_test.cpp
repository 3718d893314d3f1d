#include "core/settings.h"

#include <gtest/gtest.h>

#include "core/folders.h"
#include "platform/record_file.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

TEST(Settings, HaveTheirPlacesInTheFile) {
    const Settings settings = {"n:\\shared\\", true, false, true, Footers::LawFirm, true, false, true};
    const std::string bytes =
        "\"n:\\shared\\\"\r\n\"Y\"\r\n\"N\"\r\n\"Y\"\r\n\"P\"\r\n\"ON\"\r\n\"N\"\r\n\"Y\"\r\n";
    EXPECT_EQ(SettingsRecords(settings), bytes);
    EXPECT_EQ(SettingsOfRecords("f", bytes), settings);
}

TEST(Settings, AnOlderFileLeavesTheDefaults) {
    const Settings settings = SettingsOfRecords("f", "\"data\\\"\r\n\"y\"\r\n\"n\"\r\n\"\"\r\n\"p\"\r\n");
    const Settings expected = {"data\\", true, false, true, Footers::LawFirm, false, true, true};
    EXPECT_EQ(settings, expected);
    EXPECT_EQ(SettingsOfRecords("f", ""), Settings());
    EXPECT_THROW(SettingsOfRecords("f", "\"data\\\",\"Y\"\r\n"), RecordError);
    EXPECT_THROW(SettingsOfRecords("f", "data\\\r\n"), RecordError);
}

TEST(Settings, AreKeptInTheProgramFolder) {
    const ScratchFolder folder;
    EXPECT_EQ(ReadSettings(folder.path()), Settings());
    Settings settings;
    settings.leapYears = false;
    WriteBytes(SettingsFile(folder.path()), SettingsRecords(settings));
    EXPECT_EQ(ReadSettings(folder.path()), settings);
}

TEST(Folders, LieBelowTheProgramFolderByDefault) {
    const Folders folders = FoldersOf("/firm/program", {});
    EXPECT_EQ(folders.DatabasePath, "/firm/program/data");
    EXPECT_EQ(folders.JobFolder, folders.DatabasePath);
    EXPECT_EQ(folders.CustomFormsFolder, "/firm/program/data/customforms");
    EXPECT_EQ(folders.ImagesFolder, "/firm/program/data/images");
    EXPECT_EQ(folders.firmDefaultsFile, "/firm/program/defaults.fld");
    EXPECT_TRUE(FoldersOf(".", {}).JobFolder.is_absolute());
}

TEST(Folders, AClientHasItsOwnInParaProMode) {
    Settings settings;
    settings.databasePath = "/srv/firm/";
    EXPECT_EQ(FoldersOf("/p", settings, "Ames").JobFolder, "/srv/firm") << "the mode is off";
    settings.paraPro = true;
    EXPECT_EQ(FoldersOf("/p", settings).JobFolder, "/srv/firm") << "no client chosen";
    const Folders folders = FoldersOf("/p", settings, "Ames & Lee");
    EXPECT_EQ(folders.JobFolder, "/p/data/Ames & Lee");
    EXPECT_EQ(folders.ImagesFolder, "/p/data/Ames & Lee/images");
    EXPECT_EQ(folders.firmDefaultsFile, "/p/data/Ames & Lee/defaults.fld");
    EXPECT_EQ(folders.DatabasePath, "/srv/firm");
    EXPECT_EQ(folders.CustomFormsFolder, "/srv/firm/customforms");
}

TEST(Folders, AreFoundWhateverTheirCase) {
    const ScratchFolder folder;
    fs::create_directories(folder / "Shared/CustomForms");
    WriteBytes(folder / "DEFAULTS.FLD", "");
    Settings settings;
    settings.databasePath = "shared\\";
    const Folders folders = FoldersOf(folder.path(), settings);
    EXPECT_EQ(folders.CustomFormsFolder, folder / "Shared/CustomForms");
    EXPECT_EQ(folders.firmDefaultsFile, folder / "DEFAULTS.FLD");
}

}  // namespace
}  // namespace quillmark
