#include "platform/file_lock.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/atomic_file.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

bool GiveUp() {
    return false;
}

TEST(FileLock, HoldsAgainstThisProgramUntilReleased) {
    const ScratchFolder folder;
    WriteBytes(folder / "Access.lok", "kept");
    std::optional<FileLock> lock(folder / "Access.lok");
    try {
        FileLock second(folder / "Access.lok", GiveUp);
        FAIL() << "locked twice";
    } catch (const FileError& error) {
        EXPECT_EQ(error.kind, FileError::Kind::InUse);
    }
    FileLock moved = std::move(*lock);
    lock.reset();
    EXPECT_THROW(FileLock(folder / "Access.lok", GiveUp), FileError) << "the lock went on with the object";
    moved = FileLock(folder / "other.lok");
    EXPECT_NO_THROW(FileLock(folder / "Access.lok", GiveUp));
    EXPECT_EQ(ReadBytes(folder / "Access.lok"), "kept");
    EXPECT_THROW(FileLock(folder / "none/Access.lok"), FileError);
}

}  // namespace
}  // namespace quillmark
