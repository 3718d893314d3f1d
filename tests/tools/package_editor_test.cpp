#include "tools/packages/package_editor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/atomic_file.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

using Names = std::vector<std::string>;

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

/// A program folder with its packages, and a person.
struct Desk {
    Desk() { folders.ProgramFolder = scratch.path(); }

    PackageEditor Open() { return PackageEditor(offered, folders, dialogs); }
    Names Boxes() {
        Names texts;
        for (const auto& box : dialogs.TakeShown()) texts.push_back(box.title + "|" + box.text);
        return texts;
    }

    ScratchFolder scratch;
    Folders folders;
    ScriptedDialogs dialogs;
    Names offered = {"Schedule A"};  ///< by the main screen
};

TEST(PackageEditor, SavesPicksRenamesAndDeletes) {
    Desk desk;
    PackageEditor editor = desk.Open();
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
    PackageEditor editor = desk.Open();
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
    desk.offered.push_back(PackageLine("TAKEN"));
    PackageEditor editor = desk.Open();
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
    EXPECT_THROW(desk.Open(), FileError) << "the main screen offers packages";
}

TEST(PackageEditor, AsksBeforeChangesAreLeftBehind) {
    Desk desk;
    const auto leave = [&](std::string_view answer) {
        PackageEditor editor = desk.Open();
        editor.TypeName("NEW");
        editor.AddDocument("Schedule A");
        desk.dialogs.SetAnswers({std::string(answer)});
        EXPECT_TRUE(editor.Leave());
        EXPECT_THAT(desk.Boxes(), ElementsAre("  ALERT|You did not save your changes.\nSave them now ???"));
        return ReadPackages(desk.scratch.path()).packages.size();
    };
    EXPECT_EQ(leave("No"), 0u);
    EXPECT_EQ(leave("Yes"), 1u);

    PackageEditor editor = desk.Open();
    EXPECT_TRUE(editor.Leave());
    editor.AddDocument("Schedule A");
    desk.dialogs.SetAnswers({"Yes"});
    EXPECT_FALSE(editor.Leave()) << "there is no name to save under";
    EXPECT_EQ(desk.Boxes().size(), 2u);
}

TEST(PackageEditor, TellsOfLinesThatItCannotUse) {
    Desk desk;
    WriteBytes(
        desk.scratch / "package.def",
        "\"<03>SHORT\"\r\n\"Deed / Warranty\"\r\n\"<1>BAD HEADER\"\r\n\"<01>GOOD\"\r\n\"Schedule A\"\r\n");
    PackageEditor editor = desk.Open();
    EXPECT_THAT(desk.Boxes(), ElementsAre(HasSubstr("line 3: a package's header")));
    EXPECT_THAT(editor.State().Combo1, ElementsAre("NEW PACKAGE", "SHORT", "GOOD"));
}

}  // namespace
}  // namespace quillmark::test
