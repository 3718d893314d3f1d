#include "platform/file_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>

#include "platform/atomic_file.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

TEST(FileLock, WaitsForAnotherProcessWithoutSpinning) {
    const ScratchFolder folder;
    std::array<int, 2> held;
    ASSERT_EQ(pipe(held.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        const FileLock lock(folder / "Access.lok");
        if (write(held[1], "x", 1) != 1) _exit(1);
        usleep(400'000);
        _exit(0);  // the lock ends with the process, however it ends
    }
    char ready = 0;
    ASSERT_EQ(read(held[0], &ready, 1), 1);
    int tries = 0;
    const auto start = std::chrono::steady_clock::now();
    const FileLock lock(folder / "Access.lok", [&] { return ++tries > 0; });
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
    EXPECT_GE(tries, 1);
    EXPECT_LE(tries, 20);
    waitpid(child, nullptr, 0);
}

TEST(FileLock, TwoProcessesNeverWriteAtOnce) {
    const ScratchFolder folder;
    constexpr int kProcesses = 4;
    constexpr int kRounds = 20;
    WriteBytes(folder / "count", "");
    for (int i = 0; i < kProcesses; ++i) {
        if (fork() != 0) continue;
        for (int round = 0; round < kRounds; ++round) {
            const FileLock lock(folder / "Access.lok");
            ReplaceFile(folder / "count", ReadBytes(folder / "count") + "x");
        }
        _exit(0);
    }
    while (wait(nullptr) > 0) {
    }
    EXPECT_EQ(ReadBytes(folder / "count").size(), static_cast<std::size_t>(kProcesses * kRounds));
}

}  // namespace
}  // namespace quillmark
