#include "platform/atomic_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/file_kinds.h"
#include "platform/file_lock.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::FilesIn;
using test::KindOf;
using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

/// What happens in a process that may be restricted for good.
FileError::Kind KindInChild(const std::function<void()>& action) {
    const pid_t child = fork();
    if (child == 0) _exit(static_cast<int>(KindOf(action)));
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    return static_cast<FileError::Kind>(WEXITSTATUS(status));
}

TEST(ReplaceFile, FollowsALinkAndTakesTheLongestName) {
    const ScratchFolder folder;
    WriteBytes(folder / "share/defaults.fld", "old");
    fs::create_symlink("share/defaults.fld", folder / "defaults.fld");
    ReplaceFile(folder / "defaults.fld", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "defaults.fld"));
    EXPECT_EQ(ReadBytes(folder / "share/defaults.fld"), "new");

    const fs::path longest = folder / (std::string(251, 'n') + ".dat");
    ReplaceFile(longest, "text");
    EXPECT_EQ(ReadBytes(longest), "text");
}

TEST(ReplaceFile, AFullDiskLeavesTheOldFileAlone) {
    const ScratchFolder folder;
    const fs::path file = folder / "Smith.dat";
    WriteBytes(file, "old");
    const auto write = [&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        ReplaceFile(file, std::string(5000, 'x'));
    };
    EXPECT_EQ(KindInChild(write), FileError::Kind::DiskFull);
    EXPECT_EQ(ReadBytes(file), "old");
    EXPECT_EQ(FilesIn(folder.path()), 1u);
}

TEST(ReplaceFile, AReaderNeverSeesATornFileWhileAWriterIsKilled) {
    const ScratchFolder folder;
    const fs::path file = folder / "Smith.dat";
    const std::string old(200'000, 'o');
    const std::string replacement(300'000, 'n');
    WriteBytes(file, old);
    for (int round = 0; round < 20; ++round) {
        const pid_t writer = fork();
        while (writer == 0) {
            ReplaceFile(file, replacement);
            ReplaceFile(file, old);
        }
        for (int i = 0; i < 10; ++i) {
            const std::string seen = ReadFile(file, 1'000'000);
            EXPECT_TRUE(seen == old || seen == replacement) << seen.size() << " bytes";
        }
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        const std::string left = ReadFile(file, 1'000'000);
        EXPECT_TRUE(left == old || left == replacement) << left.size() << " bytes";
    }
}

mode_t ModeOf(const fs::path& file) {
    struct stat status = {};
    EXPECT_EQ(stat(file.c_str(), &status), 0);
    return status.st_mode & 0777;
}

TEST(ReplaceFile, WhoeverSharesTheFolderSharesTheFile) {
    const ScratchFolder folder;
    fs::permissions(folder.path(), fs::perms(02775));
    const mode_t before = umask(077);
    ReplaceFile(folder / "Smith.dat", "new");
    const FileLock lock(folder / "Access.lok");
    EXPECT_EQ(ModeOf(folder / "Smith.dat"), 0660u);
    EXPECT_EQ(ModeOf(folder / "Access.lok"), 0660u);
    fs::permissions(folder.path(), fs::perms(0755));
    ReplaceFile(folder / "Jones.dat", "new");
    EXPECT_EQ(ModeOf(folder / "Jones.dat"), 0600u) << "a folder that the group may not write is not shared";
    umask(before);
}

TEST(ReplaceFile, WhatTheUserMayNotWriteIsNotReplaced) {
    const ScratchFolder folder;
    const fs::path file = folder / "Smith.dat";
    WriteBytes(file, "old");
    const auto write = [&] {
        if (geteuid() == 0 && setuid(65534) != 0) _exit(99);
        ReplaceFile(file, "new");
    };
    fs::permissions(folder.path(), fs::perms(0555));
    fs::permissions(file, fs::perms(0666));
    EXPECT_EQ(KindInChild(write), FileError::Kind::Denied) << "in a folder that cannot be written";
    fs::permissions(folder.path(), fs::perms(0777));
    fs::permissions(file, fs::perms(0444));
    EXPECT_EQ(KindInChild(write), FileError::Kind::Denied) << "a write-protected file";
    EXPECT_EQ(ReadBytes(file), "old");
    EXPECT_EQ(FilesIn(folder.path()), 1u);
}

TEST(ReplaceFile, KeepsTheMode) {
    const ScratchFolder folder;
    WriteBytes(folder / "Smith.dat", "old");
    fs::permissions(folder / "Smith.dat", fs::perms(0640));
    ReplaceFile(folder / "Smith.dat", "new");
    EXPECT_EQ(ModeOf(folder / "Smith.dat"), 0640u);
}

TEST(ReadFile, ReadsOrdinaryFilesOnlyOfAnySize) {
    const ScratchFolder folder;
    mkfifo((folder / "pipe").c_str(), 0600);
    EXPECT_EQ(KindOf([&] { ReadFile(folder / "pipe", 9); }), FileError::Kind::Other);
    EXPECT_GT(ReadFile("/proc/self/status", 100'000).size(), 100u) << "a file whose size is not known";
}

}  // namespace
}  // namespace quillmark
