#include "cli/console_fixture.h"

namespace quillmark::cli {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::WriteBytes;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

class ConsoleJobs : public ConsoleTest {};
class ConsoleOffice : public ConsoleTest {};

const std::vector<std::string> kSmallJob = {
    Do("name", {{"text", "Abbott - 14 Orchard Lane"}}),
    Do("enter"),
    Do("pick", {{"text", "Deed / Warranty"}}),
    Do("field", {{"n", 21}, {"text", "anna abbott"}}),
    Do("click", {{"button", "cmdOpen"}}),
};

std::vector<std::string> SmallJobAnd(const std::vector<std::string>& more) {
    std::vector<std::string> lines = kSmallJob;
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

TEST_F(ConsoleJobs, AJobGoesFromItsNameToTheFileAndBack) {
    const auto replies = Session(SmallJobAnd({
        Do("click", {{"button", "cmdReset"}}),
        Do("value", {{"n", 21}}),
        Do("browse", {{"text", "orchard"}}),
        Do("load", {{"name", "Abbott - 14 Orchard Lane"}}),
        Do("value", {{"n", 21}}),
        Do("value", {{"n", 1021}}),
        Do("state"),
    }));
    ASSERT_THAT(replies, SizeIs(12));
    EXPECT_THAT(replies, Each(Succeeds()));
    EXPECT_THAT(replies[0], Gives("Abbott - 14 Orchard Lane"));
    EXPECT_THAT(replies[2], Gives(Json::array({"Deed / Warranty"})));
    EXPECT_THAT(replies[3], Gives("Anna Abbott"));
    EXPECT_THAT(replies[6], Gives(""));
    EXPECT_THAT(replies[7], Gives(Json::array({"Abbott - 14 Orchard Lane"})));
    EXPECT_THAT(replies[9], Gives("Anna Abbott"));
    const Json& state = replies[11]["result"];
    EXPECT_EQ(state["txtJobName"]["locked"], true);
    EXPECT_EQ(state["buttons"]["cmdOpen"]["caption"], "EDIT");
    EXPECT_EQ(state["info"], replies[11]["info"]);
    EXPECT_EQ(status, kDone);
}

TEST_F(ConsoleJobs, TheEndOfTheInputSavesNothing) {
    std::vector<std::string> lines = kSmallJob;
    lines.pop_back();
    Session(lines);
    EXPECT_FALSE(fs::exists(JobFile("Abbott - 14 Orchard Lane")));
    EXPECT_EQ(status, kDone);
}

TEST_F(ConsoleJobs, ExitEndsTheSessionWhateverFollows) {
    EXPECT_THAT(Session({Do("click", {{"button", "cmdExit"}}), Do("state")}), ElementsAre(Succeeds()));
    EXPECT_EQ(status, kDone);
}

TEST_F(ConsoleJobs, ListsAndOptionsAnswerWithWhatTheyBecame) {
    const auto replies = Session({
        Do("name", {{"text", "Abbott"}}),
        Do("pick", {{"text", "Contract / Valley Bar"}}),
        Do("pick", {{"text", "Deed / Warranty"}}),
        Do("legal", {{"lines", Json::array({"Deed / Warranty"})}}),
        Do("state"),
        Do("drop", {{"text", "Deed / Warranty"}}),
        Do("drop", {{"text", "Deed / Warranty"}}),
        Do("option", {{"n", 2}}),
        Do("option", {{"n", 9}}),
        Do("clear", {{"n", 9}}),
        Do("option", {{"n", 16}}),
    });
    EXPECT_EQ(replies[4]["result"]["legal"], Json::array({"Deed / Warranty"}));
    EXPECT_THAT(replies[5], Gives(Json::array({"Contract / Valley Bar", "CFPB Addendum"})));
    EXPECT_THAT(replies[6], Refuses("Deed / Warranty"));
    for (const std::size_t i : {7, 8, 9}) ASSERT_THAT(replies[i]["result"], SizeIs(15)) << replies[i];
    EXPECT_EQ(replies[7]["result"][1], true);
    EXPECT_EQ(replies[7]["result"][0], false);
    EXPECT_EQ(replies[8]["result"][8], true);
    EXPECT_EQ(replies[9]["result"][8], false);
    EXPECT_THAT(replies[10], Refuses("16"));
}

TEST_F(ConsoleJobs, WhatTheScreenDoesNotAllowChangesNothing) {
    const auto replies = Session(SmallJobAnd({
        Do("state"),
        Do("pick", {{"text", "Schedule A"}}),
        Do("option", {{"n", 2}}),
        Do("field", {{"n", 173}, {"text", "x"}}),
        Do("field", {{"marker", "[no such marker]"}, {"text", "x"}}),
        Do("click", {{"button", "cmdSelect"}}),
        Do("click", {{"button", "cmdNothing"}}),
        Do("load", {{"name", "Abbott - 14 Orchard Lane"}}),
        Do("spawn", {{"name", "{ REGENCY_template }"}}),
        Do("setting", {{"row", "local"}}),
        Do("client", {{"name", "Nobody"}}),
        Do("package-delete", {{"name", "STANDARD"}}),
        Do("jump", {{"group", 7}}),
        Do("state"),
    }));
    const Json& before = replies[kSmallJob.size()];
    for (std::size_t i = kSmallJob.size() + 1; i + 1 < replies.size(); ++i)
        EXPECT_THAT(replies[i], Refuses("")) << i;
    EXPECT_EQ(before["result"], replies.back()["result"]);
}

TEST_F(ConsoleJobs, AnswersAreTakenInTheOrderOfTheBoxes) {
    WriteBytes(JobFile("Taken"), "\"C01\",#TRUE#\r\n");
    const auto replies = Session(SmallJobAnd({
        Do("click", {{"button", "cmdReset"}}),
        Do("load", {{"name", "Abbott - 14 Orchard Lane"}}),
        Do("click", {{"button", "cmdNameAs"}, {"answers", {"a/b", "Taken", "Abbott II"}}}),
        Do("click", {{"button", "cmdNameAs"}, {"answers", Json::array({nullptr})}}),
    }));
    const Json& boxes = replies[7]["dialogs"];
    ASSERT_THAT(boxes, SizeIs(5)) << boxes;
    EXPECT_EQ(boxes[0]["kind"], "input");
    EXPECT_EQ(boxes[0]["title"], " RE-NAME ...");
    EXPECT_EQ(boxes[0]["default"], "Abbott - 14 Orchard Lane");
    EXPECT_EQ(boxes[0]["answer"], "a/b");
    EXPECT_EQ(boxes[1]["kind"], "message");
    EXPECT_EQ(boxes[1]["buttons"], Json::array({"OK"}));
    EXPECT_EQ(boxes[3]["text"], "A file with this name already exists,\nplease try again.");
    EXPECT_EQ(boxes[4]["answer"], "Abbott II");
    EXPECT_TRUE(fs::exists(JobFile("Abbott II")));
    EXPECT_TRUE(replies[8]["dialogs"][0]["answer"].is_null()) << "cancelled";
    EXPECT_TRUE(fs::exists(JobFile("Abbott II")));
}

TEST_F(ConsoleJobs, AnAnswerThatNoButtonHasIsToldAndTheDefaultTaken) {
    WriteBytes(JobFile("Abbott - 14 Orchard Lane"), "\"C01\",#TRUE#\r\n");
    std::vector<std::string> lines = kSmallJob;
    lines.back() = Do("click", {{"button", "cmdOpen"}, {"answers", {"Perhaps"}}});
    const auto replies = Session(lines);
    EXPECT_THAT(replies.back(), Refuses("has no button \"Perhaps\""));
    EXPECT_EQ(replies.back()["dialogs"][0]["answer"], replies.back()["dialogs"][0]["default"]);
    EXPECT_EQ("\"C01\",#TRUE#\r\n", ReadBytes(JobFile("Abbott - 14 Orchard Lane")));
}

TEST_F(ConsoleJobs, ATemplateIsMadeAndAJobSpawnedFromIt) {
    const auto replies = Session({
        Do("click", {{"button", "cmdTemplate"}}),
        Do("name", {{"text", "too early"}}),
        Do("load", {{"name", "* NEW CLIENT-INFO TEMPLATE *"}}),
        Do("name", {{"text", "Regency"}}),
        Do("enter"),
        Do("field", {{"n", 21}, {"text", "Acme Builders"}}),
        Do("click", {{"button", "cmdOpen"}}),
        Do("click", {{"button", "cmdReset"}}),
        Do("browse", {{"text", ""}}),
        Do("click", {{"button", "cmdTemplate"}}),
        Do("spawn", {{"name", "* NEW CLIENT-INFO TEMPLATE *"}}),
        Do("spawn", {{"name", "{ REGENCY_template }"}}),
        Do("state"),
        Do("value", {{"n", 21}}),
    });
    EXPECT_THAT(replies[1], Refuses("the browser is open"));
    for (const std::size_t i : {2, 3, 4, 5, 6, 7}) EXPECT_THAT(replies[i], Succeeds()) << i << replies[i];
    EXPECT_TRUE(fs::exists(JobFile("{ REGENCY_template }")));
    EXPECT_THAT(replies[8], Gives(Json::array())) << "templates are no jobs";
    EXPECT_THAT(replies[10], Refuses("no job can be spawned"));
    EXPECT_THAT(replies[11], Succeeds());
    const Json& state = replies[12]["result"];
    EXPECT_EQ(state["txtJobName"]["text"], "regency - ");
    EXPECT_EQ(state["txtJobName"]["locked"], false);
    EXPECT_EQ(state["ScreenMode"], "");
    EXPECT_EQ(state["List2"], Json::array());
    EXPECT_THAT(replies[13], Gives("Acme Builders"));
}

TEST_F(ConsoleJobs, EscapeFromTheTemplatesResets) {
    const auto replies = Session({Do("click", {{"button", "cmdTemplate"}}), Do("browse", {{"text", "reg"}}),
                                  Do("state"), Do("load", {{"name", "Abbott"}}), Do("state")});
    EXPECT_THAT(replies[1], Gives(Json::array()));
    EXPECT_EQ(replies[2]["result"]["ScreenMode"], "");
    EXPECT_EQ(replies[2]["result"]["buttons"]["cmdOpen"]["caption"], "OPEN");
    EXPECT_THAT(replies[3], Refuses("lists no entry \"Abbott\""));
    EXPECT_EQ(replies[2]["result"], replies[4]["result"]);
}

TEST_F(ConsoleJobs, DeletingAsksNothing) {
    WriteBytes(JobFile("Abbott"), "\"C01\",#TRUE#\r\n");
    WriteBytes(office / "data/images/Abbott_201.bmp", "BM");
    const auto replies = Session({Do("delete", {{"name", "Abbott"}}), Do("delete", {{"name", "Abbott"}}),
                                  Do("name", {{"text", "Abbott"}})});
    EXPECT_THAT(replies[0], Succeeds());
    EXPECT_THAT(replies[0]["dialogs"], SizeIs(0));
    EXPECT_FALSE(fs::exists(JobFile("Abbott")));
    EXPECT_FALSE(fs::exists(office / "data/images/Abbott_201.bmp"));
    EXPECT_THAT(replies[1], Refuses("lists no entry"));
    EXPECT_THAT(replies[2], Gives("Abbott")) << "the browser has been closed again";
}

TEST_F(ConsoleJobs, ATornFileIsToldAndLeavesTheScreenIdle) {
    WriteBytes(JobFile("Abbott"), "\"021\",torn");
    const auto replies = Session({Do("load", {{"name", "Abbott"}}), Do("state")});
    EXPECT_THAT(replies[0], Refuses("Abbott.dat, record 1"));
    EXPECT_EQ(replies[1]["result"]["txtJobName"]["text"], "");
    EXPECT_EQ(replies[1]["result"]["buttons"]["cmdOpen"]["caption"], "OPEN");
}

TEST_F(ConsoleJobs, CreateTellsWhereTheDocumentIs) {
    const std::string document = TextOf(office / "out.docx");
    const std::string trace = TextOf(office / "trace.txt");
    const auto replies = Session(SmallJobAnd({
        Do("create", {{"to", document}, {"trace", trace}, {"answers", {"Yes"}}}),
        Do("create", {{"to", TextOf(office / "nowhere")}}),
        Do("click", {{"button", "cmdReset"}}),
        Do("create"),
    }));
    EXPECT_THAT(replies[5], Gives(Json{{"document", document}}));
    EXPECT_TRUE(fs::exists(document));
    EXPECT_THAT(ReadBytes(trace), HasSubstr("Documents.Add\n"));
    EXPECT_THAT(replies[6], Refuses("neither a .docx file nor an existing folder"));
    EXPECT_THAT(replies[8], Refuses("cmdCreate is disabled"));
}

TEST_F(ConsoleOffice, DefaultsAndSettingsAreAskedForAndKept) {
    const auto replies = Session({
        Do("name", {{"text", "defaults"}}),
        Do("enter"),
        Do("setting", {{"row", "show descr footers"}, {"answers", {"p"}}}),
        Do("setting", {{"row", "[seller lawfirm]"}, {"answers", {"Pike & Partners"}}}),
        Do("setting", {{"row", "no such row"}}),
        Do("state"),
        Do("click", {{"button", "cmdOpen"}}),
        Do("click", {{"button", "cmdReset"}}),
        Do("state"),
    });
    EXPECT_THAT(replies[2], Gives("show descr footers  (Y/N/P)  P"));
    EXPECT_THAT(replies[3], Gives("[seller lawfirm]:            Pike & Partners"));
    EXPECT_THAT(replies[4], Refuses("no such row"));
    EXPECT_EQ(replies[5]["result"]["txtJobName"]["text"], "DEFAULTS");
    EXPECT_THAT(replies[5]["result"]["settings"], SizeIs(20));
    EXPECT_THAT(replies[8]["result"]["settings"], SizeIs(0));
    EXPECT_THAT(ReadBytes(office / "DBasePath.txt"), HasSubstr("\"P\"\r\n"));
    EXPECT_THAT(ReadBytes(office / "defaults.fld"), HasSubstr("Pike & Partners"));
}

TEST_F(ConsoleOffice, AParalegalServesOneClientAtATime) {
    WriteBytes(office / "DBasePath.txt",
               "\"data\\\"\r\n\"N\"\r\n\"Y\"\r\n\"Y\"\r\n\"Y\"\r\n\"ON\"\r\n\"Y\"\r\n\"Y\"\r\n");
    const auto replies = Session({
        Do("name", {{"text", "Abbott"}}),
        Do("client", {{"name", "< ADD LAWFIRM / CLIENT >"}, {"answers", {"Pell & Co"}}}),
        Do("click", {{"button", "cmdReset"}}),
        Do("click", {{"button", "cmdSelect"}}),
        Do("client", {{"name", "Pell & Co"}}),
        Do("name", {{"text", "Abbott"}}),
        Do("pick", {{"text", "Deed / Warranty"}}),
        Do("field", {{"n", 21}, {"text", "Anna Abbott"}}),
        Do("click", {{"button", "cmdOpen"}}),
        Do("click", {{"button", "cmdReset"}}),
        Do("click", {{"button", "cmdSelect"}}),
        Do("client-delete", {{"name", "Pell & Co"}}),
    });
    EXPECT_THAT(replies[0], Refuses("")) << "no client has been chosen";
    EXPECT_THAT(replies[1], Gives(Json::array({"< ADD LAWFIRM / CLIENT >", "Pell & Co"})));
    for (std::size_t i = 2; i < replies.size(); ++i) EXPECT_THAT(replies[i], Succeeds()) << i;
    EXPECT_TRUE(fs::exists(office / "data/Pell & Co/Abbott.dat"));
    EXPECT_EQ(replies[11]["dialogs"][0]["answer"], "Cancel") << "deletion is not the default";
    EXPECT_THAT(replies[11]["result"], SizeIs(2));
}

TEST_F(ConsoleOffice, PackagesAreSavedRenamedAndDeleted) {
    const Json seller = {"Deed / Warranty", "Closing Statement"};
    const auto replies = Session({
        Do("package-save", {{"name", "seller"}, {"documents", seller}}),
        Do("package-save", {{"name", "BARE"}, {"documents", Json::array()}}),
        Do("package-save", {{"name", "DEEDS"}, {"documents", {"Deed / Warranty", "Deed / Quitclaim"}}}),
        Do("package-save", {{"name", "SALE"}, {"documents", seller}, {"renames", "SELLER"}}),
        Do("package-save", {{"name", "X"}, {"documents", seller}, {"renames", "SELLER"}}),
        Do("package-save", {{"name", "X"}, {"documents", {"No such document"}}}),
        Do("package-delete", {{"name", "BARE"}}),
        Do("state"),
        Do("pick", {{"text", "< SALE >"}}),
        Do("package-delete", {{"name", "SALE"}}),
    });
    EXPECT_THAT(replies[0], Gives(Json::array({"SELLER"})));
    EXPECT_THAT(replies[1], Gives(Json::array({"SELLER", "BARE"})));
    EXPECT_THAT(replies[3], Gives(Json::array({"BARE", "DEEDS", "SALE"})));
    EXPECT_THAT(replies[4], Refuses("SELLER"));
    EXPECT_THAT(replies[5], Refuses("No such document"));
    EXPECT_THAT(replies[6], Gives(Json::array({"DEEDS", "SALE"})));
    EXPECT_EQ(replies[7]["result"]["List1"][1], "< SALE >");
    EXPECT_THAT(replies[8], Gives(seller));
    EXPECT_THAT(replies[9], Refuses("cmdPackages")) << "a job is being chosen for";
    EXPECT_EQ(
        "\"<01>DEEDS\"\r\n\"Deed / Quitclaim\"\r\n\"<02>SALE\"\r\n\"Deed / Warranty\"\r\n"
        "\"Closing Statement\"\r\n",
        ReadBytes(office / "package.def"))
        << "a deed takes the place of a deed";
}

TEST_F(ConsoleOffice, APreviewIsMadeWhereItIsWantedAndChangesNothing) {
    const Json to = {{"to", TextOf(office / "now.docx")}};
    const Json deed = {{"to", TextOf(office / "deed.docx")}, {"document", "Deed / Warranty"}};
    const auto replies = Session({
        Do("preview", to),
        Do("name", {{"text", "Abbott"}}),
        Do("pick", {{"text", "Deed / Warranty"}}),
        Do("pick", {{"text", "Closing Statement"}}),
        Do("field", {{"n", 21}, {"text", "Anna Abbott"}}),
        Do("state"),
        Do("preview", to),
        Do("preview", deed),
        Do("preview", {{"to", TextOf(office / "now.docx")}, {"document", "Deed / Quitclaim"}}),
        Do("state"),
    });
    EXPECT_THAT(replies[0], Refuses("job list is empty"));
    ASSERT_THAT(replies[6], Succeeds());
    ASSERT_THAT(replies[7], Succeeds());
    EXPECT_THAT(replies[6]["dialogs"], SizeIs(0));
    EXPECT_THAT(replies[8], Refuses("Deed / Quitclaim"));
    EXPECT_EQ(replies[5]["result"], replies[9]["result"]);
    EXPECT_TRUE(fs::exists(office / "now.docx") && fs::exists(office / "deed.docx"));
    EXPECT_FALSE(fs::exists(JobFile("Abbott")));
    std::map<int, Json> values;
    for (const Json& value : replies[7]["result"]["values"]) values[value["n"]] = value;
    EXPECT_EQ(values[21]["text"], "Anna Abbott");
    EXPECT_THAT(values[21]["at"], ::testing::Not(SizeIs(0)));
    EXPECT_EQ(values[59]["text"], "[buyer 1 name]");
}

}  // namespace
}  // namespace quillmark::cli
