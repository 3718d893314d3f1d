#include "platform/paths.h"

#include <gtest/gtest.h>

#include "support/scratch.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;
using test::WriteBytes;

TEST(Paths, AnExistingFileIsFoundWhateverItsCase) {
    const ScratchFolder folder;
    WriteBytes(folder / "Data/Café - 1 Main St.DAT", "");
    EXPECT_EQ(FindExisting(folder / "data/CAFÉ - 1 main st.dat"), folder / "Data/Café - 1 Main St.DAT");
    EXPECT_EQ(FindExisting(folder / "DATA/other.dat"), folder / "Data/other.dat");
    EXPECT_EQ(FindExisting(folder / "none/other.dat"), folder / "none/other.dat");
    EXPECT_EQ(PathOfStored("data\\", folder.path()), folder / "Data");

    WriteBytes(folder / "Data/smith.dat", "");
    WriteBytes(folder / "Data/SMITH.dat", "");
    EXPECT_EQ(FindExisting(folder / "Data/smith.dat"), folder / "Data/smith.dat") << "the exact one first";
    EXPECT_EQ(FindExisting(folder / "Data/Smith.dat"), folder / "Data/SMITH.dat");

    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    EXPECT_EQ(FindExisting("data"), "Data");
    EXPECT_EQ(FindExisting("none"), "none");
    fs::current_path(before);
}

}  // namespace
}  // namespace quillmark
