#include <gmock/gmock.h>

#include "core/settings.h"
#include "platform/paths.h"
#include "support/scratch.h"
#include "tools/browser/file_browser.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;
using test::WriteBytes;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;

constexpr bool kJobs = false;
constexpr bool kTemplates = true;

class Browser : public ::testing::Test {
 protected:
    Browser() : folders(FoldersOf(scratch.path(), Settings{})) {
        fs::create_directories(folders.ImagesFolder);
    }

    void Keep(std::string_view file) { WriteBytes(folders.JobFolder / PathOf(file), "\"C01\",#TRUE#\r\n"); }
    bool IsKept(std::string_view file) const { return fs::exists(folders.JobFolder / PathOf(file)); }
    FileBrowser Open(bool templates) { return FileBrowser(folders, templates, dialogs); }

    ScratchFolder scratch;
    Folders folders;
    ScriptedDialogs dialogs{{}, ScriptedDialogs::WhenUnanswered::Fail};
};

TEST_F(Browser, JobsAndTemplatesNeverShowTogether) {
    for (const char* file : {"Smith - 9 Elm.dat", "adams.DAT", "Smith.dat", "{ REGENCY_template }.dat",
                             "{ ACORN_template }.dat", "notes.txt", ".dat", "Smith.dat.bak"})
        Keep(file);
    fs::create_directory(folders.JobFolder / "folder.dat");
    const FileBrowser jobs = Open(kJobs);
    EXPECT_THAT(jobs.State().List1, ElementsAre("adams", "Smith", "Smith - 9 Elm"));
    EXPECT_FALSE(jobs.State().cmdSpawn.visible);
    EXPECT_TRUE(jobs.State().cmdAttorneys.visible);
    EXPECT_EQ(
        " Type search text, Double-Click item to load data, or press ESC to cancel"
        "  {CTRL+SHIFT+DEL to delete a selected file}",
        jobs.State().status);

    const FileBrowser templates = Open(kTemplates);
    EXPECT_THAT(templates.State().List1,
                ElementsAre(FileBrowser::kNewTemplate, "{ ACORN_template }", "{ REGENCY_template }"));
    EXPECT_TRUE(templates.State().cmdSpawn.visible);
    EXPECT_FALSE(templates.State().lblCancel.visible);
    EXPECT_EQ("  Template Browser                            search text =>   ", templates.State().title);
}

TEST_F(Browser, AnEmptyFolderOpensAnEmptyList) {
    const FileBrowser browser = Open(kJobs);
    EXPECT_TRUE(browser.IsOpen());
    EXPECT_THAT(browser.State().List1, IsEmpty());
}

TEST_F(Browser, EachKeyNarrowsTheListAndBackspaceWidensIt) {
    for (const char* file : {"Smith - 9 Elm.dat", "Blacksmith.dat", "Simon.dat", "Müller.dat"}) Keep(file);
    FileBrowser browser = Open(kJobs);
    for (const char* key : {"s", "M", "i"}) browser.PressKey(key);
    EXPECT_THAT(browser.State().List1, ElementsAre("Blacksmith", "Smith - 9 Elm"));
    EXPECT_THAT(browser.State().title, EndsWith("search text =>   SMI"));
    browser.PressKey("\r");
    EXPECT_THAT(browser.State().title, EndsWith("SMI")) << "the Enter key is no letter";
    browser.PressBackspace();
    browser.PressBackspace();
    EXPECT_THAT(browser.State().List1, ElementsAre("Blacksmith", "Simon", "Smith - 9 Elm"));
    for (int i = 0; i < 3; ++i) browser.PressBackspace();
    EXPECT_EQ(4u, browser.State().List1.size());
    EXPECT_THAT(browser.State().title, EndsWith("=>   "));
    browser.PressKey("mü");
    EXPECT_THAT(browser.State().List1, ElementsAre("Müller"));
    EXPECT_THAT(browser.State().title, EndsWith("MÜ"));
    browser.PressBackspace();
    EXPECT_THAT(browser.State().title, EndsWith("   M")) << "a letter goes whole";
}

TEST_F(Browser, ASearchAmongTemplatesKeepsTheirMeaning) {
    Keep("{ REGENCY_template }.dat");
    FileBrowser browser = Open(kTemplates);
    ASSERT_TRUE(browser.Select(0));
    EXPECT_FALSE(browser.State().cmdSpawn.enabled) << "nothing to spawn from a template that is not made";
    ASSERT_TRUE(browser.Select("{ REGENCY_template }"));
    EXPECT_TRUE(browser.State().cmdSpawn.enabled);
    browser.PressKey("reg");
    EXPECT_FALSE(browser.State().cmdSpawn.enabled) << "a new list has no selection";
    EXPECT_THAT(browser.State().List1, ElementsAre("{ REGENCY_template }"));
    ASSERT_TRUE(browser.Select(0));
    EXPECT_TRUE(browser.State().cmdSpawn.enabled) << "first on the list, but no line for a new template";
    EXPECT_EQ("{ REGENCY_template }", browser.Selected());
    EXPECT_FALSE(browser.Select(1));
    browser.SearchFiles("");
    EXPECT_EQ(2u, browser.State().List1.size());
}

TEST_F(Browser, DeletingTakesThePicturesAlong) {
    for (const char* file : {"Smith.dat", "Smith II.dat", "images/Smith_201.bmp", "images/Smith_7.bmp",
                             "images/Smith II_201.bmp"})
        Keep(file);
    FileBrowser browser = Open(kJobs);
    EXPECT_FALSE(browser.DeleteSelected()) << "nothing is selected";
    ASSERT_TRUE(browser.Select("Smith"));
    Keep("Adams.dat");
    EXPECT_TRUE(browser.DeleteSelected());
    EXPECT_FALSE(IsKept("Smith.dat"));
    EXPECT_FALSE(IsKept("images/Smith_201.bmp"));
    EXPECT_FALSE(IsKept("images/Smith_7.bmp"));
    EXPECT_TRUE(IsKept("images/Smith II_201.bmp"));
    EXPECT_THAT(browser.State().List1, ElementsAre("Smith II"));
    browser.SearchFiles("");
    EXPECT_THAT(browser.State().List1, ElementsAre("Adams", "Smith II")) << "the folder was read again";
}

TEST_F(Browser, TheLineForANewTemplateCannotBeDeleted) {
    FileBrowser browser = Open(kTemplates);
    ASSERT_TRUE(browser.Select(FileBrowser::kNewTemplate));
    EXPECT_FALSE(browser.DeleteSelected());
    EXPECT_THAT(browser.State().List1, ElementsAre(FileBrowser::kNewTemplate));
}

TEST_F(Browser, WhatTheSystemRefusesToDeleteStaysListed) {
    Keep("Smith.dat");
    FileBrowser browser = Open(kJobs);
    ASSERT_TRUE(browser.Select("Smith"));
    // A folder of that name that is not empty cannot be removed as a file.
    fs::remove(folders.JobFolder / "Smith.dat");
    Keep("Smith.dat/inside.txt");
    dialogs.SetAnswers({"OK"});
    EXPECT_FALSE(browser.DeleteSelected());
    EXPECT_THAT(browser.State().List1, ElementsAre("Smith"));
    EXPECT_THAT(dialogs.Shown().back().text, ::testing::HasSubstr("Smith.dat"));
}

TEST_F(Browser, AFolderOutOfReachIsTold) {
    fs::remove_all(folders.JobFolder);
    dialogs.SetAnswers({"OK"});
    const FileBrowser browser = Open(kJobs);
    EXPECT_FALSE(browser.IsOpen());
    EXPECT_EQ("Data Path Not Found", dialogs.Shown().back().text);
}

}  // namespace
}  // namespace quillmark
