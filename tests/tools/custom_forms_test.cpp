#include <gmock/gmock.h>

#include "tools/custom_forms_desk.h"

namespace quillmark::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
namespace fs = std::filesystem;

class CustomForms : public ::testing::Test, protected FormsDesk {};

TEST_F(CustomForms, AnImportListsTheMarkersThatTheFormHolds) {
    fs::create_directory(forms);
    WriteBytes(forms / "userfields.lst", "LOT FEE\r\nBOAT SLIP\r\n");
    FormDocx form{
        Line("[lot fee] [Prop Municipal CSZ] [SELLER 1 NAME] [seller 3 name] [seller 1 last name]")};
    form.footer = Line("[closing date]");
    Import(Source("Rider.docx", form.Bytes()));
    EXPECT_EQ(LastBox(), window->Title() + "|Import Successful");
    EXPECT_EQ(MarkersOf("Rider"),
              "\"[seller 1 name]\",21,0\r\n\"[closing date]\",79,0\r\n\"[seller 1 last name]\",21,3\r\n"
              "\"[prop municipal csz]\",72,4\r\n\"[LOT FEE]\",0,0\r\n")
        << "in the order of the list";
    EXPECT_EQ(ReadBytes(forms / "Rider.docx"), form.Bytes());
    Import("Plain.docx", Line("no marker"));
    EXPECT_EQ(MarkersOf("Plain"), "");
}

TEST_F(CustomForms, AnExistingFormIsReplacedOnlyByYes) {
    Import("Rider.docx", Line("[seller 1 name]"));
    const std::string before = ReadBytes(forms / "Rider.docx");
    dialogs.SetAnswers({"No"});
    Import("rider.docx", Line("[buyer 1 name]"));
    EXPECT_EQ(LastBox(),
              "|This form template already exists\nin the custom forms database\n\nProceed with overwrite?");
    EXPECT_EQ(ReadBytes(forms / "Rider.docx"), before);
    dialogs.SetAnswers({"Yes"});
    Import("Rider.docm", Line("[buyer 1 name]"));
    EXPECT_THAT(FormFiles(forms), ElementsAre("Rider.docm")) << "one list of markers has one form";
    EXPECT_THAT(MarkersOf("Rider"), HasSubstr("buyer 1 name"));
}

TEST_F(CustomForms, WhatCannotBeImportedLeavesNothingBehindAndTheFormerFormIntact) {
    Import("Rider.docx", Line("[seller 1 name]"));
    const std::string before = ReadBytes(forms / "Rider.docx");
    FormDocx locked{Line("[buyer 1 name]")};
    locked.settings = R"(<w:documentProtection w:edit="readOnly" w:enforcement="1"/>)";
    const std::string ole = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 an older file";
    const std::string climbing = FormDocx{"", {}, {}, {}, {}, {{"../../evil.xml", "<a/>"}}}.Bytes();
    FormDocx bomb{
        Line("x"),
        {},
        {},
        {},
        {},
        {{"word/big.xml", std::string(std::size_t{40} << 20, '0')}},
        R"(<Relationship Id="b" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/numbering" Target="big.xml"/>)"};
    for (const std::string& bytes : {locked.Bytes(), ole, before.substr(0, 300), std::string(), bomb.Bytes(),
                                     std::string("PK\3\4 and nothing more")}) {
        dialogs.SetAnswers({"Yes"});
        Import(Source("Rider.docx", bytes));
        EXPECT_THAT(LastBox(), testing::StartsWith(" Warning - |Error ")) << bytes.size();
        EXPECT_EQ(ReadBytes(forms / "Rider.docx"), before);
        EXPECT_THAT(MarkersOf("Rider"), HasSubstr("seller 1 name"));
        Import(Source("Other.docx", bytes));
        EXPECT_THAT(FormFiles(forms), ElementsAre("Rider.docx"));
        EXPECT_FALSE(fs::exists(forms / "Other.inf"));
    }
    EXPECT_THAT(LastBox(), HasSubstr("Other.docx"));
    Import(shell.documents / "missing.docx");
    EXPECT_THAT(LastBox(), AllOf(testing::StartsWith(" Operation Failed|"), HasSubstr("missing.docx")));
    // Parts that no text leads to are harmless.
    Import(Source("Climber.docx", climbing));
    EXPECT_FALSE(fs::exists(folder.path().parent_path() / "evil.xml"));
}

TEST_F(CustomForms, ProtectedFormsAreRefusedWithTheNumber) {
    FormDocx form{Line("x")};
    form.settings = R"(<w:documentProtection w:edit="forms" w:enforcement="1"/>)";
    Import(Source("Locked.docx", form.Bytes()));
    EXPECT_THAT(LastBox(), AllOf(HasSubstr("4605"), HasSubstr("protect")));
    EXPECT_THAT(FormFiles(forms), IsEmpty());
}

TEST_F(CustomForms, TemplatesBecomeDocuments) {
    FormDocx form{Line("[seller 1 name]")};
    Import(Source("Letter.dotx", form.Bytes()));
    EXPECT_THAT(FormFiles(forms), ElementsAre("Letter.docx"));
    EXPECT_THAT(MarkersOf("Letter"), HasSubstr("seller 1 name"));
}

TEST_F(CustomForms, NamesThatNoJobCanHoldAreRefused) {
    for (const char* name : {"New Document.docx", "Za\u017c\u00f3\u0142\u0107.docx", "a:b.docx"}) {
        Import(name, Line("x"));
        EXPECT_THAT(LastBox(), HasSubstr("cannot be the name of a form")) << name;
    }
    EXPECT_THAT(FormFiles(forms), IsEmpty());
}

TEST_F(CustomForms, AnOpenFormIsScannedAgainWhenItsFileChanges) {
    Import("Rider.docx", Line("[seller 1 name]"));
    ShowDatabase();
    EXPECT_EQ(window->Title(), "CUSTOM FORMS DATABASE - EDIT MODE");
    window->Pick("File1", "Rider.docx");
    window->Click("cmdOpen");
    EXPECT_THAT(shell.opened, ElementsAre(TextOf(forms / "Rider.docx")));
    EXPECT_EQ(window->Control("cmdOpen").text, "wait ...");
    window->Click("Timer1");
    EXPECT_THAT(MarkersOf("Rider"), HasSubstr("seller 1 name"));

    WriteBytes(forms / "Rider.docx", FormDocx{Line("[buyer 1 name]")}.Bytes());
    fs::last_write_time(forms / "Rider.docx", fs::file_time_type::clock::now() + std::chrono::seconds(5));
    window->Click("Timer1");
    EXPECT_EQ(MarkersOf("Rider"), "\"[buyer 1 name]\",59,0\r\n");

    WriteBytes(forms / "Rider.docx", "half a file");
    fs::last_write_time(forms / "Rider.docx", fs::file_time_type::clock::now() + std::chrono::seconds(9));
    window->Click("Timer1");
    EXPECT_THAT(LastBox(), HasSubstr(" Warning - "));
    EXPECT_EQ(MarkersOf("Rider"), "\"[buyer 1 name]\",59,0\r\n")
        << "the list stays until the form can be read";
    window->Click("cmdOpen");
    EXPECT_EQ(window->Control("cmdOpen").text, "OPEN");
}

TEST_F(CustomForms, AMarkerGoesToTheClipboardWithItsDescription) {
    ShowDatabase();
    window->Pick("List1", "[seller 1 name]");
    EXPECT_EQ(window->Clipboard(), "[seller 1 name]");
    EXPECT_NE(window->Control("Text1").text, "");
    EXPECT_FALSE(window->Control("cmdDelete").enabled) << "the registry's fields stay";
    const std::vector<std::string> rows = Listed("List1");
    EXPECT_EQ(rows.front(), "[document date]");
    EXPECT_EQ(rows.back(), "** ADD CUSTOM FIELD **");
    EXPECT_EQ(rows[rows.size() - 2], "[county of execution]");
    EXPECT_THAT(rows, Not(Contains("[]")));
}

TEST_F(CustomForms, UserDefinedFieldsAreAddedAndDeleted) {
    ShowDatabase();
    const std::string add = "** ADD CUSTOM FIELD **";
    const auto type = [&](const std::string& name) {
        dialogs.SetAnswers({name});
        window->Pick("List1", add);
        return LastBox();
    };
    type("  lot fee ");
    EXPECT_EQ(ReadBytes(forms / "userfields.lst"), "LOT FEE\r\n");
    EXPECT_EQ(window->Control("List1").text, "[LOT FEE]");
    const std::string bad =
        " Bad Field Name|Field name is too long or contains illegal characters.  Please try again.";
    EXPECT_EQ(type("1234567890123456789012"), bad);
    EXPECT_EQ(type("lot-fee"), bad);
    EXPECT_THAT(type("Lot Fee"), HasSubstr("This field already exists.  Please try again."));
    EXPECT_THAT(type("Seller 1 Name"), HasSubstr("already exists")) << "the search does not tell case";
    type("123456789012345678901");
    type("");
    EXPECT_EQ(ReadBytes(forms / "userfields.lst"), "LOT FEE\r\n123456789012345678901\r\n");

    window->Pick("List1", "[LOT FEE]");
    EXPECT_EQ(window->Control("cmdDelete").tooltip, " Delete selected field ");
    dialogs.SetAnswers({"Cancel", "OK"});
    window->Click("cmdDelete");
    EXPECT_EQ(LastBox(), "|Delete the user-defined field ... LOT FEE");
    EXPECT_THAT(Listed("List1"), Contains("[LOT FEE]"));
    window->Click("cmdDelete");
    EXPECT_EQ(ReadBytes(forms / "userfields.lst"), "123456789012345678901\r\n");
    EXPECT_THAT(Listed("List1"), Not(Contains("[LOT FEE]")));
}

TEST_F(CustomForms, FormsAreRenamedWithTheirMarkersAndDeleted) {
    Import("Rider.docx", Line("[seller 1 name]"));
    Import("Second.docx", Line("x"));
    ShowDatabase();
    window->Pick("File1", "Rider.docx");
    const auto rename = [&](const std::string& name) {
        dialogs.SetAnswers({name});
        window->Click("cmdRename");
        return LastBox();
    };
    EXPECT_THAT(rename("Deed rider"), HasSubstr("Invalid Filename.  Include original extension"));
    EXPECT_THAT(rename("second.docx"), HasSubstr("A File/Folder with this name already exits"));
    rename("Deed rider.docx");
    EXPECT_THAT(FormFiles(forms), ElementsAre("Deed rider.docx", "Second.docx"));
    EXPECT_THAT(MarkersOf("Deed rider"), HasSubstr("seller 1 name"));
    EXPECT_FALSE(fs::exists(forms / "Rider.inf"));
    EXPECT_EQ(window->Control("File1").text, "Deed rider.docx");
    rename("DEED RIDER.docx");
    EXPECT_THAT(FormFiles(forms), ElementsAre("DEED RIDER.docx", "Second.docx")) << "case alone may change";

    dialogs.SetAnswers({"Cancel", "OK"});
    window->Click("cmdDelete");
    EXPECT_THAT(LastBox(), HasSubstr("You are about to permanently delete this Form from the database"));
    EXPECT_THAT(FormFiles(forms), SizeIs(2));
    window->Click("cmdDelete");
    EXPECT_THAT(FormFiles(forms), ElementsAre("Second.docx"));
    EXPECT_FALSE(fs::exists(forms / "DEED RIDER.inf"));
}

TEST_F(CustomForms, SourcesAreFoundByTheirFolder) {
    Source("Letter.docx", "x");
    Source("notes.txt", "x");
    fs::create_directory(shell.documents / "older");
    WriteBytes(shell.documents / "older" / "Deed.doc", "x");
    window.emplace(Office());
    EXPECT_THAT(Listed("File1"), ElementsAre("Letter.docx"));
    window->Pick("Dir1", "older");
    window->Pick("File1", "Deed.doc");
    EXPECT_EQ(window->Control("txtSourceFile").text, TextOf(shell.documents / "older" / "Deed.doc"));
    window->Pick("Dir1", "..");
    EXPECT_THAT(Listed("File1"), ElementsAre("Letter.docx"));
}

TEST_F(CustomForms, WhatTheWindowDoesNotOfferIsRefused) {
    EXPECT_THROW(window->Click("cmdOpen"), WindowRefusal);
    EXPECT_THROW(window->Pick("List1", "[seller 1 name]"), WindowRefusal) << "hidden while browsing";
    EXPECT_THROW(window->Pick("File1", "nothing.docx"), WindowRefusal);
    EXPECT_THROW(window->Click("cmdNone"), WindowRefusal);
    EXPECT_THROW(window->SetText("File1", "x"), WindowRefusal);
    ShowDatabase();
    EXPECT_THROW(window->SetText("txtSourceFile", "x"), WindowRefusal);
    window->Click("cmdTest");
    EXPECT_TRUE(window->LeftForTest());
    EXPECT_FALSE(window->IsOpen());
    EXPECT_THROW(window->Click("cmdEdit"), WindowRefusal);
}

}  // namespace
}  // namespace quillmark::test
