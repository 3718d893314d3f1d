#include <gmock/gmock.h>

#include <random>

#include "session/create_fixture.h"
#include "session/screen_text.h"
#include "word/docx/check/package_check.h"
#include "word/trace.h"

namespace quillmark::test {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class CreateFailing : public CreateTest {
 protected:
    CreateFailing() {
        startWord = [this] {
            word::StartedWordProcessor started = word::StartWordProcessor(word::WordProcessor::Embedded);
            started.application = word::Trace(started.application, [this](std::string_view line) {
                if (++operations == failing)
                    throw word::AutomationError(4605, "first line\nsecond line after " + std::string(line));
                if (line.starts_with("ActiveDocument.SaveAs")) saved = operations;
            });
            return started;
        };
    }

    /// The error of a run; the question whether to save is answered by `save`.
    std::string Failure(const std::string& save = "No") {
        try {
            Create({"Yes", save});
        } catch (const CreateError& failure) {
            return failure.what();
        }
        ADD_FAILURE() << "the run did not fail";
        return "";
    }

    int operations = 0;
    int failing = 0;  ///< the operation that the word processor refuses; 0 for none
    int saved = 0;
};

TEST_F(CreateFailing, AtAnyOperationNothingKeptIsLost) {
    const std::string before = ReadBytes(JobFile("Hollis"));
    Open();
    const std::vector<std::string> idle = [&] {
        Start();
        return TextsOf(State());
    }();
    Open();
    Create();
    const int all = operations;
    const int writing = saved;
    const std::string document = ReadBytes(Document());
    const std::string after = ReadBytes(JobFile("Hollis"));
    ASSERT_GT(all, 100);
    std::mt19937 random(52);
    for (int round = 0; round < 60; ++round) {
        WriteBytes(JobFile("Hollis"), before);
        fs::remove(Document("Hollis_QMF (2).docx"));
        operations = 0;
        // Every operation of the last steps, and some of the many that type.
        failing = round < 20 ? all - round : 1 + static_cast<int>(random() % static_cast<unsigned>(all));
        SCOPED_TRACE(failing);
        Open();
        const std::string error = Failure();
        EXPECT_THAT(error, StartsWith("CREATE error 4605: first line\nsecond line after "));
        EXPECT_THAT(State().picInfo, StartsWith(" ERROR:  first line - second line after "));
        const auto boxes = dialogs.TakeShown();
        const auto told = std::find_if(boxes.begin(), boxes.end(),
                                       [](const auto& box) { return box.title == " FAILED !!!"; });
        ASSERT_NE(told, boxes.end());
        EXPECT_EQ(told->text, "CREATE error 4605");
        EXPECT_EQ(told->icon, DialogIcon::Stop);
        EXPECT_EQ(TextsOf(State()), idle);
        EXPECT_FALSE(State().waiting || State().progress.visible);
        EXPECT_EQ(ReadBytes(Document()), document) << "the document of the run before";
        // What the refused operation is told after has been done.
        EXPECT_EQ(fs::exists(Document("Hollis_QMF (2).docx")), failing >= writing);
        EXPECT_EQ(ReadBytes(JobFile("Hollis")), failing > writing ? after : before);
    }
}

TEST_F(CreateFailing, UnsavedChangesCanBeSavedBeforeTheScreenIsEmptied) {
    failing = 100;
    Open();
    screen->UnlockRow(21);
    screen->EnterField(21, "Wilma Hollis", EntryWay::Type);
    dialogs.TakeShown();
    Failure("Yes");
    EXPECT_THAT(TitlesShown(), ElementsAre("  ALERT", " FAILED !!!", "  ALERT"));
    const std::string job = ReadBytes(JobFile("Hollis"));
    EXPECT_THAT(job, HasSubstr("Wilma Hollis"));
    EXPECT_EQ(job.find("________"), job.npos) << "the blanks for the typed document are no values";
    EXPECT_EQ(State().txtJobName.text, "Hollis") << "the session stands";
    failing = 0;
    Create({"Yes"});
    EXPECT_TRUE(screen->LastDocument());
}

TEST_F(CreateFailing, ADocumentThatCannotBeWrittenIsTold) {
    Open();
    const std::string before = ReadBytes(JobFile("Hollis"));
    WriteBytes(scratch / "Documents", "a file");
    EXPECT_THAT(Failure(), HasSubstr((scratch / "Documents").string()));
    EXPECT_EQ(ReadBytes(JobFile("Hollis")), before);
    Open();
    screen->SetCreateTarget({.to = scratch / "none" / "Hollis.docx"});
    EXPECT_THAT(Failure(), StartsWith("CREATE error 76: "));
    EXPECT_THAT(State().picInfo, HasSubstr("Hollis.docx"));
}

TEST_F(CreateFailing, AJobThatCannotBeKeptStaysOnTheScreenWhereTheUserWantsItSaved) {
    Start();
    MakeSmallJob("Abbott");
    fs::remove_all(scratch / "data");
    WriteBytes(scratch / "data", "a file where the data was");
    EXPECT_THAT(Failure("Yes"), HasSubstr((scratch / "data").string()));
    EXPECT_THAT(TitlesShown(), Contains(" FAILED !!!"));
    EXPECT_THAT(State().picInfo, StartsWith(" ERROR:  "));
    EXPECT_EQ(State().job.D(21), "Anna Abbott");
    EXPECT_EQ(State().job.JobDocuments, "") << "no file tells of these documents";
    EXPECT_THAT(word::docx::check::CheckPackage(ReadBytes(Document("Abbott_QMF.docx"))), IsEmpty());
}

TEST_F(CreateFailing, AddressBooksThatCannotBeWrittenDoNotCostTheDocuments) {
    fs::create_directories(scratch / "data/Attorneys.lst");
    Open();
    Create();
    ASSERT_TRUE(screen->LastDocument());
    EXPECT_EQ(dialogs.Shown().back().title, "  ALERT");
    EXPECT_THAT(dialogs.Shown().back().text, HasSubstr("Attorneys.lst"));
    EXPECT_EQ(State().cmdCreate.caption, "Re-Make");
}

TEST_F(CreateFailing, EveryKindOfFailureHasItsSentence) {
    const auto failureOf = [this](auto failure) {
        startWord = [failure]() -> word::StartedWordProcessor { throw failure; };
        Open();
        const std::string error = Failure();
        return error.substr(0, error.find(": "));
    };
    const std::string noWord = "Full-Version MS Word required";
    EXPECT_EQ(failureOf(word::AutomationError(429, "no such object")), noWord);
    EXPECT_EQ(failureOf(word::AutomationError(463, "not registered")), noWord);
    EXPECT_EQ(failureOf(NotANumber("soon")),
              "One or more fields have improper data.  Please correct and try again.");
    EXPECT_EQ(failureOf(std::overflow_error("too large")), "CREATE error 6");
    EXPECT_EQ(failureOf(FileError("a.docx", FileError::Kind::DiskFull, "full")), "CREATE error 61");
    EXPECT_EQ(failureOf(MachineError("The folder path could not be detected")), "CREATE error 5");
}

}  // namespace
}  // namespace quillmark::test
