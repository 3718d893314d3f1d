#include "platform/atomic_file.h"

#include <gtest/gtest.h>

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

TEST(ReplaceFile, CreatesAndReplaces) {
    const ScratchFolder folder;
    const fs::path file = folder / "Smith.dat";
    ReplaceFile(file, "old");
    EXPECT_EQ(ReadBytes(file), "old");
    const std::string large(3'000'000, 'x');
    ReplaceFile(file, large);
    EXPECT_EQ(ReadBytes(file), large);
    EXPECT_EQ(FilesIn(folder.path()), 1u);
}

TEST(ReplaceFile, SweepsWhatDeadWritersLeftAndNothingElse) {
    using namespace std::chrono_literals;
    const ScratchFolder folder;
    const auto left = [&](const char* name, std::chrono::seconds age) {
        WriteBytes(folder / name, "half");
        fs::last_write_time(folder / name, fs::file_time_type::clock::now() - age);
        return folder / name;
    };
    const fs::path dead = left(".quillmark-0123456789abcdef.tmp", 1min);
    const fs::path recent = left(".quillmark-1123456789abcdef.tmp", 1s);
    const fs::path held = left(".quillmark-2123456789abcdef.tmp", 50h);
    const fs::path other = left("quillmark-3123456789abcdef.tmp", 50h);
    {
        const FileLock living(held);
        ReplaceFile(folder / "Smith.dat", "new");
    }
    EXPECT_FALSE(fs::exists(dead));
    EXPECT_TRUE(fs::exists(recent) && fs::exists(held) && fs::exists(other));
    EXPECT_EQ(FilesIn(folder.path()), 4u);
}

TEST(ReplaceFile, MissingFoldersAndFoldersInTheWayAreTold) {
    const ScratchFolder folder;
    EXPECT_EQ(KindOf([&] { ReplaceFile(folder / "none/Smith.dat", "x"); }), FileError::Kind::NotFound);
    fs::create_directory(folder / "Smith.dat");
    EXPECT_EQ(KindOf([&] { ReplaceFile(folder / "Smith.dat", "x"); }), FileError::Kind::Other);
    EXPECT_EQ(FilesIn(folder.path()), 1u);
}

TEST(ReadFile, IsBoundedAndReadsOrdinaryFilesOnly) {
    const ScratchFolder folder;
    WriteBytes(folder / "ten", std::string("0123\0\r\n789", 10));
    EXPECT_EQ(ReadFile(folder / "ten", 10).size(), 10u);
    EXPECT_EQ(KindOf([&] { ReadFile(folder / "ten", 9); }), FileError::Kind::TooLarge);
    EXPECT_EQ(KindOf([&] { ReadFile(folder / "none", 9); }), FileError::Kind::NotFound);
    EXPECT_EQ(KindOf([&] { ReadFile(folder.path(), 9); }), FileError::Kind::Other);
}

}  // namespace
}  // namespace quillmark
