#include "cli/console_fixture.h"
#include "cli/console_printers.h"

namespace quillmark::cli {
namespace {

using ::testing::ElementsAre;

/// The windows of the side tools, as requests name them.
class ConsoleWindows : public ConsoleTest {
 protected:
    ConsoleWindows() {
        test::WriteBytes(
            JobFile("Hollis"),
            "\"000\",\"Deed / Warranty\"\r\n\"021\",\"Walter B. Hollis\"\r\n\"076\",\"$415,000.00\"\r\n");
        test::WriteBytes(office / "OP236.pdf",
                         test::ReadBytes(test::SourceFolder() / "packaging" / "firm" / "OP236.pdf"));
        printers = {PrinterOf("HP Laser: Room 2:1=Upper,4=Manual")};
    }
    std::vector<Json> WithJob(std::vector<std::string> lines) {
        lines.insert(lines.begin(), Do("load", {{"name", "Hollis"}}));
        std::vector<Json> replies = Session(lines);
        replies.erase(replies.begin());
        return replies;
    }
};

std::string Open(const char* button) {
    return Do("click", {{"button", button}});
}
std::string Set(const char* control, Json value) {
    return Do("window-set", {{"control", control}, {"value", std::move(value)}});
}
std::string Click(const char* control) {
    return Do("window-click", {{"control", control}});
}

TEST_F(ConsoleWindows, FillTheReturn) {
    const auto replies =
        WithJob({Open("cmdOP236"), Set("rtbCode", "17"), Set("rtbCode", ""), Set("Option2", true),
                 Do("window-click", {{"control", "CREATE"}, {"to", TextOf(office.path())}}),
                 Do("window-close"), Do("window")});
    EXPECT_EQ(replies[0]["result"]["title"], "Quillmark - Form OP-236 Utility");
    const Json& controls = replies[0]["result"]["controls"];
    EXPECT_EQ(controls["Combo1"]["text"], "Warranty Deed");
    EXPECT_EQ(controls["Check4"], Json({{"caption", "Residential other than dwelling"},
                                        {"checked", false},
                                        {"enabled", true},
                                        {"visible", false},
                                        {"tooltip", " property is improved multi-unit residential "}}));
    EXPECT_EQ(replies[1]["result"]["controls"]["code"]["text"], "17");
    EXPECT_EQ(replies[2]["result"]["controls"]["code"]["text"], "");
    EXPECT_EQ(replies[3]["result"]["controls"]["Option1"]["checked"], false);
    EXPECT_EQ(replies[4]["result"]["document"], TextOf(office / "Hollis_OP236.pdf"));
    EXPECT_THAT(replies[5], Succeeds());
    EXPECT_THAT(replies[6], Gives(nullptr));
}

TEST_F(ConsoleWindows, PrintAnEnvelope) {
    const auto replies =
        WithJob({Open("cmdEnvelopes"), Click("setup"), Set("lstBins", 1), Set("cboFonts", "Arial"),
                 Set("Landscape", true), Click("OK"), Set("Combo1", 1), Click("PRINT")});
    EXPECT_THAT(replies[0]["dialogs"][0]["title"], "IMPORTANT");
    EXPECT_EQ(replies[1]["result"]["controls"]["cboPrinters"]["items"], Json({"HP Laser: Room 2"}));
    const Json page = replies[7]["result"]["printed"].at(0);
    EXPECT_EQ(page["bin"], 4);
    EXPECT_EQ(page["paper"], "#10");
    EXPECT_EQ(page["landscape"], true);
    EXPECT_EQ(page["items"][0], Json({{"across", 2.75},
                                      {"down", 1.75},
                                      {"text", "Walter B. Hollis"},
                                      {"font", "Arial"},
                                      {"size", 14.0},
                                      {"bold", true}}));
}

TEST_F(ConsoleWindows, KeepTheMainScreenWaiting) {
    const auto replies = WithJob({Set("Text1", "x"), Open("cmdOP236"), Do("value", {{"n", 21}}), Do("state"),
                                  Set("Text3", "x"), Set("Text99", "x"), Set("Text1", Json::array()),
                                  Set("Option1", false), Do("window-close"), Do("value", {{"n", 21}})});
    EXPECT_THAT(replies[0], Refuses("no side tool's window is open"));
    EXPECT_THAT(replies[2], Refuses("Form OP-236 Utility"));
    EXPECT_THAT(replies[3], Succeeds());
    EXPECT_THAT(replies[4], Refuses("Text3 is disabled"));
    EXPECT_THAT(replies[5], Refuses("no control"));
    EXPECT_THAT(replies[6], Refuses("value is no text"));
    EXPECT_THAT(replies[7], Refuses("Option1"));
    EXPECT_THAT(replies[9], Gives("Walter B. Hollis"));
}

TEST(ConsolePrinters, AreReadFromTheCommandLine) {
    const NamedPrinter printer = PrinterOf("\\\\srv\\HP: 2:1=Upper,4=");
    EXPECT_EQ(printer.name, "\\\\srv\\HP: 2");
    ASSERT_EQ(printer.bins.size(), 2u);
    EXPECT_EQ(printer.bins[1].number, 4);
    EXPECT_EQ(printer.bins[1].name, "");
    EXPECT_TRUE(PrinterOf("Plain").bins.empty());
    for (const char* wrong : {"", ":1=x", "P:x=Upper", "P:1", "P:=Upper"})
        EXPECT_THROW(PrinterOf(wrong), std::invalid_argument) << wrong;
}

}  // namespace
}  // namespace quillmark::cli
