#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/settings.h"
#include "platform/record_file.h"
#include "session/client_folders.h"
#include "session/office_fixture.h"
#ifndef _WIN32
#include "support/file_faults.h"
#endif

namespace quillmark::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// The files of the firm, that every session in the office shares.
class FirmFiles : public OfficeTest {
 protected:
    /// What another session saves meanwhile.
    void ElsewhereSave(std::string_view marker, std::string_view value, const Settings& settings) {
        WriteBytes(scratch / "defaults.fld", FirmDefaultRecord(marker, value));
        WriteBytes(SettingsFile(scratch.path()), SettingsRecords(settings));
    }
    void OpenDefaults() {
        screen->TypeName("defaults");
        screen->EnterName();
    }
    void Set(std::string_view row, const std::string& value) {
        const auto& rows = screen->List3();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (!rows[i].text.starts_with(row)) continue;
            Answer({value});
            return screen->EditSetting(i);
        }
        ADD_FAILURE() << "no row " << row;
    }
    std::string Defaults() const { return ReadBytes(scratch / "defaults.fld"); }
};

TEST_F(FirmFiles, EachKeepsWhatItAloneHasChanged) {
    Start();
    OpenDefaults();
    Set("[seller lawfirm]", "Hale & Birch");
    Set("automatic proper-case", "N");
    ElsewhereSave("[seller attys fee]", "$900", {.leapYears = false});
    screen->Click("cmdOpen");
    EXPECT_THAT(Defaults(), HasSubstr("Hale & Birch"));
    EXPECT_THAT(Defaults(), HasSubstr("$900"));
    const Settings kept = ReadSettings(scratch.path());
    EXPECT_FALSE(kept.properCase);
    EXPECT_FALSE(kept.leapYears);
}

TEST_F(FirmFiles, WhatBothHaveChangedIsReplacedOnlyAfterAQuestion) {
    Start();
    OpenDefaults();
    Set("[seller atty]", "Nora Hale-Birch");
    ElsewhereSave("[seller atty]", "Nora Birch", {});
    Answer({"Cancel"});
    screen->Click("cmdOpen");
    EXPECT_THAT(LastBox(), HasSubstr("Somebody else has changed this meanwhile:\n[seller atty]"));
    EXPECT_THAT(Defaults(), HasSubstr("Nora Birch"));
    EXPECT_TRUE(State().HasUnsavedChanges());
    Answer({"OK"});
    screen->Click("cmdOpen");
    EXPECT_THAT(Defaults(), HasSubstr("Nora Hale-Birch"));
}

TEST_F(FirmFiles, ADamagedFileIsSetAsideAndTheProgramStarts) {
    WriteBytes(SettingsFile(scratch.path()), "\"f:\\office");
    WriteBytes(scratch / "defaults.fld", std::string(100, '\0'));
    Start();
    EXPECT_EQ(ReadBytes(scratch / "DBasePath.txt.damaged"), "\"f:\\office");
    EXPECT_EQ(ReadBytes(scratch / "defaults.fld.damaged"), std::string(100, '\0'));
    ASSERT_GE(dialogs.Shown().size(), 2u);
    EXPECT_THAT(dialogs.Shown()[0].text, HasSubstr("It is kept as \"DBasePath.txt.damaged\""));
    EXPECT_EQ(State().cmdOpen.caption, "OPEN");
}

#ifndef _WIN32
TEST_F(FirmFiles, AClientIsAddedAndDeletedWholeThroughKills) {
    const ClientFolders clients(scratch.path(), {});
    const auto standing = [&] {
        const bool listed = !clients.Read().names.empty();
        EXPECT_EQ(listed, fs::exists(scratch / "data/Birch & Bell/images"));
        if (listed) {
            EXPECT_EQ(Defaults(), ReadBytes(scratch / "data/Birch & Bell/defaults.fld"));
        }
        return listed;
    };
    const auto begin = [&] {
        fs::remove_all(scratch / "data");
        fs::create_directories(scratch / "data");
        fs::remove(scratch / "parapro.dir");
    };
    const auto check = [&](int step) {
        SCOPED_TRACE(step);
        clients.Mend();
        standing();
    };
    KillBeforeEveryStep(
        begin, [&] { clients.Add("Birch & Bell"); }, check);
    EXPECT_TRUE(standing());
    const auto beginWithOne = [&] {
        begin();
        clients.Add("Birch & Bell");
    };
    KillBeforeEveryStep(
        beginWithOne, [&] { clients.Delete("Birch & Bell"); }, check);
    EXPECT_FALSE(standing());
}
#endif

}  // namespace
}  // namespace quillmark::test
