#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/firm.h"
#include "session/office_fixture.h"

namespace quillmark::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

class ClientsTest : public OfficeTest {
 protected:
    ClientsTest() {
        WriteBytes(scratch / "DBasePath.txt",
                   "\"data\\\"\r\n\"N\"\r\n\"N\"\r\n\"N\"\r\n\"N\"\r\n\"ON\"\r\n\"Y\"\r\n\"Y\"\r\n");
    }
};

TEST_F(ClientsTest, ANameThatLeadsElsewhereIsNoClient) {
    for (const char* name :
         {"..", "../../office", "Birch\\Bell", "C:", "nul", "Birch.", "images", "CustomForms"}) {
        Start();
        Answer({name});
        screen->SelectClient(kAddClient);
        EXPECT_THAT(LastBox(), HasSubstr("cannot be the name of a client")) << name;
        EXPECT_THAT(screen->Clients(), ElementsAre(kAddClient)) << name;
        EXPECT_FALSE(fs::exists(scratch / "parapro.dir")) << name;
    }
}

TEST_F(ClientsTest, ALineOfTheListDeletesNothingByItself) {
    fs::create_directories(scratch.path() / "data" / "jobs of the firm");
    WriteBytes(scratch.path() / "data" / "jobs of the firm" / "Abbott.dat", "a job");
    fs::create_directory_symlink(scratch.path() / "data", scratch.path() / "data" / "Link");
    WriteBytes(scratch / "parapro.dir", "\"..\"\r\n\"jobs of the firm\"\r\n\"Link\"\r\n\"Gone\"\r\n");
    Start();
    EXPECT_THAT(LastBox(), HasSubstr("\"..\" is the name of a folder"));
    for (const char* name : {"jobs of the firm", "Link", "Gone"}) {
        Answer({"OK"});
        screen->DeleteClient(name);
        EXPECT_THAT(LastBox(), HasSubstr("no file was deleted")) << name;
    }
    EXPECT_TRUE(fs::exists(scratch.path() / "data" / "jobs of the firm" / "Abbott.dat"));
    EXPECT_THAT(screen->Clients(), ElementsAre(kAddClient));
}

TEST_F(ClientsTest, ADamagedListShowsWhatIsWhole) {
    WriteBytes(scratch / "parapro.dir", "\"Birch & Bell\"\r\n\"Pell");
    Start();
    EXPECT_THAT(LastBox(), HasSubstr("parapro.dir"));
    EXPECT_THAT(screen->Clients(), ElementsAre(kAddClient, "Birch & Bell"));
}

TEST_F(ClientsTest, WhatAnotherComputerAddedMeanwhileStays) {
    Start();
    WriteBytes(scratch / "parapro.dir", "\"Pell & Co\"\r\n");
    Answer({"Birch & Bell"});
    screen->SelectClient(kAddClient);
    EXPECT_EQ(ReadBytes(scratch / "parapro.dir"), "\"Pell & Co\"\r\n\"Birch & Bell\"\r\n");
}

}  // namespace
}  // namespace quillmark::test
