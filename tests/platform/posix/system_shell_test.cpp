#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/clock.h"
#include "platform/machine.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

/// An environment variable set for one test.
class Variable {
 public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        setenv(name, value.c_str(), 1);
    }
    ~Variable() { setenv(name_, old_.c_str(), 1); }

 private:
    const char* name_;
    std::string old_;
};

TEST(SystemShell, FoldersFollowTheUsersChoice) {
    const ScratchFolder home;
    const Variable homeVariable("HOME", home.path());
    const Variable config("XDG_CONFIG_HOME", "");
    const Variable data("XDG_DATA_HOME", "");
    SystemShell shell;
    EXPECT_EQ(shell.FolderOf(SpecialFolder::LocalApplication), home / ".local/share");
    EXPECT_EQ(shell.FolderOf(SpecialFolder::Documents), home.path());
    fs::create_directory(home / "Documents");
    EXPECT_EQ(shell.FolderOf(SpecialFolder::Documents), home / "Documents");
    WriteBytes(home / ".config/user-dirs.dirs", "# folders\nXDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
    EXPECT_EQ(shell.FolderOf(SpecialFolder::Documents), home / "Papers");
    const Variable nowhere("HOME", "");
    EXPECT_THROW(shell.FolderOf(SpecialFolder::Documents), MachineError);
}

TEST(SystemShell, OpensAFileWithTheSystemsProgram) {
    const ScratchFolder folder;
    WriteBytes(folder / "xdg-open", "#!/bin/sh\nprintf %s \"$1\" > '" + (folder / "opened.tmp").string() +
                                        "'\nmv '" + (folder / "opened.tmp").string() + "' '" +
                                        (folder / "opened").string() + "'\n");
    fs::permissions(folder / "xdg-open", fs::perms(0755));
    const Variable path("PATH", folder.path().string() + ":/usr/bin:/bin");
    SystemShell().Open("Smith's \"deed\" $HOME.docx");
    for (int i = 0; i < 500 && !fs::exists(folder / "opened"); ++i) usleep(10'000);
    EXPECT_EQ(ReadBytes(folder / "opened"), "Smith's \"deed\" $HOME.docx");
}

TEST(SystemShell, AProgramThatCannotBeStartedIsNamed) {
    try {
        SystemShell().Start("/nowhere/UpgradeQM", {"/Quillmark:quillmark"});
        FAIL();
    } catch (const MachineError& error) {
        EXPECT_STREQ(error.what(), "cannot start /nowhere/UpgradeQM: No such file or directory");
    }
}

TEST(Clock, AFixedDateStaysAndTheSystemsIsLocal) {
    using namespace std::chrono_literals;
    EXPECT_EQ(FixedClock(2024y / 2 / 29).Today(), 2024y / 2 / 29);
    const Variable zone("TZ", "XYZ-14");
    tzset();
    const auto utc = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const auto local = SystemClock().Now().time_since_epoch() - utc.time_since_epoch();
    EXPECT_NEAR(static_cast<double>(local.count()), 14 * 3600, 5);
}

}  // namespace
}  // namespace quillmark
