#include "cli/make.h"

#include <fmt/format.h>
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
using test::SourceFolder;
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

    /// Runs `make` with these words, open fields or not; the documents go to `made`.
    int Make(std::vector<std::string> words, bool terminal = false) {
        words.insert(words.begin(), "--anyway");
        return MakeAsked(std::move(words), terminal);
    }
    int MakeAsked(std::vector<std::string> words, bool terminal = false) {
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
    EXPECT_EQ(ReadBytes(Document("Hollis")).substr(0, 2), "PK");
    EXPECT_EQ(ReadBytes(program / "data/Hollis.dat"), job);
    EXPECT_FALSE(fs::exists(program / "data/Attorneys.lst") || fs::exists(program / "data/images"));
}

TEST_F(Making, NoticesGoToStandardErrorAndUseUpNoAnswer) {
    EXPECT_EQ(MakeAsked({"--answers", "Yes", "Hollis"}), 0);
    EXPECT_THAT(err.str(), HasSubstr("Hollis: IMPORTANT NOTICES ABOUT THE DOCUMENTS YOU JUST CREATED"));
    EXPECT_THAT(err.str(), HasSubstr("Hollis: nothing fills [seller atty]"));
    EXPECT_EQ(Make({"--documents", "Schedule A;Notice Of Lease", "Hollis"}), 0);
    EXPECT_THAT(err.str(), HasSubstr("Hollis: no text yet for Notice Of Lease"));
}

TEST_F(Making, AnUnfinishedJobFailsWithItsOpenFieldsUnlessSomebodySaysYes) {
    EXPECT_EQ(MakeAsked({"Hollis"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("Hollis: required fields are open: [buyer atty]"));
    EXPECT_THAT(err.str(), HasSubstr("[buyer 1 name]"));
    EXPECT_THAT(err.str(), Not(HasSubstr("[document date]"))) << "today is";
    EXPECT_FALSE(fs::exists(Document("Hollis")));
    EXPECT_EQ(MakeAsked({"--answers", "No,Yes", "Hollis", "Hollis"}), 1) << "an answer for each job";
    EXPECT_TRUE(fs::exists(Document("Hollis")));
}

TEST_F(Making, ADocumentThatIsThereIsReplacedByForceAlone) {
    WriteBytes(Document("Hollis"), "of the user");
    EXPECT_EQ(Make({"Hollis"}), 0);
    EXPECT_EQ(out.str(), TextOf(Document("Hollis").replace_filename("Hollis_QMF (2).docx")) + "\n");
    EXPECT_EQ(ReadBytes(Document("Hollis")), "of the user");
    EXPECT_EQ(Make({"--force", "Hollis"}), 0);
    EXPECT_EQ(ReadBytes(Document("Hollis")).substr(0, 2), "PK");
}

TEST_F(Making, CheckNamesWhatIsWrongAndMakesNothing) {
    WriteBytes(program / "data/Bad.dat",
               Job("\"072\",\"Atlantis, CT\"\r\n\"076\",\"much\"\r\n\"079\",\"soon\"\r\n"));
    EXPECT_EQ(MakeAsked({"--check", "--documents", "Deed / Warranty;Deed / Wrong;Closing Statement", "Bad"}),
              1);
    for (const char* finding :
         {"Bad: [seller 1 name] is open in Deed / Warranty", "Bad: [buyer 1 addr 2] is open (optional)",
          "Bad: [property cy,st zip] holds \"Atlantis, CT\", which is in no county",
          "Bad: [sale price numeric] holds \"much\", which is no amount",
          "Bad: [closing date] holds \"soon\", which is not a date",
          "Bad: no document has the name \"Deed / Wrong\""})
        EXPECT_THAT(err.str(), HasSubstr(finding));
    EXPECT_EQ(MakeAsked({"--check", "Hollis"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("Hollis: nothing fills [seller atty]"));
    EXPECT_EQ(out.str(), "");
    EXPECT_TRUE(fs::is_empty(made.path()));
    WriteBytes(program / "data/Lot.dat", Job("\"201\",\"Lot 7.\"\r\n\"202\",\"None.\"\r\n"));
    EXPECT_EQ(MakeAsked({"--check", "--documents", "Schedule A", "Lot"}), 0) << err.str();
}

TEST_F(Making, APictureThatCannotBeReadIsNamedAndLeavesItsMarker) {
    WriteBytes(program / "data/Lot.dat",
               Job("\"201\",\"IMAGE -> (Select & R-Click for options)\"\r\n\"202\",\"None.\"\r\n"));
    const auto named = [&](std::string_view fault) {
        return HasSubstr(
            fmt::format("Lot: [sched A description] is a picture, but {} (\"Lot_201.bmp\")", fault));
    };
    EXPECT_EQ(MakeAsked({"--check", "--documents", "Schedule A", "Lot"}), 1);
    EXPECT_THAT(err.str(), named("its file is missing"));
    fs::create_directories(program / "data/images");
    WriteBytes(program / "data/images/Lot_201.bmp", "BM of a drawing");
    EXPECT_EQ(MakeAsked({"--check", "--documents", "Schedule A", "Lot"}), 1);
    EXPECT_THAT(err.str(), named("the BMP picture ends too early"));
    EXPECT_EQ(Make({"--documents", "Schedule A", "--trace", TextOf(made / "trace.txt"), "Lot"}), 0);
    EXPECT_THAT(err.str(), named("the BMP picture ends too early"));
    EXPECT_THAT(ReadBytes(made / "trace.txt"), HasSubstr("TypeText \"[sched A description]"));
}

TEST_F(Making, PaperAndDateComeFromTheCommandLine) {
    const std::string letter = Trace("Hollis");
    EXPECT_THAT(letter, Not(HasSubstr("PaperSize")));
    const auto trace = [&](std::vector<std::string> words) {
        words.insert(words.end(), {"--trace", TextOf(made / "trace.txt"), "Hollis"});
        EXPECT_EQ(Make(words), 0) << err.str();
        return ReadBytes(made / "trace.txt");
    };
    EXPECT_THAT(trace({"--legal", "Schedule A"}), HasSubstr("PaperSize = 4"));
    EXPECT_THAT(trace({"--document-date", "2026-01-02"}), HasSubstr("2nd day of January, 2026"));
    EXPECT_THAT(trace({"--document-date", "March __, 2026"}), HasSubstr("__ day of March, 2026"));
    EXPECT_EQ(Make({"--document-date", "soon", "Hollis"}), 2);
}

TEST_F(Making, AFileThatIsNotAsItShouldBeIsToldOf) {
    WriteBytes(program / "data/Utf8.dat", Job("\"021\",\"Ren\xC3\xA9 Roe\"\r\n"));
    EXPECT_THAT(Trace("Utf8"), HasSubstr("Ren\xC3\xA9 Roe"));
    EXPECT_THAT(err.str(), HasSubstr("Utf8: Utf8.dat is UTF-8 text"));
    WriteBytes(program / "data/Both.dat", Job("\"C02\",#TRUE#\r\n"));
    EXPECT_EQ(Make({"Both"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("\"1 Seller\" and \"2 Sellers\" contradict each other"));
    WriteBytes(program / "data/Newer.dat", Job("\"C16\",#TRUE#\r\n"));
    EXPECT_EQ(Make({"Newer"}), 0);
    EXPECT_THAT(err.str(), HasSubstr("saved by a newer version of Quillmark"));
}

TEST_F(Making, TheSameInputGivesTheSameBytes) {
    ASSERT_EQ(Make({"Hollis"}), 0);
    const std::string first = ReadBytes(Document("Hollis"));
    ASSERT_EQ(Make({"--force", "Hollis"}), 0);
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
    EXPECT_EQ(Make({"Hollis", TextOf(made / "Hollis.dat")}), 0);
    EXPECT_THAT(out.str(), EndsWith("Hollis_QMF (2).docx\n"));
    EXPECT_EQ(Make({"--force", "Hollis", TextOf(made / "Hollis.dat")}), 1);
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
    EXPECT_THAT(err.str(), HasSubstr("job 1 of 1 (Hollis), document 2 of 2\r\x1b[K"))
        << "the line is cleared";
    EXPECT_EQ(Make({"--quiet", "Hollis"}, true), 0);
    EXPECT_EQ(out.str() + err.str(), "") << "no notice either";
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
    const fs::path samples = SourceFolder() / "data";
    int jobs = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(samples)) {
        if (entry.path().extension() != ".dat") continue;
        ++jobs;
        EXPECT_EQ(MakeAsked({"--trace", TextOf(made / "trace.txt"), TextOf(entry.path())}), 0)
            << entry.path() << ": " << err.str();
        const std::string trace = ReadBytes(made / "trace.txt");
        EXPECT_THAT(err.str(), Not(HasSubstr("no text yet"))) << entry.path();
        EXPECT_THAT(trace, Not(HasSubstr("\"[")))
            << entry.path() << ": a field that its documents need is open";
    }
    EXPECT_EQ(jobs, 6);
}

}  // namespace
}  // namespace quillmark::cli
