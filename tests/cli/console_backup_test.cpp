#include "cli/command_line.h"
#include "cli/console_fixture.h"

namespace quillmark::cli {
namespace {

using test::ReadBytes;
using test::WriteBytes;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

class ConsoleBackup : public ConsoleTest {
 protected:
    ConsoleBackup() {
        drives = {{"E:", medium / "e"}, {"F:", medium / "f"}};
        std::filesystem::create_directory(medium / "e");
        WriteBytes(office / "data/Smith.dat", "\"C01\",#TRUE#\r\n");
        WriteBytes(office / "package.def", "\"<01>SELLER\"\r\n\"Deed / Warranty\"\r\n");
    }
    static std::string Click(const char* control) { return Do("window-click", {{"control", control}}); }

    test::ScratchFolder medium;
};

TEST_F(ConsoleBackup, WhatABackupBringsBackIsOnTheScreenAfterwards) {
    const std::string name = Do("name", {{"text", "Backup"}});
    auto replies = Session({name, Do("enter"), Click("cmdRestore"), Click("cmdBackup"),
                            Do("window-set", {{"control", "Drive1"}, {"value", "F:"}}), Click("cmdBackup"),
                            Click("cmdExit"), Do("window")});
    EXPECT_EQ(replies[0]["result"]["controls"]["path"]["text"], "E:\\QUILLMARK BACKUP\\");
    EXPECT_THAT(replies[1], Refuses("is open"));
    EXPECT_THAT(replies[2], Refuses("cmdRestore is disabled"));
    EXPECT_EQ(replies[3]["dialogs"][0]["text"],
              "Backup completed to location ...\n\n   E:\\QUILLMARK BACKUP\\");
    EXPECT_EQ(replies[5]["dialogs"][0]["text"], "Drive not ready [No Disk]");
    EXPECT_THAT(replies[7], Gives(Json()));

    std::filesystem::remove(office / "package.def");
    std::filesystem::remove(office / "data/Smith.dat");
    replies = Session({Do("state"), name, Click("cmdRestore"), Do("window-close"), Do("state")});
    EXPECT_THAT(replies[0]["result"]["List1"], Not(Contains("< SELLER >")));
    EXPECT_THAT(replies[4]["result"]["List1"], Contains("< SELLER >"));
    EXPECT_EQ(ReadBytes(office / "data/Smith.dat"), "\"C01\",#TRUE#\r\n");
}

TEST_F(ConsoleBackup, ARestoreThatWasCutShortIsTakenBackAtTheStart) {
    const std::string moves = std::string("FSmith.dat") + '\0' + "F../package.def" + '\0';
    WriteBytes(office / "data/.quillmark-restore/moves", moves);
    WriteBytes(office / "data/.quillmark-restore/old-0", "old");
    WriteBytes(office / ".quillmark-restore/new-1", "new packages");
    const auto replies = RepliesTo("");
    EXPECT_THAT(replies[0]["dialogs"][0]["text"].get<std::string>(), HasSubstr("A restore was cut short"));
    EXPECT_EQ(ReadBytes(JobFile("Smith")), "old");
    EXPECT_THAT(ReadBytes(office / "package.def"), HasSubstr("SELLER"));
    EXPECT_FALSE(std::filesystem::exists(office / "data/.quillmark-restore"));
    EXPECT_FALSE(std::filesystem::exists(office / ".quillmark-restore"));
}

TEST_F(ConsoleBackup, ADriveIsALetterAndAFolder) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"E"}, {"E="}, {"9=x"}, {"EF=x"}, {"E=x", "--drive", "e=y"}}) {
        std::vector<std::string> all = {"console", "--drive"};
        all.insert(all.end(), words.begin(), words.end());
        std::ostringstream out, err;
        EXPECT_EQ(RunCommandLine(all, {out, err}), kWrongCommandLine) << words[0];
        EXPECT_THAT(err.str(), HasSubstr("--drive"));
    }
}

}  // namespace
}  // namespace quillmark::cli
