#include "platform/shared_file.h"

#include <gtest/gtest.h>

#include "platform/atomic_file.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

TEST(SharedFile, RefusesWhatItCouldNotReadAgainAndKeepsWhatStands) {
    const ScratchFolder folder;
    const auto file = folder / "package.def";
    WriteBytes(file, "old");
    const auto replaceBy = [&](const std::string& content) {
        ChangeSharedFile(file, 10, [&](const std::optional<std::string>&) { return content; });
    };
    EXPECT_THROW(replaceBy("far too long a list"), FileError);
    EXPECT_EQ(ReadBytes(file), "old");
    ChangeSharedFile(file, 10, [](const std::optional<std::string>&) { return std::nullopt; });
    EXPECT_EQ(ReadBytes(file), "old");
    replaceBy("new");
    EXPECT_EQ(ReadBytes(file), "new");
}

}  // namespace
}  // namespace quillmark::test
