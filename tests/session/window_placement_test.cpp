#include "session/window_placement.h"

#include <gtest/gtest.h>

#include "support/scratch.h"

namespace quillmark {
namespace {

TEST(WindowPlacement, ComesBackAsItWasAndFromOlderFilesAsFarAsItGoes) {
    const test::ScratchFolder folder;
    EXPECT_FALSE(ReadWindowPlacement(folder.path()));
    const WindowPlacement placed{9000, 120, 240.5, 12000, 1.25, 3};
    WriteWindowPlacement(folder.path(), placed);
    EXPECT_EQ(placed, ReadWindowPlacement(folder.path()));
    test::WriteBytes(folder / "mdispec.ini", "9000,120,240,12000\r\n");
    EXPECT_EQ((WindowPlacement{9000, 120, 240, 12000, 1, 0}), ReadWindowPlacement(folder.path()));
    for (const char* bad : {"", "9000,120\r\n", "\"here\",1,2,3\r\n"}) {
        test::WriteBytes(folder / "mdispec.ini", bad);
        EXPECT_FALSE(ReadWindowPlacement(folder.path())) << bad;
    }
}

}  // namespace
}  // namespace quillmark
