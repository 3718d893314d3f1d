#include "session/first_run.h"

#include <filesystem>
#include <fstream>

#include "office_fixture.h"
#include "session/program_folder.h"

namespace quillmark::test {

namespace fs = std::filesystem;

namespace {

class FirstRunTest : public OfficeTest {
 protected:
    FirstRunTest() {
        fs::create_directories(installed);
        fs::create_directories(elsewhere);
    }

    fs::path Chosen() { return DefaultProgramFolder(elsewhere, installed / "quillmark", shell); }

    fs::path installed = scratch / "usr/bin";
    fs::path elsewhere = scratch / "home";
    fs::path own = scratch / "Local/Quillmark";
};

TEST_F(FirstRunTest, AnInstalledProgramWorksInTheUsersOwnFolder) {
    EXPECT_EQ(Chosen(), own);
    // A home folder with a "data" folder of some other kind is not taken for an office.
    fs::create_directories(elsewhere / "data");
    EXPECT_EQ(Chosen(), own);
    EXPECT_TRUE(fs::is_empty(installed)) << "looking leaves nothing behind";
}

TEST_F(FirstRunTest, AnOfficeInTheCurrentFolderOrBesideTheProgramIsUsed) {
    fs::create_directories(installed / "DATA");
    EXPECT_EQ(Chosen(), installed);
    WriteBytes(elsewhere / "dbasepath.TXT", "\"data\\\"\r\n");
    EXPECT_EQ(Chosen(), elsewhere);
}

TEST_F(FirstRunTest, AFolderThatCannotBeWrittenIsPassedOver) {
    for (const fs::path& folder : {installed, elsewhere}) {
        WriteBytes(folder / "package.def", "");
        fs::permissions(folder, fs::perms::owner_write, fs::perm_options::remove);
    }
    const bool forbidden = !std::ofstream(elsewhere / "probe").good();
    const fs::path chosen = Chosen();
    for (const fs::path& folder : {installed, elsewhere})
        fs::permissions(folder, fs::perms::owner_write, fs::perm_options::add);
    if (!forbidden) GTEST_SKIP() << "this user may write everywhere";
    EXPECT_EQ(chosen, own);
}

TEST_F(FirstRunTest, ANewFolderIsSetUpOnceAndNothingOfTheUsersIsReplaced) {
    EXPECT_TRUE(IsFirstRun(own));
    const std::vector<SeedFile> seeds = {{"data/Sample.dat", "new"}, {"package.def", "packages"}};
    SetUpProgramFolder(own, seeds);
    EXPECT_FALSE(IsFirstRun(own));
    EXPECT_EQ(ReadBytes(own / "package.def"), "packages");
    WriteBytes(own / "data/Sample.dat", "mine");
    SetUpProgramFolder(own, seeds);
    EXPECT_EQ(ReadBytes(own / "data/Sample.dat"), "mine");

    WriteBytes(elsewhere / "blocked", "");
    EXPECT_THROW(SetUpProgramFolder(elsewhere / "blocked/office", seeds), FileError);
    EXPECT_FALSE(IsFirstRun(scratch.path())) << "an office with defaults is in use already";
}

TEST_F(FirstRunTest, EachFirstStepLeadsSomewhere) {
    const std::string sample(kSampleJob);
    SetUpProgramFolder(scratch.path(),
                       {{"data/" + sample + ".dat", ReadBytes(SourceFolder() / "data" / (sample + ".dat"))}});
    Start();
    TakeFirstStep(*screen, FirstStep::SampleJob);
    EXPECT_EQ(State().txtJobName.text, sample);
    EXPECT_EQ(State().remaining, 1) << "the date of the documents";
    screen->SetCreateTarget({.to = scratch.path()});
    Answer({"Yes"});
    screen->Click("cmdCreate");
    ASSERT_TRUE(screen->LastDocument().has_value());
    EXPECT_TRUE(fs::exists(*screen->LastDocument()));

    Start();
    TakeFirstStep(*screen, FirstStep::FirmDefaults);
    EXPECT_TRUE(screen->SettingsListShown());
    Start();
    TakeFirstStep(*screen, FirstStep::NewJob);
    EXPECT_TRUE(State().txtJobName.text.empty());
}

}  // namespace

}  // namespace quillmark::test
