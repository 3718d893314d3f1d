#include "tools/backup/backup.h"

#include "backup_office.h"
#include "platform/atomic_file.h"
#include "tools/backup/drive_lock.h"
#include "tools/backup/replacement.h"
#include "tools/backup/restore.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::Tree;
using test::TreeOf;
using test::WriteBytes;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Key;
using ::testing::Not;
using ::testing::StartsWith;
using Stage = CopyProgress::Stage;

class Backups : public test::BackupOfficeTest {};

TEST_F(Backups, EachModeHasItsOwnFilesAndTheNextBackupHasNoOlderOnes) {
    MakeBackup(Home(BackupMode::Admin), DriveOf('E'), {});
    EXPECT_EQ(TreeOf(BackupOn('E')), kOwn);
    const Tree before = TreeOf(scratch / "z");
    MakeBackup(Home(BackupMode::User), DriveOf('E'), {});
    EXPECT_EQ(TreeOf(BackupOn('E')), kNetwork) << "the firm's own form stands before its stale copy";
    EXPECT_EQ(TreeOf(scratch / "z"), before);

    for (const char* own : {"data\\", "DATA/", "../program/data"}) {
        MakeBackup(HomeOf(BackupMode::User, FoldersAt(own)), DriveOf('E'), {});
        EXPECT_EQ(TreeOf(BackupOn('E')), kOwn) << own;
    }
    EXPECT_EQ(TreeOf(DriveOf('E').root).size(), kOwn.size()) << "nothing is left beside it";
}

TEST_F(Backups, ABackupOnTheDrivesOwnDataIsNoPartOfTheNext) {
    const BackupHome home = HomeOf(BackupMode::User, FoldersAt("../z"));
    const Drive drive{"Z:", scratch / "z"};
    MakeBackup(home, drive, {});
    MakeBackup(home, drive, {});
    EXPECT_THAT(TreeOf(scratch / "z/QUILLMARK BACKUP"), Contains(Key("data/data/Smith.dat")));
    EXPECT_THAT(TreeOf(scratch / "z/QUILLMARK BACKUP"), Not(Contains(Key(HasSubstr("QUILLMARK BACKUP")))));
}

TEST_F(Backups, ARestoreOverwritesInPlaceAndLeavesOtherFilesAlone) {
    using namespace std::chrono_literals;
    const auto old = fs::last_write_time(scratch / "z/data/Smith.dat") - 24h;
    fs::last_write_time(scratch / "z/data/Smith.dat", old);
    MakeBackup(Home(), DriveOf('E'), {});
    fs::rename(scratch / "z/data/Smith.dat", scratch / "z/data/SMITH.dat");
    WriteBytes(scratch / "z/data/SMITH.dat", "changed since");
    WriteBytes(scratch / "z/data/New.dat", "made since");
    WriteBytes(scratch / "z/data/Access.lok", "held by somebody");
    WriteBytes(BackupOn('E') / "data/Access.lok", "held by nobody any more");
    fs::remove_all(scratch / "z/data/customforms");

    const RestorePreview preview = PreviewOfRestore(DriveOf('E'), Home());
    EXPECT_EQ(preview.jobs, 1u);
    EXPECT_EQ(preview.replaced, 5u);
    EXPECT_EQ(preview.newer, 1u);

    RestoreBackup(DriveOf('E'), Home(), {});
    Tree expected = kNetwork;
    expected.erase("data/Smith.dat");
    expected.insert({{"data/SMITH.dat", "job"},
                     {"data/New.dat", "made since"},
                     {"data/Access.lok", "held by somebody"},
                     {"data/.quillmark-0123.tmp", "half a file of somebody at work"}});
    EXPECT_EQ(TreeOf(scratch / "z"), expected);
    EXPECT_EQ(fs::last_write_time(scratch / "z/data/SMITH.dat"), old);

    fs::remove_all(scratch / "z");
    RestoreBackup(DriveOf('E'), Home(), {});
    expected = kNetwork;
    expected["data/Access.lok"] = "held by nobody any more";
    EXPECT_EQ(TreeOf(scratch / "z"), expected) << "on a new computer";
}

TEST_F(Backups, WhateverFailsAtAnyStepLeavesTheOldBackupAndTheOffice) {
    MakeBackup(Home(BackupMode::Admin), DriveOf('E'), {});
    const Tree old = TreeOf(scratch / "e");
    const Tree office = TreeOf(scratch / "z");
    const auto expectFailure = [&](const CopyWatch& watch, const std::string& what) {
        try {
            MakeBackup(Home(), DriveOf('E'), watch);
            ADD_FAILURE() << what << " did not fail";
        } catch (const CopyCanceled&) {
        } catch (const FileError&) {
        }
        if (fs::exists(scratch / "pulled")) fs::rename(scratch / "pulled", scratch / "e");
        SettleBackup(DriveOf('E'));
        EXPECT_EQ(TreeOf(scratch / "e"), old) << what;
        EXPECT_EQ(TreeOf(scratch / "z"), office) << what;
    };
    int steps = 0;
    MakeBackup(Home(), DriveOf('F'), [&](const CopyProgress& now) {
        steps += now.stage < Stage::Replacing ? 1 : 0;
        return true;
    });
    for (int last = 0; last < steps; ++last) {
        int step = 0;
        expectFailure([&](const CopyProgress&) { return step++ != last; },
                      "canceled at " + std::to_string(last));
        step = 0;
        expectFailure(
            [&](const CopyProgress&) {
                if (step++ == last) fs::rename(scratch / "e", scratch / "pulled");
                return true;
            },
            "pulled out at " + std::to_string(last));
    }
    expectFailure(
        [&](const CopyProgress& now) {
            if (now.stage == Stage::Comparing && now.filesDone == 0)
                WriteBytes(scratch / "e/QUILLMARK BACKUP.new/data/Smith.dat", "jab");
            return true;
        },
        "a bad medium");
    const DriveLock another(DriveOf('E'));
    EXPECT_THROW(MakeBackup(Home(), DriveOf('E'), {}), FileError) << "another computer is at it";
}

TEST_F(Backups, ABackupCutShortBetweenTwoNamesIsSettled) {
    MakeBackup(Home(), DriveOf('E'), {});
    fs::rename(BackupOn('E'), scratch / "e/QUILLMARK BACKUP.old");
    test::BackupOfficeTest::Put(scratch / "e/QUILLMARK BACKUP.new", {{"data/Smith.dat", "newer"}});
    BackupWindow window(Office());
    EXPECT_TRUE(window.Control("cmdRestore").enabled);
    EXPECT_EQ(TreeOf(BackupOn('E')), kNetwork);
    EXPECT_EQ(TreeOf(scratch / "e").size(), kNetwork.size());
}

TEST_F(Backups, ARestoreThatFailsOrIsCanceledChangesNothing) {
    MakeBackup(Home(), DriveOf('E'), {});
    WriteBytes(scratch / "z/data/Smith.dat", "changed since");
    WriteBytes(scratch / "z/package.def", "changed since");
    fs::remove_all(scratch / "z/data/images");
    const Tree before = TreeOf(scratch / "z");
    const auto expectNothing = [&](const CopyWatch& watch) {
        EXPECT_ANY_THROW(RestoreBackup(DriveOf('E'), Home(), watch));
        EXPECT_EQ(TreeOf(scratch / "z"), before);
    };
    for (int last = 0; last < 12; ++last)
        expectNothing([&, step = 0](const CopyProgress&) mutable { return step++ != last; });
    expectNothing([&](const CopyProgress& now) {
        if (now.stage == Stage::Copying && now.filesDone == 3) fs::rename(scratch / "e", scratch / "pulled");
        return true;
    });
    fs::rename(scratch / "pulled", scratch / "e");
    // A file of the new ones is lost while they take their places.
    expectNothing([&](const CopyProgress& now) {
        if (now.stage == Stage::Replacing && now.filesDone == 0)
            fs::remove(scratch / "z/.quillmark-restore/new-5");
        return true;
    });
}

TEST_F(Backups, AListOfMovesThatLeadsElsewhereIsNotFollowed) {
    const std::string list = std::string("F../../program/config.txt") + '\0';
    test::BackupOfficeTest::Put(scratch / "z/data/.quillmark-restore", {{"moves", list}, {"old-0", "mine"}});
    EXPECT_THROW(Replacement::UndoUnfinished(scratch / "z/data"), FileError);
    EXPECT_EQ(ReadBytes(scratch / "program/config.txt"), "c");
}

TEST_F(Backups, TheWindowListsDrivesBackupsAndWhatIsMissing) {
    MakeBackup(Home(), DriveOf('F'), {});
    using namespace std::chrono;
    const auto day = sys_days{year(2026) / 3 / 7} + seconds(12h);
    fs::last_write_time(BackupOn('F'), file_clock::from_sys(day));
    BackupWindow window(Office());
    EXPECT_EQ(window.Control("lblAcct").text, "admin");
    EXPECT_TRUE(window.Control("lblAcct").visible);
    EXPECT_THAT(window.Control("Drive1").items, ElementsAre("E:", "F:", "G:"));
    EXPECT_EQ(window.Control("path").text, "E:\\QUILLMARK BACKUP\\");
    EXPECT_THAT(window.Control("List1").items, ElementsAre("F: 03/07/26"));
    EXPECT_THAT(window.Control("missing").items,
                ElementsAre("DBasePath.txt", "vers.txt", "package.def", "defaults.fld"));
    EXPECT_FALSE(window.Control("cmdRestore").enabled);

    window.Click("lblAcct");
    EXPECT_EQ(window.Control("lblAcct").text, "user");
    window.Pick("List1", 0);
    EXPECT_EQ(window.Control("path").text, "F:\\QUILLMARK BACKUP\\");
    EXPECT_TRUE(window.Control("cmdRestore").enabled);
    EXPECT_THAT(window.Control("there").text,
                StartsWith("The backup of 03/07/26, 2 days old: 1 job, 7 files"));

    fs::remove_all(BackupOn('F'));
    window.Click("cmdRestore");
    EXPECT_EQ(LastBox(), "No backup found on drive F:");
    EXPECT_THAT(window.Control("List1").items, ElementsAre("no existing", "  backups  "));

    WriteBytes(scratch / "program/data/vers.txt", "");
    BackupWindow local(Office("data\\"));
    EXPECT_FALSE(local.Control("lblAcct").visible);
    EXPECT_EQ(local.Control("lblAcct").text, "user");
    EXPECT_THAT(local.Control("missing").items, ElementsAre("package.def"));
}

TEST_F(Backups, TheWindowTellsHowItEnded) {
    BackupWindow window(Office());
    window.Click("lblAcct");
    window.Click("cmdBackup");
    EXPECT_EQ(LastBox(), "Backup completed to location ...\n\n   E:\\QUILLMARK BACKUP\\");
    EXPECT_TRUE(window.Control("cmdRestore").enabled);
    fs::remove_all(scratch / "z");
    window.Click("cmdRestore");
    EXPECT_EQ(LastBox(), "Restore completed from location ...\n\n   E:\\QUILLMARK BACKUP\\");
    EXPECT_TRUE(window.HasRestored());
    EXPECT_EQ(TreeOf(scratch / "z"), kNetwork);

    window.Pick("Drive1", "G:");
    window.Click("cmdBackup");
    EXPECT_EQ(LastBox(), "Drive not ready [No Disk]");
    window.Pick("Drive1", "E:");
    window.CarryBy([&](const BackupWindow::Copying& copying) {
        copying([&](const CopyProgress& now) {
            if (now.stage == Stage::Copying && fs::exists(scratch / "e"))
                fs::rename(scratch / "e", scratch / "pulled");
            return true;
        });
    });
    window.Click("cmdBackup");
    EXPECT_EQ(LastBox(), "Drive not ready [No Disk]");
    fs::rename(scratch / "pulled", scratch / "e");
    fs::remove_all(scratch / "z/data");
    window.CarryBy({});
    window.Click("cmdBackup");
    EXPECT_THAT(LastBox(), HasSubstr("data: No such file or directory\n\nThe backup of "));
    EXPECT_THAT(LastBox(), EndsWith(" is as it was."));
    EXPECT_EQ(TreeOf(BackupOn('E')), kNetwork);
}

}  // namespace
}  // namespace quillmark
