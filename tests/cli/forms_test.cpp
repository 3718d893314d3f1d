#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "cli/command_line.h"
#include "cli/console_fixture.h"
#include "support/form_docx.h"
#include "word/docx/read/document_reader.h"

namespace quillmark::cli {
namespace {

namespace fs = std::filesystem;
using test::FormDocx;
using test::Line;
using ::testing::Contains;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::Not;

/// The firm's own forms by way of the command line.
class FormsOnTheLine : public ConsoleTest {
 protected:
    FormsOnTheLine() {
        test::WriteBytes(office / "Rider.docx",
                         FormDocx{Line("Sold by [Seller 1 Name] for [LOT FEE].")}.Bytes());
    }

    /// Opens the manager, imports the file and leaves; the field LOT FEE comes first.
    std::vector<std::string> Importing(const std::string& file) {
        return {Do("click", {{"button", "cmdCustom"}}),
                Do("window-click", {{"control", "cmdEdit"}}),
                Do("window-set", {{"control", "List1"},
                                  {"value", "** ADD CUSTOM FIELD **"},
                                  {"answers", Json::array({"lot fee"})}}),
                Do("window-click", {{"control", "cmdEdit"}}),
                Do("window-set", {{"control", "txtSourceFile"}, {"value", TextOf(office / file)}}),
                Do("window-click", {{"control", "cmdImport"}}),
                Do("window-close")};
    }
    std::vector<Json> Session(std::vector<std::string> lines, const std::vector<std::string>& more) {
        lines.insert(lines.end(), more.begin(), more.end());
        return ConsoleTest::Session(lines);
    }
    int Forms(std::vector<std::string> words) {
        words.insert(words.begin(), {"forms", "--folder", TextOf(office.path())});
        out.str("");
        err.str("");
        return RunCommandLine(words, {out, err, false});
    }

    std::ostringstream out, err;
};

TEST_F(FormsOnTheLine, AFormIsImportedPickedFilledAndMade) {
    const std::vector<Json> replies =
        Session(Importing("Rider.docx"),
                {Do("window"), Do("state"), Do("pick", {{"text", "[ Rider ]"}}),
                 Do("field", {{"n", 21}, {"text", "Ann Roe"}}),
                 Do("field", {{"marker", "[LOT FEE]"}, {"text", "250"}}),
                 Do("create", {{"to", TextOf(office / "made.docx")}, {"answers", Json::array({"Yes"})}})});
    for (const Json& reply : replies) EXPECT_EQ(reply.at("ok"), true) << reply;
    EXPECT_EQ(replies[0].at("dialogs")[0].at("text"), "Leaving main program, entering Custom Forms Manager");
    EXPECT_EQ(replies[0].at("result").at("controls").at("cmdExit").at("caption"), "EXIT");
    EXPECT_EQ(replies[5].at("dialogs").back().at("text"), "Import Successful");
    EXPECT_EQ(replies[7].at("result"), Json());
    EXPECT_EQ(replies[8].at("result").at("List1").back(), "[ Rider ]");
    const auto made = word::docx::read::OpenDocx(office / "made.docx");
    EXPECT_EQ(std::get<word::docx::Paragraph>(made->body.front()).text, "Sold by Ann Roe for 250.");
}

TEST_F(FormsOnTheLine, WhileTheManagerIsOpenTheMainScreenWaits) {
    const std::vector<Json> replies = ConsoleTest::Session(
        {Do("click", {{"button", "cmdCustom"}, {"answers", Json::array({"Cancel"})}}), Do("window"),
         Do("window-click", {{"control", "cmdEdit"}}), Do("click", {{"button", "cmdCustom"}}),
         Do("name", {{"text", "x"}}), Do("window-set", {{"control", "txtSourceFile"}, {"value", 7}}),
         Do("window-click", {{"control", "cmdOpen"}}),
         Do("window-set", {{"control", "File1"}, {"value", 99}}), Do("state"),
         Do("window-click", {{"control", "cmdExit"}}), Do("name", {{"text", "x"}})});
    EXPECT_THAT(replies[1], Gives(Json()));
    EXPECT_THAT(replies[2], Refuses("no side tool"));
    EXPECT_THAT(replies[4], Refuses("window"));
    EXPECT_THAT(replies[6], Refuses("cmdOpen"));
    EXPECT_THAT(replies[7], Refuses("no entry 99"));
    EXPECT_THAT(replies[8], Succeeds());
    EXPECT_THAT(replies[9], Gives(Json()));
    EXPECT_THAT(replies[10], Succeeds());
}

TEST_F(FormsOnTheLine, TheTestModeLeavesNothingBehind) {
    std::vector<std::string> lines = Importing("Rider.docx");
    lines.pop_back();
    const std::vector<Json> replies = Session(
        lines, {Do("window-click", {{"control", "cmdEdit"}}), Do("window-click", {{"control", "cmdTest"}}),
                Do("state"), Do("name", {{"text", "x"}}), Do("pick", {{"text", "[ Rider ]"}}),
                Do("field", {{"n", 21}, {"text", "Ann Roe"}}),
                Do("create", {{"to", TextOf(office / "made.docx")}, {"answers", Json::array({"Yes"})}}),
                Do("state")});
    const Json& state = replies[8].at("result");
    EXPECT_EQ(state.at("txtJobName").at("locked"), true);
    EXPECT_EQ(state.at("buttons").at("cmdOpen").at("enabled"), false);
    EXPECT_THAT(replies[8].at("info").get<std::string>(), HasSubstr("CUSTOM FORMS TEST MODE"));
    EXPECT_THAT(replies[9], Refuses("locked"));
    EXPECT_THAT(replies[12], Succeeds());
    EXPECT_EQ(replies[13].at("result").at("buttons").at("cmdEnvelopes").at("enabled"), false);
    EXPECT_EQ(std::ranges::count_if(fs::directory_iterator(office / "data"),
                                    [](const auto& file) { return file.path().extension() == ".dat"; }),
              0);
}

TEST_F(FormsOnTheLine, TheListHasEachFormWithItsMarkers) {
    EXPECT_EQ(Forms({}), kDone);
    EXPECT_EQ(out.str(), "") << "no folder yet";
    Session(Importing("Rider.docx"), {});
    EXPECT_EQ(Forms({}), kDone) << err.str();
    EXPECT_EQ(out.str(), "Rider\n  [seller 1 name]\n  [LOT FEE]\n");
    EXPECT_EQ(Forms({"--check"}), kDone) << out.str();
}

TEST_F(FormsOnTheLine, TheCheckTellsOfWrongMarkersByItsStatus) {
    test::WriteBytes(
        office / "Faulty.docx",
        FormDocx{Line("x") + Line("Sold by [seler 1 name] [sic]") + Line("[seller 3 name]")}.Bytes());
    Session(Importing("Faulty.docx"), {});
    EXPECT_EQ(Forms({"--check"}), kFailed);
    EXPECT_THAT(out.str(), HasSubstr("Faulty: paragraph 2: after 'Sold by': [seler 1 name] is nearly"));
    EXPECT_THAT(out.str(), HasSubstr("Faulty: paragraph 3: [seller 3 name]"));
    EXPECT_THAT(out.str(), Not(HasSubstr("[sic]")));
    test::WriteBytes(office / "data/customforms/Broken.docx", "no form");
    EXPECT_EQ(Forms({"--check"}), kFailed);
    EXPECT_THAT(err.str(), HasSubstr("Broken"));
}

}  // namespace
}  // namespace quillmark::cli
