#include "platform/shared_file.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "support/scratch.h"

namespace quillmark::test {
namespace {

TEST(SharedFile, EightWritersLoseNothing) {
    constexpr int kWriters = 8, kRecords = 25;
    const ScratchFolder folder;
    for (int writer = 0; writer < kWriters; ++writer) {
        if (fork() != 0) continue;
        for (int record = 0; record < kRecords; ++record) {
            ChangeSharedFile(folder / "package.def", 100'000, [&](const std::optional<std::string>& present) {
                return present.value_or("") + static_cast<char>('a' + writer);
            });
        }
        _exit(0);
    }
    while (wait(nullptr) > 0) {
    }
    const std::string content = ReadBytes(folder / "package.def");
    for (int writer = 0; writer < kWriters; ++writer)
        EXPECT_EQ(std::count(content.begin(), content.end(), static_cast<char>('a' + writer)), kRecords);
}

}  // namespace
}  // namespace quillmark::test
