#include "cli/make.h"

#include <gmock/gmock.h>

#include <sstream>

#include "cli/command_line.h"
#include "platform/paths.h"
#include "support/scratch.h"

namespace quillmark::cli {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

/// A firm's program folder with the job "Hollis" in its job folder.
class Making : public ::testing::Test {
 protected:
    Making() {
        fs::create_directories(program / "data");
        WriteBytes(program / "data/Hollis.dat", Job("\"021\",\"Walter Hollis\"\r\n"));
    }

    static std::string Job(const std::string& fields) {
        std::string bytes = "\"000\",\"Deed / Warranty\"\r\n\"000\",\"Schedule A\"\r\n";
        for (int option = 1; option <= 15; ++option)
            bytes += "\"C" + std::string(option < 10 ? "0" : "") + std::to_string(option) + "\"," +
                     (option == 1 || option == 3 || option == 5 ? "#TRUE#" : "#FALSE#") + "\r\n";
        return bytes + fields;
    }

    /// Runs `make` with these words; the documents go to `made`.
    int Make(std::vector<std::string> words, bool terminal = false) {
        words.insert(words.begin(), {"make", "--folder", TextOf(program.path()), "--out", TextOf(made.path()),
                                     "--today", "2025-04-06"});
        out.str("");
        err.str("");
        return RunCommandLine(words, {out, err, terminal});
    }

    fs::path Document(const std::string& name) const { return made / (name + "_QMF.docx"); }
    std::string Trace(const std::string& job) {
        EXPECT_EQ(Make({"--trace", TextOf(made / "trace.txt"), job}), 0) << err.str();
        return ReadBytes(made / "trace.txt");
    }

    ScratchFolder program;
    ScratchFolder made;
    std::ostringstream out, err;
};

TEST_F(Making, WritesADocumentAndItsPathAndLeavesTheJobAlone) {
    const std::string job = ReadBytes(program / "data/Hollis.dat");
    EXPECT_EQ(Make({"Hollis"}), 0) << err.str();
    EXPECT_EQ(out.str(), TextOf(Document("Hollis")) + "\n");
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(ReadBytes(Document("Hollis")).substr(0, 2), "PK");
    EXPECT_EQ(ReadBytes(program / "data/Hollis.dat"), job);
}

TEST_F(Making, TheSameInputGivesTheSameBytes) {
    ASSERT_EQ(Make({"Hollis"}), 0);
    const std::string first = ReadBytes(Document("Hollis"));
    ASSERT_EQ(Make({"Hollis"}), 0);
    EXPECT_EQ(ReadBytes(Document("Hollis")), first);
}

TEST_F(Making, AJobCanBeGivenByPathInAnyCaseOfItsExtension) {
    WriteBytes(made / "Elsewhere.DAT", Job(""));
    EXPECT_EQ(Make({TextOf(made / "Elsewhere.DAT")}), 0) << err.str();
    EXPECT_TRUE(fs::exists(Document("Elsewhere")));
    EXPECT_EQ(Make({"Hollis.dat"}), 0) << "a file name is looked for in the job folder too";
}

TEST_F(Making, GoesOnAfterAFailureAndNamesTheFailed) {
    WriteBytes(program / "data/Torn.dat", "\"000\",\"Deed / Warr");
    EXPECT_EQ(Make({"Torn", "Missing", "Hollis"}), 1);
    EXPECT_EQ(out.str(), TextOf(Document("Hollis")) + "\n");
    EXPECT_THAT(err.str(), HasSubstr("quillmark-cli: Torn: "));
    EXPECT_THAT(err.str(), HasSubstr("Torn.dat, record 1"));
    EXPECT_THAT(err.str(), HasSubstr("Missing.dat: there is no such job"));
    EXPECT_THAT(err.str(), HasSubstr("2 of 3 jobs failed: Torn, Missing"));
}

TEST_F(Making, AFailureLeavesTheOldDocumentWhole) {
    WriteBytes(Document("Hollis"), "old");
    EXPECT_EQ(Make({"--documents", "Deed / Warranty;Deed / Wrong", "Hollis"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("no document has the name \"Deed / Wrong\""));
    EXPECT_EQ(ReadBytes(Document("Hollis")), "old");
    EXPECT_EQ(out.str(), "");
}

TEST_F(Making, AListOnTheCommandLineReplacesTheJobsOwn) {
    WriteBytes(program / "data/Bare.dat", "\"021\",\"Ann Lee\"\r\n");
    EXPECT_EQ(Make({"Bare"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("lists no documents"));
    EXPECT_EQ(Make({"--documents", "Schedule A", "Bare"}), 0) << err.str();
}

TEST_F(Making, TwoJobsOfOneNameDoNotOverwriteEachOther) {
    WriteBytes(made / "Hollis.dat", Job(""));
    EXPECT_EQ(Make({"Hollis", TextOf(made / "Hollis.dat")}), 1);
    EXPECT_THAT(err.str(), HasSubstr("has the same name"));
}

TEST_F(Making, TheFirmsDefaultsFillWhatTheJobLeavesOpen) {
    WriteBytes(program / "defaults.fld",
               "\"[seller atty]:               Ruth Penfield/412345; Max Stone/498765\"\r\n"
               "\"[witness #2]:                Ann Lee\"\r\n");
    EXPECT_THAT(Trace("Hollis"), HasSubstr("Ruth Penfield"));
    EXPECT_THAT(Trace("Hollis"), Not(HasSubstr("Ann Lee"))) << "a witness is only offered, never put in";
    EXPECT_THAT(Trace("Hollis"), Not(HasSubstr("412345")));
    WriteBytes(program / "data/Own.dat", Job("\"003\",\"Zoe Adams/455555\"\r\n"));
    EXPECT_THAT(Trace("Own"), HasSubstr("Zoe Adams"));
    EXPECT_THAT(Trace("Own"), Not(HasSubstr("Ruth Penfield")));
}

TEST_F(Making, TheTraceHoldsEveryOperationInOrder) {
    const std::string trace = Trace("Hollis");
    EXPECT_THAT(trace, HasSubstr("\nDocuments.Add\nActiveDocument.DefaultTabStop = 18\n"));
    EXPECT_THAT(trace, HasSubstr("Selection.TypeText \"WARRANTY DEED - STATUTORY FORM\\r\\r\""));
    EXPECT_LT(trace.find("InsertBreak 2"), trace.find("ActiveDocument.SaveAs"));
}

TEST_F(Making, TodayDatesTheDocuments) {
    EXPECT_THAT(Trace("Hollis"), HasSubstr("6th day of April, 2025"));
}

TEST_F(Making, AValueThatIsNoDateIsReportedAndDoesNotStopTheRun) {
    WriteBytes(program / "data/Soon.dat", Job("\"079\",\"soon\"\r\n"));
    EXPECT_EQ(Make({"Soon"}), 0);
    EXPECT_THAT(err.str(), HasSubstr("[closing date] holds \"soon\""));
}

TEST_F(Making, AValueThatWouldMakeAFalseDocumentStopsTheJobsThatUseIt) {
    WriteBytes(program / "data/Wrong.dat",
               Job("\"C05\",#FALSE#\r\n\"C06\",#TRUE#\r\n\"092\",\"in common\"\r\n"
                   "\"081\",\"soon\"\r\n"));
    EXPECT_EQ(Make({"Wrong", "Hollis"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("Wrong: The 'Tenancy Type' field has an improper value,"));
    EXPECT_EQ(out.str(), TextOf(Document("Hollis")) + "\n");
    EXPECT_EQ(Make({"--documents", "Closing Statement", "Wrong"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("The 'Proration Date' field is empty or contains invalid data,"));
    EXPECT_EQ(Make({"--documents", "Privacy Policy", "Wrong"}), 0) << err.str();
}

TEST_F(Making, ProgressShowsOnATerminalOnlyAndQuietSilencesAll) {
    EXPECT_EQ(Make({"Hollis"}, true), 0);
    EXPECT_THAT(err.str(), HasSubstr("job 1 of 1 (Hollis), document 2 of 2"));
    EXPECT_THAT(err.str(), EndsWith("\r\x1b[K")) << "the line is cleared";
    EXPECT_EQ(Make({"--quiet", "Hollis"}, true), 0);
    EXPECT_EQ(out.str() + err.str(), "");
    EXPECT_EQ(Make({"--quiet", "Missing"}, true), 1);
    EXPECT_THAT(err.str(), HasSubstr("Missing"));
}

TEST_F(Making, FoldersThatCannotBeUsedFailTheWork) {
    WriteBytes(made / "file", "");
    EXPECT_EQ(Make({"--out", TextOf(made / "file"), "Hollis"}), 2) << "an option is given once";
    std::ostringstream ignored;
    EXPECT_EQ(RunCommandLine({"make", "--folder", TextOf(made / "none"), "Hollis"}, {ignored, err}), 1);
    EXPECT_THAT(err.str(), HasSubstr("there is no such folder"));
    EXPECT_EQ(
        RunCommandLine({"make", "--folder", TextOf(program.path()), "--out", TextOf(made / "file"), "Hollis"},
                       {ignored, err}),
        1);
}

TEST_F(Making, EverySampleJobMakesItsDocuments) {
    const fs::path samples = fs::path(QUILLMARK_SOURCE_DIR) / "data";
    int jobs = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(samples)) {
        if (entry.path().extension() != ".dat") continue;
        ++jobs;
        const std::string trace = Trace(TextOf(entry.path()));
        EXPECT_EQ(err.str(), "") << entry.path();
        EXPECT_THAT(trace, Not(HasSubstr("\"[")))
            << entry.path() << ": a field that its documents need is open";
    }
    EXPECT_EQ(jobs, 5);
}

}  // namespace
}  // namespace quillmark::cli
