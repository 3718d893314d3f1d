#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <thread>

#include "session/office_fixture.h"
#include "tools/browser/file_browser.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::OfficeTest;
using test::QuietShell;
using Names = std::vector<std::string>;

const Names kNames = {"Abbott", "Pell", "Whitcomb", "Sorensen"};
constexpr std::string_view kOverwrites = "About to overwrite an existing file, data will be lost.";
constexpr int kSeller = 21;

/// A person who answers warnings as told, and remembers them.
class Person final : public Dialogs {
 public:
    DialogButton Show(const MessageDialog& box) override {
        const bool warned = box.text.starts_with(kOverwrites);
        const DialogButton answer = warned && goesOn ? DialogButton::OK : DialogButton::Cancel;
        if (warned) warning = box.text;
        if (warned && goesOn) overwritten = true;
        const auto& buttons = box.buttons;
        if (std::find(buttons.begin(), buttons.end(), answer) != buttons.end()) return answer;
        return box.text.starts_with("Unlock") ? DialogButton::Yes : buttons.back();
    }
    std::optional<std::string> Ask(const InputDialog& box) override {
        return std::exchange(name, box.proposed);  // a second question is left as it is
    }

    bool goesOn = false;       ///< in spite of the warning
    bool overwritten = false;  ///< it was warned and went on
    std::string warning;       ///< the last one
    std::string name;          ///< to the next question for a name
};

/// One of the computers that share a job folder.
class Workstation {
 public:
    Workstation(const fs::path& folder, const Clock& clock)
        : shell_(folder), screen(folder, Machine{.clock = clock, .dialogs = person, .shell = shell_}) {
        screen.Start();
    }

    void Reset() { screen.Click("cmdReset"); }
    void Begin(const std::string& name, const std::string& seller) {
        Reset();
        screen.TypeName(name);
        screen.PickDocument("Deed / Warranty");
        screen.EnterField(kSeller, seller, EntryWay::Type);
    }
    void Open(const std::string& name, const std::string& seller) {
        Reset();
        screen.Click("cmdOpen");
        screen.LoadJob(name, false);
        if (screen.BrowserOpen()) return screen.CloseBrowser();
        screen.Click("cmdOpen");
        screen.UnlockRow(kSeller);
        screen.EnterField(kSeller, seller, EntryWay::Type);
    }
    bool CanSave() const { return screen.State().HasUnsavedChanges(); }
    void Save() { screen.Click("cmdOpen"); }
    void Rename(const std::string& name, const std::string& newName) {
        Reset();
        screen.Click("cmdOpen");
        screen.LoadJob(name, false);
        if (screen.BrowserOpen()) return screen.CloseBrowser();
        person.name = newName;
        screen.Click("cmdNameAs");
    }
    void Delete(const std::string& name) {
        FileBrowser browser(screen.FirmAround().folders, false, person);
        if (browser.Select(name)) browser.DeleteSelected();
    }

    Person person;

 private:
    QuietShell shell_;

 public:
    MainScreen screen;
};

class TwoSessions : public OfficeTest {
 protected:
    /// The sellers that the files of the folder name, by file.
    std::map<std::string, std::string> Sellers() const {
        std::map<std::string, std::string> sellers;
        for (const auto& file : fs::directory_iterator(scratch / "data")) {
            if (file.path().extension() != ".dat") continue;
            const std::string name = file.path().stem().string();
            for (const auto& [n, value] : JobFileContentsOf(name, test::ReadBytes(file.path())).fields)
                if (n == kSeller) sellers[name] = value;
        }
        return sellers;
    }
};

class TwoSessionsAtRandom : public TwoSessions, public ::testing::WithParamInterface<unsigned> {};

/// Every version of a job that was saved stays in some file until a person deletes it, saves over the version
/// that is on that person's own screen, or has been warned.
TEST_P(TwoSessionsAtRandom, LoseNothingUnwarned) {
    std::mt19937 random(GetParam());
    const auto below = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    };
    Workstation stations[] = {{scratch.path(), clock}, {scratch.path(), clock}};
    std::string onScreen[2];
    std::ostringstream history;
    for (int step = 0; step < 150 && !HasFailure(); ++step) {
        const std::size_t which = below(2);
        Workstation& station = stations[which];
        station.person.goesOn = below(2) == 0;
        station.person.overwritten = false;
        const std::string& name = kNames[below(kNames.size())];
        const std::string& newName = kNames[below(kNames.size())];
        const std::string seller = "Seller " + std::to_string(step);
        const auto before = Sellers();
        std::string deleted;
        history << "\n" << which << ": ";
        switch (below(6)) {
            case 0:
                history << "begin " << name << " for " << seller;
                station.Begin(name, seller);
                onScreen[which].clear();
                break;
            case 1:
                history << "open " << name << " for " << seller;
                station.Open(name, seller);
                onScreen[which] = before.count(name) ? before.at(name) : "";
                break;
            case 2:
                history << "rename " << name << " to " << newName;
                station.Rename(name, newName);
                onScreen[which] = before.count(name) ? before.at(name) : "";
                break;
            case 3:
                history << "delete " << name;
                station.Delete(name);
                if (before.count(name)) deleted = before.at(name);
                break;
            default:
                history << "save";
                if (!station.CanSave()) break;
                station.Save();
                if (station.CanSave()) break;
                deleted = onScreen[which];
                onScreen[which] = station.screen.State().job.D(kSeller);
                history << " " << station.screen.State().job.name << " for " << onScreen[which];
                EXPECT_EQ(onScreen[which], Sellers()[station.screen.State().job.name]);
        }
        const auto after = Sellers();
        std::set<std::string> kept;
        for (const auto& [file, value] : after) kept.insert(value);
        for (const auto& [file, value] : before)
            EXPECT_TRUE(kept.count(value) || value == deleted || station.person.overwritten)
                << value << " of " << file << " is lost, seed " << GetParam() << history.str();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TwoSessionsAtRandom, ::testing::Range(1u, 9u));

TEST_F(TwoSessions, AJobThatAnotherChangedMeanwhileIsOverwrittenOnlyWithAWarning) {
    Workstation first(scratch.path(), clock), second(scratch.path(), clock);
    first.Begin("Abbott", "Anna Abbott");
    first.Save();
    first.Open("Abbott", "Ann Abbott");
    second.Open("Abbott", "Annie Abbott");
    second.Save();
    first.Save();
    EXPECT_NE(first.person.warning.find("It was saved by "), std::string::npos) << first.person.warning;
    EXPECT_EQ("Annie Abbott", Sellers()["Abbott"]);
    EXPECT_TRUE(first.CanSave()) << "nothing of the entry is lost either";
    first.person.goesOn = true;
    first.Save();
    EXPECT_EQ("Ann Abbott", Sellers()["Abbott"]);
}

/// Two computers at the very same moment: exactly one of them gets the name.
TEST_F(TwoSessions, OneNameIsGivenToOneFileOnly) {
    const Folders folders = FoldersOf(scratch.path(), Settings{});
    fs::create_directories(folders.ImagesFolder);
    for (int round = 0; round < 200; ++round) {
        for (const char* name : {"One", "Two"}) test::WriteBytes(JobFile(name), name);
        fs::remove(JobFile("Both"));
        bool got[2] = {};
        std::thread other([&] { got[0] = RenameJobFiles(folders, "One", "Both"); });
        got[1] = RenameJobFiles(folders, "Two", "Both");
        other.join();
        ASSERT_NE(got[0], got[1]) << "round " << round;
        EXPECT_EQ(got[0] ? "One" : "Two", test::ReadBytes(JobFile("Both")));
        EXPECT_EQ(got[0] ? "Two" : "One", test::ReadBytes(JobFile(got[0] ? "Two" : "One")));
    }
}

}  // namespace
}  // namespace quillmark
