#include "selection/packages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "job_list_desk.h"
#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "selection/package_editor.h"

namespace quillmark::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Packages in file order as "NAME: A, B".
Names Shown(const PackageFile& file) {
    Names names;
    for (const Package& package : file.packages) {
        std::string line = package.name + ":";
        for (const std::string& document : package.documents) line += " " + document;
        names.push_back(line);
    }
    return names;
}

TEST(Packages, TheBytesAreQuotedLinesOfTheCodePage) {
    Desk desk;
    SavePackage(desk.scratch.path(), {"ONE", {"Secretary’s Certificate / Corporate"}}, {});
    SavePackage(desk.scratch.path(), {"EMPTY", {}}, {});
    EXPECT_EQ(ReadBytes(desk.scratch / "package.def"),
              "\"<01>ONE\"\r\n\"Secretary\x92s Certificate / Corporate\"\r\n\"<00>EMPTY\"\r\n");
    EXPECT_THAT(PackageDocuments(desk.scratch.path(), "ONE"),
                ElementsAre("Secretary’s Certificate / Corporate"));

    SavePackage(desk.scratch.path(), {"ONE", {"Schedule A", "Schedule A"}}, "ONE");
    EXPECT_EQ(ReadBytes(desk.scratch / "package.def"),
              "\"<00>EMPTY\"\r\n\"<02>ONE\"\r\n\"Schedule A\"\r\n\"Schedule A\"\r\n");
    SavePackage(desk.scratch.path(), {"TWO", {}}, "ONE");
    EXPECT_EQ(ReadBytes(desk.scratch / "package.def"), "\"<00>EMPTY\"\r\n\"<00>TWO\"\r\n");
    EXPECT_THROW(SavePackage(desk.scratch.path(), {"EMPTY", {}}, "TWO"), PackageError);
    DeletePackage(desk.scratch.path(), "empty");
    DeletePackage(desk.scratch.path(), "TWO");
    EXPECT_EQ(ReadBytes(desk.scratch / "package.def"), "\"<00>EMPTY\"\r\n");
}

TEST(Packages, WhatCannotBeStoredIsRefusedAndTheFileStays) {
    Desk desk;
    SavePackage(desk.scratch.path(), {"KEPT", {}}, {});
    const auto save = [&](const Package& package) { SavePackage(desk.scratch.path(), package, "KEPT"); };
    EXPECT_NO_THROW(WithPackage("", {"FULL", Names(99, "Schedule A")}));
    EXPECT_THROW(save({"FULL", Names(100, "Schedule A")}), PackageError);
    EXPECT_THROW(save({"", {}}), PackageError);
    EXPECT_THROW(save({"A>B", {}}), PackageError);
    EXPECT_THROW(save({"ŁÓDŹ", {}}), UnencodableError);
    EXPECT_EQ(ReadBytes(desk.scratch / "package.def"), "\"<00>KEPT\"\r\n");
}

constexpr const char* kHandEdited =
    "\"Stray Line\"\n"
    "\n"
    "\"<03>SHORT\"\r\n"
    "\"Deed / Warranty\"\r\n"
    "not quoted\r\n"
    "\"<1>BAD HEADER\"\r\n"
    "\"Lost\"\r\n"
    "  \"<01>GOOD\"  \r"
    "\"Schedule A\"\r\n"
    "\"Left Over\"\r\n"
    "\"<00>GOOD\"";

TEST(Packages, AHandEditedFileIsReadAsFarAsItCanBeAndToldOf) {
    const PackageFile file = PackagesOf("package.def", kHandEdited);
    EXPECT_THAT(Shown(file), ElementsAre("SHORT: Deed / Warranty", "GOOD: Schedule A"));
    ASSERT_EQ(file.faults.size(), 7u);
    EXPECT_EQ(file.faults[0], "package.def, line 1: belongs to no package");
    EXPECT_EQ(file.faults[1], "package.def, line 3: package SHORT should have 3 documents, 2 follow");
    EXPECT_THAT(file.faults[2], HasSubstr("line 5: not one text in double quotation marks"));
    EXPECT_THAT(file.faults[3], HasSubstr("line 6: a package's header"));
    EXPECT_THAT(file.faults[4], HasSubstr("line 7: belongs"));
    EXPECT_THAT(file.faults[5], HasSubstr("line 10: belongs"));
    EXPECT_THAT(file.faults[6], HasSubstr("line 11: a second package GOOD"));
}

TEST(Packages, LinesOfNoPackageStayByteForByte) {
    EXPECT_EQ(WithPackage(WithoutPackage(kHandEdited, "GOOD"), {"NEW", {}}),
              "\"Stray Line\"\n\n\"<03>SHORT\"\r\n\"Deed / Warranty\"\r\nnot quoted\r\n\"<1>BAD HEADER\"\r\n"
              "\"Lost\"\r\n\"Left Over\"\r\n\"<00>NEW\"\r\n");
    EXPECT_EQ(WithPackage("\"<00>A\"", {"B", {}}), "\"<00>A\"\r\n\"<00>B\"\r\n");
    const std::string noText("\"<02>A\"\r\n\"\0\"\r\n\x81\r\n", 17);
    EXPECT_EQ(PackagesOf("p", noText).faults.size(), 2u);
    EXPECT_EQ(WithoutPackage(noText, "B"), noText);
}

TEST(PackageEditor, SavesPicksRenamesAndDeletes) {
    Desk desk;
    PackageEditor editor(desk.screen, desk.office);
    EXPECT_THAT(editor.State().Combo1, ElementsAre("NEW PACKAGE"));
    editor.TypeName("<Cash> sale");
    EXPECT_FALSE(editor.State().cmdSave.enabled) << "nothing has changed yet";
    EXPECT_TRUE(editor.AddDocument("Deed / Trustee"));
    EXPECT_THAT(editor.State().List2, ElementsAre("Deed / Trustee"))
        << "the affidavit comes when it is picked";
    EXPECT_TRUE(editor.Save());
    EXPECT_THAT(editor.State().Combo1, ElementsAre("NEW PACKAGE", "CASH SALE"));
    EXPECT_EQ(editor.State().Combo1Line, 1u);
    EXPECT_FALSE(editor.State().cmdSave.enabled);
    EXPECT_TRUE(editor.State().cmdDelete.enabled);

    editor.AddDocument("Schedule A");
    editor.TypeName("COPY");
    EXPECT_TRUE(editor.Save()) << "a new name is a new package with the same list";
    editor.PickPackage(1);
    EXPECT_THAT(editor.State().List2, ElementsAre("Deed / Trustee"));
    editor.SetRename(true);
    editor.TypeName("SALE");
    EXPECT_TRUE(editor.Save());
    EXPECT_THAT(editor.State().Combo1, ElementsAre("NEW PACKAGE", "COPY", "SALE"));
    EXPECT_FALSE(editor.State().Option1);

    editor.TypeName("copy");
    EXPECT_THAT(editor.State().List2, ElementsAre("Deed / Trustee", "Schedule A"));
    EXPECT_TRUE(editor.Delete());
    EXPECT_THAT(Shown(ReadPackages(desk.scratch.path())), ElementsAre("SALE: Deed / Trustee"));
    EXPECT_EQ(editor.State().Combo1Text, "NEW PACKAGE");
    editor.AddDocument("Privacy Policy");
    editor.TypeName("SALE");
    EXPECT_THAT(editor.State().List2, ElementsAre("Privacy Policy")) << "a changed list is not thrown away";
    EXPECT_TRUE(editor.Save());
    EXPECT_THAT(Shown(ReadPackages(desk.scratch.path())), ElementsAre("SALE: Privacy Policy"));
    editor.PickPackage(0);
    EXPECT_FALSE(editor.Delete());
}

TEST(PackageEditor, KeepsTheExclusionsOfTheJobList) {
    Desk desk;
    PackageEditor editor(desk.screen, desk.office);
    for (const char* line : {"Deed / Trustee", "Trustee's Affidavit", "Schedule A", "SMS Cover Letter",
                             "CFPB Addendum", "Mortgage Payoff Transmittal", "Deed / Warranty"})
        editor.AddDocument(line);
    EXPECT_THAT(editor.State().List2,
                ElementsAre("Schedule A", "Mortgage Payoff Transmittal", "CFPB Addendum", "Deed / Warranty"));
    EXPECT_FALSE(editor.AddDocument("Notice Of Lease")) << "is not offered";
    EXPECT_TRUE(editor.RemoveDocument(0));
    EXPECT_FALSE(editor.RemoveDocument(3));
}

TEST(PackageEditor, RefusesInClearWordsWhatCannotBeSaved) {
    Desk desk;
    SavePackage(desk.scratch.path(), {"TAKEN", {}}, {});
    SavePackage(desk.scratch.path(), {"FULL", Names(99, "Schedule A")}, {});
    desk.Fill();
    PackageEditor editor(desk.screen, desk.office);
    editor.PickPackage(2);
    EXPECT_FALSE(editor.AddDocument("Privacy Policy"));
    EXPECT_THAT(desk.Boxes(), ElementsAre("  ALERT|A package holds 99 documents at most."));
    editor.SetRename(true);
    for (const char* name : {"TAKEN", "", "new package"}) {
        editor.TypeName(name);
        EXPECT_FALSE(editor.Save()) << name;
    }
    EXPECT_THAT(desk.Boxes(), ElementsAre("  ALERT|There is already a package \"TAKEN\".",
                                          HasSubstr("Enter a name"), HasSubstr("Enter a name")));
    editor.TypeName("KRAKÓW ŁÓDŹ");
    EXPECT_THAT(desk.Boxes(), ElementsAre(HasSubstr("Ł")));
    EXPECT_EQ(ReadPackages(desk.scratch.path()).packages.size(), 2u);

    std::filesystem::remove(desk.scratch / "package.def");
    EXPECT_THROW(PackageEditor(desk.screen, desk.office), FileError) << "the main screen offers packages";
}

TEST(PackageEditor, AsksBeforeChangesAreLeftBehind) {
    Desk desk;
    const auto leave = [&](std::string_view answer) {
        PackageEditor editor(desk.screen, desk.office);
        editor.TypeName("NEW");
        editor.AddDocument("Schedule A");
        desk.dialogs.SetAnswers({std::string(answer)});
        EXPECT_TRUE(editor.Leave());
        EXPECT_THAT(desk.Boxes(), ElementsAre("  ALERT|You did not save your changes.\nSave them now ???"));
        return ReadPackages(desk.scratch.path()).packages.size();
    };
    EXPECT_EQ(leave("No"), 0u);
    EXPECT_EQ(leave("Yes"), 1u);

    PackageEditor editor(desk.screen, desk.office);
    EXPECT_TRUE(editor.Leave());
    editor.AddDocument("Schedule A");
    desk.dialogs.SetAnswers({"Yes"});
    EXPECT_FALSE(editor.Leave()) << "there is no name to save under";
    EXPECT_EQ(desk.Boxes().size(), 2u);
}

TEST(PackageEditor, TellsOfLinesThatItCannotUse) {
    Desk desk;
    WriteBytes(desk.scratch / "package.def", kHandEdited);
    PackageEditor editor(desk.screen, desk.office);
    EXPECT_THAT(desk.Boxes(), ElementsAre(HasSubstr("line 6: a package's header")));
    EXPECT_THAT(editor.State().Combo1, ElementsAre("NEW PACKAGE", "SHORT", "GOOD"));
}

}  // namespace
}  // namespace quillmark::test
