#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "platform/atomic_file.h"
#include "tools/backup/backup.h"
#include "tools/backup/replacement.h"
#include "tools/backup/restore.h"
#include "tools/backup_office.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::Tree;
using test::TreeOf;
using test::WriteBytes;

class KilledBackups : public test::BackupOfficeTest {
 protected:
    /// Does the work in another process, which is killed at that step. False when it came to its end before.
    static bool DiesAt(int last, const std::function<void(const CopyWatch&)>& work) {
        const pid_t child = fork();
        if (child == 0) {
            int step = 0;
            work([&](const CopyProgress&) {
                return step++ == last ? ::kill(::getpid(), SIGKILL) != 0 : true;
            });
            ::_exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
        return WIFSIGNALED(status);
    }
    /// Does the work in another process, which is killed after so many microseconds.
    static void KillSoon(unsigned after, const std::function<void()>& work) {
        const pid_t child = fork();
        if (child == 0) {
            work();
            ::_exit(0);
        }
        ::usleep(after);
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
};

TEST_F(KilledBackups, ABackupKilledAtAnyStepIsTheOldOrTheNewOne) {
    MakeBackup(Home(BackupMode::Admin), DriveOf('E'), {});
    const Tree office = TreeOf(scratch / "z");
    bool dies = true;
    for (int last = 0; dies; ++last) {
        dies = DiesAt(last, [&](const CopyWatch& watch) { MakeBackup(Home(), DriveOf('E'), watch); });
        EXPECT_EQ(TreeOf(BackupOn('E')), dies ? kOwn : kNetwork) << "at step " << last;
        EXPECT_EQ(TreeOf(scratch / "z"), office);
    }
    MakeBackup(Home(), DriveOf('E'), {});
    EXPECT_EQ(TreeOf(scratch / "e").size(), kNetwork.size()) << "what the killed ones left is gone";
}

TEST_F(KilledBackups, ARestoreKilledAtAnyStepLeavesTheOldOrTheNewFilesAtTheNextStart) {
    MakeBackup(Home(), DriveOf('E'), {});
    const Tree both = TreeOf(scratch / "z");
    WriteBytes(scratch / "z/data/Smith.dat", "changed since");
    WriteBytes(scratch / "z/parapro.dir", "changed since");
    fs::remove_all(scratch / "z/data/images");
    const Tree old = TreeOf(scratch / "z");
    int tornWork = 0;
    std::mt19937 random(7);
    bool dies = true;
    for (int last = 0; dies; ++last) {
        dies = DiesAt(last, [&](const CopyWatch& watch) { RestoreBackup(DriveOf('E'), Home(), watch); });
        tornWork += fs::exists(scratch / "z/data/.quillmark-restore/moves") ? 1 : 0;
        KillSoon(static_cast<unsigned>(random() % 500),
                 [&] { Replacement::UndoUnfinished(scratch / "z/data"); });
        Replacement::UndoUnfinished(scratch / "z/data");
        if (dies) {
            EXPECT_EQ(TreeOf(scratch / "z"), old) << "at step " << last;
        }
    }
    EXPECT_GT(tornWork, 5) << "some died while files changed places";
    Tree now = both;
    now["data/customforms/Rider.docx"] = "local rider";
    EXPECT_EQ(TreeOf(scratch / "z"), now);
}

TEST_F(KilledBackups, AFullMediumLeavesTheOldBackup) {
    MakeBackup(Home(BackupMode::Admin), DriveOf('E'), {});
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {100'000, 100'000};
        setrlimit(RLIMIT_FSIZE, &limit);
        try {
            MakeBackup(Home(), DriveOf('E'), {});
        } catch (const FileError& failure) {
            ::_exit(failure.kind == FileError::Kind::DiskFull ? 7 : 8);
        }
        ::_exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_EQ(TreeOf(scratch / "e").size(), kOwn.size());
    EXPECT_EQ(TreeOf(BackupOn('E')), kOwn);
}

}  // namespace
}  // namespace quillmark
