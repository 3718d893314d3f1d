#include "session/main_screen.h"

#include "session/office_fixture.h"
#include "session/state/buttons.h"
#include "session/state/reasons.h"

namespace quillmark {
namespace {

using test::OfficeTest;
using test::ReadBytes;
using test::WriteBytes;

class NameBoxTest : public OfficeTest {};
class JobFilesTest : public OfficeTest {};
class SettingsTest : public OfficeTest {};

TEST_F(NameBoxTest, ANameClosesTheOtherWaysIn) {
    Start();
    EXPECT_EQ(
        " Enter name for new file (e.g.  Smith - 101 Any Street), or click 'OPEN' button for existing one",
        State().picInfo);
    screen->TypeName("Abbott: 14 Orchard*");
    EXPECT_EQ("Abbott 14 Orchard", State().txtJobName.text) << "illegal characters are dropped";
    for (const Button* button : {&State().cmdOpen, &State().cmdTemplate, &State().cmdPackages,
                                 &State().cmdCustom, &State().cmdCreate})
        EXPECT_FALSE(button->enabled) << button->caption;
    screen->TypeName("");
    EXPECT_TRUE(State().cmdOpen.enabled);
    EXPECT_TRUE(State().cmdTemplate.enabled);
}

TEST_F(NameBoxTest, EveryButtonSaysWhatItDoesOrWhyItDoesNot) {
    screen = std::make_unique<MainScreen>(scratch.path(),
                                          Machine{.clock = clock, .dialogs = dialogs, .shell = shell});
    for (const NamedButton& named : Buttons())
        EXPECT_FALSE((State().*named.button).caption.empty()) << named.name << " before the start";
    Start();
    screen->TypeName("Abbott");
    for (const NamedButton& named : Buttons()) {
        const Button& button = State().*named.button;
        EXPECT_EQ(button.enabled, WhyDisabled(named.name, State()).empty()) << named.name;
    }
    EXPECT_EQ("Choose documents first: double-click them in the list.", WhyDisabled("cmdCreate", State()));
}

TEST_F(NameBoxTest, WithoutAMailProgramTheAddressIsOffered) {
    struct NoMail final : Shell {
        std::filesystem::path FolderOf(SpecialFolder) override { return {}; }
        void Open(const std::string&) override { throw MachineError("No program opens mail."); }
        void Start(const std::filesystem::path&, const std::vector<std::string>&) override {}
    } noMail;
    std::string copied;
    screen = std::make_unique<MainScreen>(
        scratch.path(), Machine{.clock = clock,
                                .dialogs = dialogs,
                                .shell = noMail,
                                .copyText = [&](const std::string& text) { copied = text; }});
    screen->Start();
    screen->TypeName("Abbott");
    screen->EnterName();
    screen->PickDocument("Contract / Danbury Bar");
    screen->EnterField(18, "lee@example.com", EntryWay::Type);
    Answer({"Yes"});
    screen->Click("cmdExit");
    EXPECT_EQ("No program opens mail.\n\nThe address is lee@example.com\nCopy it to the clipboard ?",
              LastBox());
    EXPECT_EQ("lee@example.com", copied);
}

TEST_F(NameBoxTest, SpecialNamesAreCommands) {
    Start();
    Answer({"Cancel"});
    screen->TypeName("upgrade");
    EXPECT_EQ("", State().txtJobName.text);
    EXPECT_TRUE(shell.started.empty());
    screen->TypeName("Upgrade");
    EXPECT_EQ("Upgrade", State().txtJobName.text);
    Answer({"OK"});
    screen->TypeName("upgrade");
    EXPECT_TRUE(screen->HasEnded());
    EXPECT_EQ((std::vector<std::string>{"UpgradeQM.exe /Quillmark:quillmark"}), shell.started);
}

TEST_F(NameBoxTest, AJobWithoutANameIsMarkedAndNeverSaved) {
    Start();
    screen->PickDocument("Schedule A");
    EXPECT_TRUE(State().txtJobName.noSave);
    EXPECT_EQ("<< NO SAVE >>", State().txtJobName.text);
    Answer({"Cancel"});
    EXPECT_THROW(screen->EnterField(201, "Lot 7", EntryWay::Type), NotAllowed);
    EXPECT_EQ("No filename was given, information will NOT be saved.", LastBox());
    EXPECT_EQ("", State().txtJobName.text) << "back in the name box the mark is gone";
}

TEST_F(JobFilesTest, ASavedJobComesBackWhole) {
    Start();
    MakeSmallJob("Abbott - 14 Orchard Lane");
    EXPECT_EQ("SAVE", State().cmdOpen.caption);
    EXPECT_EQ(" save data only (no docs) ", State().cmdOpen.tooltip);
    EXPECT_FALSE(State().List1Enabled) << "field entry closes the choice of documents";
    screen->Click("cmdOpen");
    EXPECT_FALSE(State().cmdOpen.enabled);
    EXPECT_EQ("Rename", State().cmdNameAs.caption);
    const std::string bytes = ReadBytes(JobFile("Abbott - 14 Orchard Lane"));
    EXPECT_NE(std::string::npos, bytes.find("\"021\",\"Anna Abbott\"\r\n"));
    EXPECT_EQ(std::string::npos, bytes.find("\"003\"")) << "the firm's single default is not the job's";

    screen->Click("cmdReset");
    EXPECT_EQ("", State().job.D(21));
    screen->Click("cmdOpen");
    screen->LoadJob("Abbott - 14 Orchard Lane", false);
    EXPECT_EQ("Anna Abbott", State().job.D(21));
    EXPECT_TRUE(State().txtJobName.locked);
    EXPECT_EQ("EDIT", State().cmdOpen.caption);
    EXPECT_TRUE(State().cmdOP236.enabled);
    screen->Click("cmdOpen");
    EXPECT_EQ(ScreenMode::Edit, State().mode);
    EXPECT_THROW(screen->EnterField(21, "Ann Abbott", EntryWay::Type), NotAllowed) << "locked";
    Answer({"Yes"});
    screen->UnlockRow(21);
    screen->EnterField(21, "Ann Abbott", EntryWay::Type);
    EXPECT_EQ("SAVE", State().cmdOpen.caption);
    screen->Click("cmdOpen");
    EXPECT_NE(std::string::npos, ReadBytes(JobFile("Abbott - 14 Orchard Lane")).find("Ann Abbott"));
}

TEST_F(JobFilesTest, FirmDetailsThatNoDocumentNeedsAreNotTheJobs) {
    WriteBytes(scratch / "defaults.fld", FirmDefaultRecord("[seller lawfirm]", "Hale & Pike, LLC") +
                                             FirmDefaultRecord("[seller atty]", "Nora Hale; Jon Pike"));
    Start();
    screen->TypeName("Abbott");
    screen->EnterName();
    screen->PickDocument("Schedule A");
    screen->EnterField(201, "Lot 7.", EntryWay::Type);
    EXPECT_EQ("Hale & Pike, LLC", State().job.D(2)) << "for show";
    screen->Click("cmdOpen");
    const std::string bytes = ReadBytes(JobFile("Abbott"));
    EXPECT_EQ(std::string::npos, bytes.find("\"002\"")) << bytes;
    EXPECT_EQ(std::string::npos, bytes.find("\"003\"")) << bytes;
    screen->Click("cmdReset");
    MakeSmallJob("Burke");
    screen->Click("cmdOpen");
    EXPECT_NE(std::string::npos, ReadBytes(JobFile("Burke")).find("\"003\",\"Nora Hale\""))
        << "a deed needs the attorney, and the firm has two";
}

TEST_F(JobFilesTest, AnotherFileIsOverwrittenOnlyWhenTheUserSaysSo) {
    WriteBytes(JobFile("Abbott"), "precious");
    Start();
    MakeSmallJob("Abbott");
    Answer({"Cancel"});
    screen->Click("cmdOpen");
    EXPECT_EQ("precious", ReadBytes(JobFile("Abbott")));
    EXPECT_TRUE(State().txtJobName.enabled);
    EXPECT_TRUE(State().cmdOpen.enabled);
    Answer({"OK"});
    screen->Click("cmdOpen");
    EXPECT_NE("precious", ReadBytes(JobFile("Abbott")));
    EXPECT_TRUE(State().txtJobName.locked);
}

TEST_F(JobFilesTest, RenamingMovesTheFileAndNamingAsLeavesIt) {
    Start();
    MakeSmallJob("Abbott");
    screen->Click("cmdOpen");
    WriteBytes(JobFile("Taken"), "another job");
    screen->Click("cmdReset");
    screen->LoadJob("Abbott", false);
    Answer({"bad/name", "Taken", "Abbot"});
    screen->Click("cmdNameAs");
    EXPECT_EQ("Abbot", State().txtJobName.text);
    EXPECT_TRUE(std::filesystem::exists(JobFile("Abbot")));
    EXPECT_FALSE(std::filesystem::exists(JobFile("Abbott")));
    EXPECT_EQ("another job", ReadBytes(JobFile("Taken")));

    screen->Click("cmdOpen");
    Answer({"Yes", "Abbot II"});
    screen->UnlockRow(21);
    screen->EnterField(21, "Anna B. Abbott", EntryWay::Type);
    EXPECT_EQ("Name As", State().cmdNameAs.caption);
    screen->Click("cmdNameAs");
    EXPECT_EQ("", State().job.JobDocuments) << "a new file starts with an empty history";
    screen->Click("cmdOpen");
    EXPECT_NE(std::string::npos, ReadBytes(JobFile("Abbot II")).find("Anna B. Abbott"));
    EXPECT_EQ(std::string::npos, ReadBytes(JobFile("Abbot")).find("Anna B. Abbott"));
}

TEST_F(JobFilesTest, ResetOffersToSaveAndStaysWhenItDid) {
    Start();
    MakeSmallJob("Abbott");
    Answer({"Yes"});
    screen->Click("cmdReset");
    EXPECT_EQ("Anna Abbott", State().job.D(21)) << "the session stands";
    EXPECT_TRUE(std::filesystem::exists(JobFile("Abbott")));
    screen->Click("cmdReset");
    EXPECT_EQ("", State().txtJobName.text);
    EXPECT_TRUE(State().grid.empty());
    EXPECT_TRUE(State().job.optConf(OneSeller));
    EXPECT_FALSE(State().job.optConf(Condo));
}

TEST_F(JobFilesTest, ATornFileChangesNothing) {
    WriteBytes(JobFile("Torn"), "\"021\",\"Anna Abb");
    Start();
    screen->Click("cmdOpen");
    EXPECT_THROW(screen->LoadJob("Torn", false), std::exception);
    EXPECT_EQ("", State().job.D(21));
    EXPECT_EQ("", State().job.name);
    screen->LoadJob("Gone", false);
    EXPECT_EQ("File No Longer Exists", LastBox());
}

TEST_F(JobFilesTest, ATemplateSpawnsJobsWithItsValuesLocked) {
    Start();
    screen->Click("cmdTemplate");
    screen->LoadJob(kNewTemplateEntry, true);
    EXPECT_EQ(ScreenFocus::NameBox, screen->Editor().focus);
    EXPECT_TRUE(State().picInfo.starts_with(" Enter the Client or Project/Development name"))
        << State().picInfo;
    screen->TypeName("Regency");
    screen->EnterName();
    screen->ClickOption(Condo);
    screen->EnterField(70, "1 Regency Circle", EntryWay::Type);
    screen->Click("cmdOpen");
    EXPECT_TRUE(std::filesystem::exists(JobFile("{ REGENCY_template }")));
    screen->Click("cmdReset");
    screen->Click("cmdTemplate");
    screen->Spawn("{ REGENCY_template }");
    EXPECT_EQ("regency - ", State().txtJobName.text);
    EXPECT_EQ(ScreenMode::Job, State().mode);
    EXPECT_EQ("1 Regency Circle", State().job.D(70));
    EXPECT_TRUE(State().job.txtField(70).locked);
    EXPECT_TRUE(State().job.optConf(Condo));
    EXPECT_FALSE(State().txtJobName.IsSaveable());
    screen->TypeName("Unit 4");
    EXPECT_EQ("regency - Unit 4", State().txtJobName.text);
    screen->PickDocument("Deed / Warranty");
    EXPECT_EQ("1 Regency Circle", State().job.D(70));
}

TEST_F(SettingsTest, TheListShowsDefaultsAndSettingsAndKeepsThem) {
    WriteBytes(scratch / "defaults.fld", "");
    Start();
    EXPECT_EQ("Your company defaults have not been set !!\n(see Page 3 of User's Guide for instructions)",
              LastBox());
    screen->TypeName("defaults");
    screen->EnterName();
    EXPECT_EQ("DEFAULTS", State().txtJobName.text);
    const auto& rows = screen->List3();
    ASSERT_EQ(20u, rows.size());
    EXPECT_EQ("[seller lawfirm]:         *  [seller lawfirm]", rows[0].text);
    EXPECT_EQ("DATABASE PATH ------------>  data\\", rows[11].text);
    Answer({"Nora Hale/412345; Jon Pike", "q", "P", "dd"});
    screen->EditSetting(1);
    EXPECT_EQ("[seller atty]:               Nora Hale/412345; Jon Pike", screen->List3()[1].text);
    screen->EditSetting(15);
    EXPECT_EQ("show descr footers  (Y/N/P)  Y", screen->List3()[15].text)
        << "only the letters shown are taken";
    screen->EditSetting(15);
    EXPECT_EQ("show descr footers  (Y/N/P)  P", screen->List3()[15].text);
    screen->Click("cmdOpen");
    EXPECT_EQ("\"[seller atty]:               Nora Hale/412345; Jon Pike\"\r\n",
              ReadBytes(scratch / "defaults.fld"));
    EXPECT_EQ(Footers::LawFirm, ReadSettings(scratch.path()).footers);
}

TEST_F(SettingsTest, ADataPathThatIsNotThereFallsBackToTheLocalFolder) {
    WriteBytes(scratch / "DBasePath.txt",
               "\"z:\\\\office\\\\data\\\\\"\r\n\"n\"\r\n\"n\"\r\n\"n\"\r\n\"n\"\r\n");
    Start();
    EXPECT_NE(std::string::npos, LastBox().find("UNABLE TO CONNECT TO DATABASE @ ..."));
    EXPECT_EQ(scratch.path() / "data", screen->FirmAround().folders.JobFolder);
    EXPECT_FALSE(screen->FirmAround().settings.documentAlerts);
    EXPECT_TRUE(screen->FirmAround().settings.leapYears);
    screen->TypeName("DEFAULTS");
    screen->EnterName();
    Answer({"Y"});
    screen->EditSetting(13);
    screen->Click("cmdOpen");
    EXPECT_NE(std::string::npos, ReadBytes(scratch / "DBasePath.txt").find("office"))
        << "the path itself stays until it is changed";
}

TEST_F(SettingsTest, EachParaProClientHasItsOwnFolder) {
    WriteBytes(scratch / "DBasePath.txt",
               "\"data\\\"\r\n\"N\"\r\n\"N\"\r\n\"N\"\r\n\"N\"\r\n\"ON\"\r\n\"Y\"\r\n\"Y\"\r\n");
    Start();
    EXPECT_THROW(screen->TypeName("Abbott"), NotAllowed) << "a client comes first";
    Answer({"Birch & Bell"});
    screen->SelectClient("< ADD LAWFIRM / CLIENT >");
    EXPECT_EQ("DEFAULTS", State().txtJobName.text) << "a new client starts with its defaults";
    EXPECT_EQ("\"Birch & Bell\"\r\n", ReadBytes(scratch / "parapro.dir"));
    Answer({"No"});
    screen->Click("cmdReset");
    MakeSmallJob("Abbott");
    screen->Click("cmdOpen");
    EXPECT_TRUE(std::filesystem::exists(scratch.path() / "data" / "Birch & Bell" / "Abbott.dat"));
    Start();
    Answer({"Cancel"});
    screen->DeleteClient("Birch & Bell");
    EXPECT_EQ(2u, screen->Clients().size());
    Answer({"OK"});
    screen->DeleteClient("Birch & Bell");
    EXPECT_EQ(1u, screen->Clients().size());
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "data" / "Birch & Bell"));
}

TEST_F(OfficeTest, TheBuyersAttorneyGetsMail) {
    Start();
    screen->TypeName("Abbott");
    screen->EnterName();
    screen->PickDocument("Contract / Greenwich Bar");
    screen->DropDocument("Contract / Greenwich Bar");
    screen->PickDocument("Contract / Danbury Bar");
    screen->EnterField(12, "Thomas Okafor", EntryWay::Type);
    screen->EnterField(18, "tokafor@firm.example", EntryWay::Type);
    EXPECT_EQ("EMAIL", State().cmdExit.caption);
    screen->Click("cmdExit");
    ASSERT_EQ(1u, shell.opened.size());
    EXPECT_TRUE(shell.opened[0].starts_with("mailto:tokafor@firm.example?Subject="));
    EXPECT_NE(std::string::npos, shell.opened[0].find("&Body=Greetings Attorney Okafor,%0D%0A"));
}

TEST_F(OfficeTest, ExitKeepsWhatNoFileHoldsUnlessToldOtherwise) {
    Start();
    MakeSmallJob("Abbott");
    test::WriteBytes(JobFile("Abbott"), JobFileRecords(Job()));
    Answer({"Yes", "Cancel"});
    screen->Click("cmdExit");
    EXPECT_FALSE(State().ended) << "another's job is not overwritten for the sake of leaving";
    EXPECT_TRUE(State().HasUnsavedChanges());
    EXPECT_TRUE(State().picInfo.starts_with(" Choose a different name"));

    std::filesystem::remove(JobFile("Abbott"));
    std::filesystem::create_directory(JobFile("Abbott"));
    Answer({"Yes", "OK"});
    EXPECT_THROW(screen->Click("cmdExit"), FileError);
    EXPECT_FALSE(State().ended);
    EXPECT_TRUE(State().HasUnsavedChanges());
    Answer({"No"});
    screen->Click("cmdExit");
    EXPECT_TRUE(State().ended);
}

TEST_F(OfficeTest, AJobWithoutANameCanStillBeNamedWhenLeaving) {
    Start();
    screen->PickDocument("Deed / Warranty");
    screen->EnterField(21, "Anna Abbott", EntryWay::Type);
    screen->Close();
    EXPECT_EQ("This job has no name, so it was never saved.\nLeave without saving ???", LastBox());
    ASSERT_FALSE(State().ended);
    screen->TypeName("Abbott");
    Answer({"Yes"});
    screen->Close();
    EXPECT_TRUE(State().ended);
    EXPECT_NE(std::string::npos, test::ReadBytes(JobFile("Abbott")).find("Anna Abbott"));
}

}  // namespace
}  // namespace quillmark
