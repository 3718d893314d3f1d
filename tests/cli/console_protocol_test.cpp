#include <set>

#include "cli/console_commands.h"
#include "cli/console_fixture.h"

namespace quillmark::cli {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class ConsoleProtocol : public ConsoleTest {};

std::set<std::string> KeysOf(const Json& object) {
    std::set<std::string> keys;
    for (const auto& [key, value] : object.items()) keys.insert(key);
    return keys;
}

using Keys = std::set<std::string>;

TEST_F(ConsoleProtocol, TheStartIsReportedBeforeTheFirstRequest) {
    test::WriteBytes(office / "defaults.fld", "");
    const auto replies = RepliesTo("");
    ASSERT_THAT(replies, SizeIs(1));
    EXPECT_EQ(KeysOf(replies[0]), (Keys{"ok", "result", "dialogs", "info"}));
    EXPECT_EQ(replies[0]["result"], "ready");
    ASSERT_THAT(replies[0]["dialogs"], SizeIs(1));
    EXPECT_EQ(replies[0]["dialogs"][0]["title"], "IMPORTANT");
    EXPECT_EQ(replies[0]["dialogs"][0]["answer"], "OK");
    EXPECT_EQ(KeysOf(replies[0]["dialogs"][0]),
              (Keys{"kind", "title", "text", "buttons", "default", "icon", "answer"}));
    EXPECT_EQ(status, kDone);
}

TEST_F(ConsoleProtocol, AStartThatFailsIsReportedAndEndsTheSession) {
    std::filesystem::remove_all(office / "data");
    test::WriteBytes(office / "data", "in the way of the folder");
    const auto replies = RepliesTo(Do("state") + "\n");
    ASSERT_THAT(replies, SizeIs(1));
    EXPECT_THAT(replies[0], Refuses("data"));
    EXPECT_EQ(status, kFailed);
}

TEST_F(ConsoleProtocol, TheStateIsWhole) {
    const auto replies = Session({Do("state"), Do("name", {{"text", "Abbott"}}),
                                  Do("pick", {{"text", "Deed / Warranty"}}), Do("state")});
    for (const std::size_t i : {0, 3}) {
        const Json& state = replies[i]["result"];
        EXPECT_EQ(KeysOf(state), (Keys{"txtJobName",  "ScreenMode",   "FieldEntryStarted",
                                       "optConf",     "optEnabled",   "optVisible",
                                       "optTooltips", "List1",        "List1Enabled",
                                       "List2",       "List2Enabled", "List2Tooltip",
                                       "legal",       "JobDocuments", "grid",
                                       "settings",    "total",        "remaining",
                                       "buttons",     "info"}));
        EXPECT_EQ(KeysOf(state["txtJobName"]), (Keys{"text", "locked", "enabled", "noSave"}));
        for (const char* options : {"optConf", "optEnabled", "optVisible", "optTooltips"})
            EXPECT_THAT(state[options], SizeIs(15)) << options;
        EXPECT_EQ(KeysOf(state["buttons"]),
                  (Keys{"cmdOpen", "cmdCreate", "cmdReset", "cmdExit", "cmdTemplate", "cmdPackages",
                        "cmdCustom", "cmdNameAs", "cmdEnvelopes", "cmdOP236", "cmdPrintFList", "cmdSelect"}));
        for (const Json& button : state["buttons"])
            EXPECT_EQ(KeysOf(button), (Keys{"caption", "enabled", "visible", "tooltip"}));
    }
    const Json& grid = replies[3]["result"]["grid"];
    ASSERT_FALSE(grid.empty());
    std::set<std::string> kinds;
    for (const Json& row : grid) {
        EXPECT_EQ(KeysOf(row), (Keys{"kind", "n", "label", "value", "notes", "lit", "key", "locked"}));
        EXPECT_THAT(row["notes"], SizeIs(2));
        EXPECT_TRUE(row["lit"][1].is_boolean());
        EXPECT_TRUE(row["key"].is_string());
        kinds.insert(row["kind"]);
    }
    EXPECT_EQ(kinds, (std::set<std::string>{"field", "heading"}));
}

TEST_F(ConsoleProtocol, EveryLineGetsOneReplyHoweverBad) {
    const std::vector<std::pair<std::string, std::string>> lines = {
        {"", "not JSON"},
        {"state", "not JSON"},
        {"{\"do\":\"state\"", "not JSON"},
        {"{\"do\":\"state\"} {\"do\":\"state\"}", "not JSON"},
        {"[1]", "not a JSON object"},
        {"{}", "do is missing"},
        {"{\"do\":7}", "do is not a text"},
        {Do("frobnicate"), "no command \"frobnicate\""},
        {"{\"do\":\"name\",\"text\":\"\xC3\"}", "not JSON"},
        {"{\"do\":\"name\",\"text\":\"\\ud800\"}", "not JSON"},
        {Do("name", {{"text", 5}}), "text is not a text"},
        {Do("name", {{"text", nullptr}}), "text is missing"},
        {Do("name", {{"text", "Wałęsa"}}), "\"ł\" (U+0142)"},
        {"{\"do\":\"name\",\"text\":\"a\\u0000b\"}", "U+0000"},
        {Do("option", {{"n", "1"}}), "n is not a whole number"},
        {Do("option", {{"n", 1.5}}), "n is not a whole number"},
        {"{\"do\":\"option\",\"n\":18446744073709551617}", "n is not a whole number"},
        {"{\"do\":\"option\",\"n\":18446744073709551615}", "n is not a whole number"},
        {Do("legal", {{"lines", "Deed / Warranty"}}), "lines is not a list"},
        {Do("legal", {{"lines", {1}}}), "lines is not a text"},
        {Do("state", {{"answers", "Yes"}}), "answers is not a list"},
        {Do("state", {{"answers", {1}}}), "answers holds"},
        {Do("field", {{"text", "x"}}), "n or marker is missing"},
        {Do("field", {{"n", 21}, {"text", "x"}, {"how", "sing"}}), "how is none of"},
        {Do("value", {{"n", 241}}), "241 is no value"},
        {Do("value", {{"n", 5021}}), "5021 is no value"},
        {Do("calculator", {{"gross", {1}}}), "gross is not a text"},
        {std::string(1'000'000, '['), "not JSON"},
        {Do("browse", {{"text", std::string(5'000'000, 'x')}}), "longer than 4 MB"},
    };
    std::vector<std::string> input;
    for (const auto& [line, error] : lines) input.push_back(line);
    input.push_back(Do("value", {{"n", 1}}));
    const auto replies = Session(input);
    ASSERT_THAT(replies, SizeIs(lines.size() + 1));
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_THAT(replies[i], Refuses(lines[i].second)) << lines[i].first.substr(0, 100);
        EXPECT_EQ(KeysOf(replies[i]), (Keys{"ok", "error", "dialogs", "info"}));
    }
    EXPECT_THAT(replies.back(), Succeeds());
}

TEST_F(ConsoleProtocol, EveryCommandNamesTheArgumentsThatItMisses) {
    for (const Command& command : Commands()) {
        const auto reply = Session({Do(std::string(command.name))}).at(0);
        if (reply["ok"] == true) continue;
        const std::string error = reply["error"];
        for (const Argument& argument : command.arguments) {
            if (!argument.required) continue;
            EXPECT_EQ(error, "the argument " + std::string(argument.name) + " is missing") << command.name;
            break;
        }
    }
}

}  // namespace
}  // namespace quillmark::cli
