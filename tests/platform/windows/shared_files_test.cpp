#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <thread>

#include "platform/atomic_file.h"
#include "platform/file_kinds.h"
#include "platform/file_lock.h"
#include "platform/machine.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using namespace std::chrono_literals;
using test::FilesIn;
using test::KindOf;
using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

/// A file as another program holds it open.
class HeldOpen {
 public:
    HeldOpen(const std::filesystem::path& file, DWORD share)
        : handle_(CreateFileW(file.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
    }
    ~HeldOpen() { CloseHandle(handle_); }
    HeldOpen(const HeldOpen&) = delete;
    HeldOpen& operator=(const HeldOpen&) = delete;

 private:
    HANDLE handle_;
};

TEST(ReplaceFile, WaitsForAScannerAndGivesWayToAProgramThatKeepsTheFile) {
    const ScratchFolder folder;
    const auto file = folder / "Smith.dat";
    WriteBytes(file, "old");
    std::jthread scanner([held = std::make_unique<HeldOpen>(file, FILE_SHARE_READ)]() mutable {
        Sleep(100);
        held.reset();
    });
    ReplaceFile(file, "new");
    EXPECT_EQ(ReadBytes(file), "new");
    scanner.join();
    {
        const HeldOpen kept(file, FILE_SHARE_READ);
        EXPECT_EQ(KindOf([&] { ReplaceFile(file, "newer"); }), FileError::Kind::InUse);
    }
    EXPECT_EQ(ReadBytes(file), "new");
    EXPECT_EQ(FilesIn(folder.path()), 1u) << "nothing half done stays";
}

TEST(ReplaceFile, AReaderAlwaysSeesOneOfTheTwoFiles) {
    const ScratchFolder folder;
    const auto file = folder / "Smith.dat";
    const std::string old(200'000, 'o'), replacement(300'000, 'n');
    WriteBytes(file, old);
    std::jthread writer([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            ReplaceFile(file, replacement);
            Sleep(15);
            ReplaceFile(file, old);
            Sleep(15);
        }
    });
    for (int i = 0; i < 60; ++i) {
        const std::string seen = ReadFile(file, 1'000'000);
        EXPECT_TRUE(seen == old || seen == replacement) << seen.size() << " bytes";
        Sleep(3);
    }
}

TEST(FileLock, GoesToWhoWaitsForIt) {
    const ScratchFolder folder;
    std::atomic<bool> given{false};
    std::jthread other;
    {
        const FileLock lock(folder / "Access.lok");
        EXPECT_EQ(KindOf([&] { FileLock(folder / "Access.lok", [] { return false; }); }),
                  FileError::Kind::InUse);
        other = std::jthread([&] {
            const FileLock waiting(folder / "Access.lok");
            given = true;
        });
        Sleep(150);
        EXPECT_FALSE(given);
    }
    other.join();
    EXPECT_TRUE(given);
}

TEST(SystemShell, KnowsTheUsersFoldersAndNamesAProgramThatIsNotThere) {
    SystemShell shell;
    for (const SpecialFolder folder :
         {SpecialFolder::Documents, SpecialFolder::LocalApplication, SpecialFolder::State})
        EXPECT_TRUE(std::filesystem::is_directory(shell.FolderOf(folder)));
    try {
        shell.Start("C:\\nowhere\\UpgradeQM.exe", {"/Quillmark:quillmark"});
        FAIL();
    } catch (const MachineError& failure) {
        EXPECT_TRUE(std::string(failure.what()).starts_with("cannot start C:\\nowhere\\UpgradeQM.exe: "));
    }
}

}  // namespace
}  // namespace quillmark
