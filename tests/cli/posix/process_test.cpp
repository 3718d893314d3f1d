#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdlib>

#include "platform/paths.h"
#include "support/scratch.h"

namespace quillmark::cli {
namespace {

using test::ReadBytes;
using test::ScratchFolder;
using ::testing::HasSubstr;

/// The program itself, started by a shell in an empty folder.
class Program : public ::testing::Test {
 protected:
    int Run(const std::string& arguments, const std::string& environment = "") {
        const std::string command = "cd '" + TextOf(folder.path()) + "' && " + environment +
                                    " '" QUILLMARK_CLI "' " + arguments + " > out 2> err < /dev/null";
        return WEXITSTATUS(std::system(command.c_str()));
    }
    std::string Out() const { return ReadBytes(folder / "out"); }
    std::string Err() const { return ReadBytes(folder / "err"); }

    ScratchFolder folder;
};

TEST_F(Program, StatusesReachTheCaller) {
    EXPECT_EQ(Run("documents"), 0);
    EXPECT_THAT(Out(), HasSubstr("Deed / Warranty\n"));
    EXPECT_EQ(Err(), "");
    EXPECT_EQ(Run("make Nobody"), 1);
    EXPECT_THAT(Err(), HasSubstr("Nobody.dat: there is no such job"));
    EXPECT_EQ(Run("make --today never Nobody"), 2);
}

TEST_F(Program, PdfOutputWithoutLibreOfficeSaysWhatIsMissing) {
    EXPECT_EQ(Run("make --pdf Nobody", "PATH=/nowhere"), 1);
    EXPECT_THAT(Err(), HasSubstr("LibreOffice, which is not installed"));
}

TEST_F(Program, AFullDiskLeavesTheOldDocumentAndIsTold) {
    test::WriteBytes(folder / "Lone.dat", "\"000\",\"Schedule A\"\r\n");
    test::WriteBytes(folder / "Lone_QMF.docx", "old");
    // The system's limit on the size of files stands in for the end of the disk.
    const std::string full = "trap '' XFSZ && ulimit -f 1 &&";
    EXPECT_EQ(Run("make --anyway --force ./Lone.dat", full), 1);
    EXPECT_THAT(Err(), HasSubstr("Lone.dat: CREATE error 61: "));
    EXPECT_EQ(Out(), "");
    EXPECT_EQ(ReadBytes(folder / "Lone_QMF.docx"), "old");
}

TEST_F(Program, TheCurrentFolderIsTheDefault) {
    test::WriteBytes(folder / "Lone.dat", "\"000\",\"Schedule A\"\r\n");
    EXPECT_EQ(Run("make --anyway ./Lone.dat"), 0) << Err();
    EXPECT_EQ(Out(), TextOf(folder / "Lone_QMF.docx") + "\n");
}

}  // namespace
}  // namespace quillmark::cli
