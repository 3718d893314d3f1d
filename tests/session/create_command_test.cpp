#include <gmock/gmock.h>

#include "platform/paths.h"
#include "selection/field_rows.h"
#include "session/create_fixture.h"
#include "word/docx/check/package_check.h"
#include "word/docx/zip/zip_reader.h"
#include "word/trace.h"

namespace quillmark::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kProceed = "  ALERT";
constexpr const char* kNotices = "  IMPORTANT NOTICES ABOUT THE DOCUMENTS YOU JUST CREATED";
constexpr const char* kReminder = "  REMINDER";

TEST_F(CreateTest, ARunEndsWithAnOpenDocumentAndAKeptJob) {
    Open();
    Create();
    const auto boxes = dialogs.Shown();
    ASSERT_THAT(TitlesShown(), ElementsAre(kProceed, kNotices, kReminder));
    EXPECT_EQ(boxes[0].text, "You have not completed all the required fields.\nProceed anyway ???");
    EXPECT_EQ(boxes[0].defaultAnswer, "No");
    EXPECT_THAT(boxes[1].text, StartsWith("ENCUMBRANCES & EXCEPTIONS\n\nThe Deed you selected requires"));
    EXPECT_THAT(boxes[1].text, Not(HasSubstr("JOINT TENANTS")));
    EXPECT_EQ(boxes[2].text,
              "You will need to place 1 sheet of company letterhead at the top of the printer tray before "
              "printing.");

    EXPECT_EQ(screen->LastDocument(), Document());
    EXPECT_THAT(shell.opened, ElementsAre(TextOf(Document())));
    EXPECT_THAT(word::docx::check::CheckPackage(ReadBytes(Document())), IsEmpty());
    const std::string job = ReadBytes(JobFile("Hollis"));
    EXPECT_THAT(job, HasSubstr("\"003\",\"Ruth Penfield/412345\"\r\n"));
    EXPECT_THAT(job, Not(HasSubstr("\"011\""))) << "the law firm was borrowed for typing only";
    EXPECT_EQ(
        ReadBytes(scratch / "data/Attorneys.lst"),
        "Ann Lee _ Ann Lee _ 1 Elm Street _  _ Avon, CT 06001 _ (860) 555-0100 _ (860) 555-0101 _ \r\n");

    EXPECT_EQ(State().cmdCreate.caption, "Re-Make");
    EXPECT_TRUE(State().cmdEnvelopes.enabled && State().cmdOP236.enabled);
    EXPECT_THAT(State().picInfo,
                StartsWith(" Edit fields and Re-Make/Save OR click 'RESET' to clear & start over"));
    EXPECT_EQ(State().picInfoColours.text, State().picInfo);
    EXPECT_EQ(State().picInfoColours.spans.at(0).colour, InfoColour::Blue);
    EXPECT_FALSE(State().waiting || State().progress.visible || !State().message.empty());
}

TEST_F(CreateTest, TheScreenCanBeWatchedAndTakesNoCommandMeanwhile) {
    std::vector<double> values;
    std::vector<std::string> messages;
    bool busy = false;
    onProgress = [&] {
        if (!State().waiting) return;
        busy = true;
        EXPECT_TRUE(State().progress.visible);
        EXPECT_EQ(State().progress.maximum, 3);
        values.push_back(State().progress.value);
        messages.push_back(State().message);
        for (const char* button : {"cmdCreate", "cmdReset", "cmdExit"})
            EXPECT_THROW(screen->Click(button), NotAllowed) << button;
    };
    Open();
    Create();
    EXPECT_TRUE(busy);
    EXPECT_THAT(values, ElementsAre(0.25, 0.5, 1, 1.5, 2, 2));
    EXPECT_EQ(messages.back(), " Finalizing Job Please Wait");
    EXPECT_THAT(std::vector(messages.begin(), messages.end() - 1), Each(""));
    screen->Click("cmdReset");
}

TEST_F(CreateTest, ReMakeLeavesTheFormerDocumentAlone) {
    Open();
    Create();
    WriteBytes(Document(), "changed by the user");
    dialogs.TakeShown();
    screen->UnlockRow(21);
    screen->EnterField(21, "Wilma Hollis", EntryWay::Type);
    dialogs.TakeShown();
    Create({});
    EXPECT_THAT(TitlesShown(), ElementsAre(kNotices, kReminder)) << "asks for nothing the second time";
    EXPECT_THAT(Documents(), ElementsAre("Hollis_QMF (2).docx", "Hollis_QMF.docx"));
    EXPECT_EQ(ReadBytes(Document()), "changed by the user");
    EXPECT_THAT(ReadBytes(JobFile("Hollis")), AllOf(HasSubstr("Wilma Hollis"), StartsWith(kDocuments)));
}

TEST_F(CreateTest, ValuesThatWouldMakeAFalseDocumentStopTheRun) {
    struct Case {
        const char* documents;
        const char* fields;
        const char* title;
        const char* text;
    };
    const Case cases[] = {
        {"\"000\",\"Deed / Warranty\"\r\n", "\"072\",\"Guilfort, CT\"\r\n",
         "  TOWN/DISTRICT NAME NOT RECOGNIZED", "Please check spelling or use parent municipality, \nand be"},
        {"\"000\",\"Deed / Warranty\"\r\n", "\"C05\",#FALSE#\r\n\"C06\",#TRUE#\r\n\"092\",\"in common\"\r\n",
         "  ALERT", "The 'Tenancy Type' field has an improper value,\n"},
        {"\"000\",\"Power Of Attorney / Short Form\"\r\n", "\"021\",\"Ann Lee\"\r\n\"156\",\"Anne Lee\"\r\n",
         "  ALERT", "The 'Principal of Power' field does not match Seller's name,\n"},
        {"\"000\",\"Closing Statement\"\r\n", "\"081\",\"soon\"\r\n", "  ALERT",
         "The 'Proration Date' field is empty or contains invalid data,\n"},
        {"\"000\",\"Closing Statement\"\r\n", "", "  ALERT", "The 'Proration Date' field is empty"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.fields);
        WriteJob(c.fields, c.documents);
        const std::string before = ReadBytes(JobFile("Hollis"));
        Open();
        const bool open = State().cmdOpen.enabled;
        dialogs.TakeShown();
        Create();
        ASSERT_THAT(dialogs.Shown(), ::testing::SizeIs(2));
        EXPECT_EQ(dialogs.Shown()[1].title, c.title);
        EXPECT_THAT(dialogs.Shown()[1].text, HasSubstr(c.text));
        EXPECT_FALSE(screen->LastDocument());
        EXPECT_EQ(State().cmdCreate.caption, "CREATE");
        EXPECT_EQ(State().cmdOpen.enabled, open);
        EXPECT_EQ(ReadBytes(JobFile("Hollis")), before);

        WriteJob(c.fields, "\"000\",\"Privacy Policy\"\r\n");
        Open();
        Create();
        EXPECT_TRUE(screen->LastDocument()) << "no document of this job uses the value";
        std::filesystem::remove_all(scratch / "Documents");
    }
}

TEST_F(CreateTest, NoIsTheAnswerForUnfilledFieldsAndCompleteJobsAreNotAsked) {
    Open();
    Create({});
    EXPECT_FALSE(screen->LastDocument());
    WriteJob("", "\"000\",\"Schedule A\"\r\n\"000\",\"Privacy Policy\"\r\n");
    Open();
    EXPECT_EQ(State().remaining, 3);
    for (const int n : {201, 202}) screen->EnterField(n, "None.", EntryWay::Type);
    EXPECT_EQ(State().remaining, 1) << "the date of the document";
    Create({});
    EXPECT_FALSE(screen->LastDocument()) << "it counts as any other";
    EXPECT_THAT(TitlesShown(), Contains(kProceed));
    screen->EnterField(1, "3/9/2026", EntryWay::Type);
    Create({});
    EXPECT_TRUE(screen->LastDocument());
    EXPECT_THAT(TitlesShown(), Not(Contains(kProceed)));
}

TEST_F(CreateTest, WhatStandsInAnOpenEditorIsInTheDocument) {
    Open();
    const auto row = [&](int n) { return static_cast<int>(FindRow(n, State()) - State().grid.data()); };
    screen->ClickGrid(row(59), 1);
    screen->SetEditorText({"Bea Burke", 9, 0});
    Create();
    EXPECT_EQ(State().job.D(59), "Bea Burke");
    EXPECT_THAT(ReadBytes(JobFile("Hollis")), HasSubstr("\"059\",\"Bea Burke\""));

    screen->UnlockRow(72);
    screen->ClickGrid(row(72), 1);
    screen->SetEditorText({"Atlantis, CT", 12, 0});
    dialogs.TakeShown();
    Create();
    EXPECT_FALSE(screen->LastDocument() && State().progress.visible);
    EXPECT_THAT(TitlesShown(), ElementsAre("property cy,st zip  "));
    EXPECT_EQ(screen->Editor().EditField, 72) << "the row is open with what was typed";
    EXPECT_EQ(screen->Editor().txtEdit.text, "Atlantis, CT");
}

TEST_F(CreateTest, AValueThatItsFieldCannotTakeKeepsTheRunFromStarting) {
    WriteJob("", "\"000\",\"Closing Statement\"\r\n");
    Open();
    screen->ClickGrid(static_cast<int>(FindRow(79, State()) - State().grid.data()), 1);
    screen->SetEditorText({"soon", 4, 0});
    screen->LoseFocus(ScreenFocus::Buttons);  // the mouse on its way to the button
    Create();
    EXPECT_FALSE(screen->LastDocument());
    EXPECT_THAT(TitlesShown(), ElementsAre("closing date"));
    EXPECT_EQ(screen->Editor().EditField, 79);
}

TEST_F(CreateTest, TheGuidanceBarNamesWhatTheDocumentLacks) {
    std::filesystem::remove(scratch / "defaults.fld");
    WriteJob("\"021\",\"Walter Hollis\"\r\n\"201\",\"IMAGE -> (Select & R-Click for options)\"\r\n",
             "\"000\",\"Deed / Warranty\"\r\n\"000\",\"Schedule A\"\r\n\"000\",\"Notice Of Lease\"\r\n");
    std::filesystem::create_directories(scratch / "data/images");
    WriteBytes(scratch / "data/images/Hollis_201.bmp", "a letter");
    Open();
    EXPECT_EQ(FindRow(3, State()), nullptr) << "a firm without defaults is never asked for its attorney";
    Create();
    EXPECT_THAT(State().picInfo,
                HasSubstr(".  [sched A description] is a picture, but the picture is none of the "
                          "kinds PNG, JPEG and BMP (\"Hollis_201.bmp\")"));
    EXPECT_THAT(State().picInfo, HasSubstr(".  No text yet for:  Notice Of Lease"));
    EXPECT_THAT(State().picInfo, HasSubstr(".  Nothing fills:  [seller atty]"));
    EXPECT_THAT(State().picInfo, Not(HasSubstr("[buyer 1 name]"))) << "the grid asks for it";
}

TEST_F(CreateTest, ADocumentNamedByItsPathIsNotReplacedEither) {
    WriteBytes(scratch / "made.docx", "of the user");
    Open();
    screen->SetCreateTarget({.to = scratch / "made.docx"});
    Create();
    EXPECT_EQ(screen->LastDocument(), scratch / "made (2).docx");
    EXPECT_EQ(ReadBytes(scratch / "made.docx"), "of the user");
}

TEST_F(CreateTest, AFileOfTheSameNameIsOverwrittenOnlyWhenTheUserSaysSo) {
    WriteBytes(JobFile("Abbott"), "old");
    Start();
    MakeSmallJob("Abbott");
    Create({"Yes", "Cancel"});
    EXPECT_FALSE(screen->LastDocument());
    EXPECT_EQ(ReadBytes(JobFile("Abbott")), "old");
    EXPECT_EQ(State().picInfo, " Choose a different name for this file or click RESET to start over");
    EXPECT_TRUE(State().txtJobName.enabled && State().cmdOpen.enabled);
    Create({"Yes", "OK"});
    EXPECT_TRUE(screen->LastDocument());
    EXPECT_THAT(ReadBytes(JobFile("Abbott")), HasSubstr("Anna Abbott"));
}

TEST_F(CreateTest, AJobWithoutANameIsMadeAndNotKept) {
    Start();
    screen->PickDocument("Schedule A");
    screen->SetCreateTarget({.to = scratch / "made.docx", .trace = scratch / "trace.txt"});
    Create();
    EXPECT_EQ(screen->LastDocument(), scratch / "made.docx");
    EXPECT_THAT(shell.opened, IsEmpty()) << "who names the file will find it";
    EXPECT_THAT(ReadBytes(scratch / "trace.txt"), HasSubstr("\nApplication.Visible = True\n"));
    EXPECT_FALSE(State().txtJobName.locked);
}

/// Word itself has a window: what is in it need not be a file.
class CreateInWord : public CreateTest {
 protected:
    CreateInWord() {
        startWord = [this] {
            word::StartedWordProcessor started = word::StartWordProcessor(word::WordProcessor::Embedded);
            application = started.application;
            started.isEmbedded = false;
            started.application = word::Trace(application, [this](std::string_view line) {
                if (!refused.empty() && line.find(refused) != line.npos)
                    throw word::AutomationError(number, "refused");
            });
            return started;
        };
    }

    std::string refused;
    int number = 0;
    word::ObjectPtr application;
};

TEST_F(CreateInWord, ADocumentIsAFileOnlyWhereTheSettingsSayAndNeverStandsInTheWay) {
    Open();
    Create();
    EXPECT_EQ(screen->LastDocument(), std::filesystem::path());
    EXPECT_THAT(Documents(), IsEmpty());
    WriteBytes(SettingsFile(scratch.path()), SettingsRecords({.wordAutoSave = true}));
    Open();
    Create();
    EXPECT_THAT(Documents(), ElementsAre("Hollis_QMF.docx"));
    refused = "SaveAs";
    number = word::error::kPermissionDenied;
    Create();
    EXPECT_EQ(State().cmdCreate.caption, "Re-Make");
    EXPECT_TRUE(screen->LastDocument()) << "the user has the file open, and the document on the screen";
}

TEST_F(CreateInWord, AWordThatTheUserHasClosedDoesNotKeepTheJobFromBeingMadeAgain) {
    Open();
    Create();
    application->Call("Quit");
    Create();
    EXPECT_TRUE(screen->LastDocument());
    refused = "Quit";
    number = 91;
    EXPECT_THROW(Create({"Yes", "No"}), CreateError) << "a Word that is there and does not end is a failure";
}

/// A picture of 4 by 2 pixels.
std::string Bitmap() {
    std::string bytes("BM\x4E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\4\0\0\0\2\0\0\0\1\0\x18\0", 30);
    bytes.resize(54);
    return bytes + std::string(24, '\x7F');
}

TEST_F(CreateTest, APictureGoesThroughFileJobAndDocument) {
    const std::filesystem::path picture = scratch / "data/images/Hollis_201.bmp";
    std::filesystem::create_directories(picture.parent_path());
    WriteBytes(picture, Bitmap());
    WriteJob("\"201\",\"" + std::string(kImageLiteral) + "\"\r\n", "\"000\",\"Schedule A\"\r\n");
    Open();
    Create();
    ASSERT_TRUE(screen->LastDocument());
    word::docx::zip::ZipReader package(ReadBytes(*screen->LastDocument()), "made");
    std::vector<std::string> pictures;
    for (const std::string& name : package.Names())
        if (name.starts_with("word/media/")) pictures.push_back(package.Read(name));
    EXPECT_THAT(pictures, ElementsAre(StartsWith("\x89PNG\r\n\x1A\n")));
    EXPECT_THAT(package.Read("word/document.xml"), Not(HasSubstr("IMAGE")));
    EXPECT_EQ(ReadBytes(picture), Bitmap());

    screen->UnlockRow(201);
    screen->EnterField(201, "Lot 7.", EntryWay::Type);
    Create();
    EXPECT_FALSE(std::filesystem::exists(picture)) << "the description is a text now";
    EXPECT_THAT(ReadBytes(JobFile("Hollis")), HasSubstr("\"201\",\"Lot 7.\""));
}

}  // namespace
}  // namespace quillmark::test
