#include "session/journal.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <random>
#include <thread>

#include "session/office_fixture.h"
#include "session/screen_text.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::OfficeTest;
using test::TextsOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class JournalTest : public OfficeTest {
 protected:
    fs::path Folder() const { return scratch / "Local" / "quillmark" / "journal"; }
    std::vector<fs::path> Journals() const {
        std::vector<fs::path> files;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(Folder(), none))
            if (entry.path().extension() == ".journal") files.push_back(entry.path());
        return files;
    }
    /// A program that does this and is killed when what it did is on disk.
    template <class Deeds>
    void Killed(Deeds deeds) {
        const pid_t child = fork();
        if (child == 0) {
            Start();
            deeds();
            usleep(900'000);
            kill(getpid(), SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
    }
};

TEST_F(JournalTest, ACrashCostsNothing) {
    ASSERT_NO_FATAL_FAILURE(Killed([&] {
        MakeSmallJob("Abbott");
        screen->EnterField(59, "Priya Castellan", EntryWay::Type);
    }));
    Start({"Yes"});
    ASSERT_THAT(dialogs.Shown(), SizeIs(1));
    EXPECT_THAT(LastBox(), HasSubstr("Abbott"));
    EXPECT_THAT(LastBox(), HasSubstr("3"));
    EXPECT_EQ(State().job.D(59), "Priya Castellan");
    EXPECT_EQ(State().job.D(3021), "Abbott") << "what follows from a value came back with it";
    EXPECT_EQ(State().txtJobName.text, "Abbott");
    ASSERT_EQ(State().cmdOpen.caption, "SAVE");
    const auto mine = TextsOf(State());
    screen->Click("cmdOpen");
    EXPECT_TRUE(fs::exists(JobFile("Abbott")));
    screen.reset();
    EXPECT_THAT(Journals(), IsEmpty()) << "a clean end leaves none";
    EXPECT_NE(mine.size(), 0u);
}

TEST_F(JournalTest, NoIsAskedOnceMore) {
    ASSERT_NO_FATAL_FAILURE(Killed([&] { MakeSmallJob("Abbott"); }));
    for (int start = 0; start < 2; ++start) {
        Start({"No"});
        EXPECT_THAT(dialogs.TakeShown(), SizeIs(1)) << start;
        EXPECT_TRUE(State().List2.empty());
        screen.reset();
    }
    Start();
    EXPECT_THAT(dialogs.TakeShown(), IsEmpty());
    screen.reset();
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(JournalTest, ATornJournalGivesWhatWasWhole) {
    ASSERT_NO_FATAL_FAILURE(Killed([&] {
        MakeSmallJob("Abbott");
        usleep(300'000);  // a record of its own
        screen->EnterField(59, "Priya Castellan", EntryWay::Type);
    }));
    ASSERT_THAT(Journals(), SizeIs(1));
    const std::string whole = test::ReadBytes(Journals()[0]);
    const fs::path file = Journals()[0];
    const std::size_t last = whole.rfind("QJ2 ");
    for (const std::size_t size : {last + 3, last + 40, whole.size() - 1}) {
        test::WriteBytes(file, whole.substr(0, size));
        const auto left = Journal(Folder(), scratch.path()).LeftByOthers();
        ASSERT_THAT(left, SizeIs(1));
        EXPECT_EQ(left[0].changes, 2u);
    }
    test::WriteBytes(file, whole.substr(0, 30));
    EXPECT_THAT(Journal(Folder(), scratch.path()).LeftByOthers(), IsEmpty());
    EXPECT_FALSE(fs::exists(file)) << "nothing in it";
}

TEST_F(JournalTest, TwoProgramsShareNoneAndOtherFoldersAreNoneOfOurs) {
    Start();
    MakeSmallJob("Abbott");
    Journal other(Folder(), scratch.path());
    EXPECT_THAT(other.LeftByOthers(), IsEmpty()) << "its program lives";
    ASSERT_NO_FATAL_FAILURE(screen.reset());
    ASSERT_NO_FATAL_FAILURE(Killed([&] { MakeSmallJob("Abbott"); }));
    EXPECT_THAT(other.LeftByOthers(), SizeIs(1));
    EXPECT_THAT(Journal(Folder(), scratch / "data").LeftByOthers(), IsEmpty());
    const auto permissions = fs::status(Journals().at(0)).permissions();
    EXPECT_EQ(permissions & (fs::perms::group_all | fs::perms::others_all), fs::perms::none);
}

using Clock = std::chrono::steady_clock;

/// Works without a pause, and writes down when it did which act.
[[noreturn]] void WorkForEver(const fs::path& folder, const fs::path& programFolder, int tell) {
    Journal journal(folder, programFolder);
    ScreenState screen;
    std::shared_ptr<const Snapshot> now;
    for (std::size_t act = 1;; ++act) {
        screen.job.SetField(21, "Seller " + std::to_string(act));
        now = Snapshot::Of(screen, now.get());
        journal.Add(now, act, std::chrono::local_seconds{});
        const std::int64_t said[] = {static_cast<std::int64_t>(act), Clock::now().time_since_epoch().count()};
        if (write(tell, said, sizeof said) != sizeof said) _exit(1);
        usleep(3'000);
    }
}

TEST_F(JournalTest, WhateverWasDoneASecondBeforeAKillIsThere) {
    constexpr int kKills = 100;
    constexpr int kAtOnce = 10;
    std::mt19937 random(3);
    for (int round = 0; round < kKills / kAtOnce; ++round) {
        struct Child {
            pid_t pid;
            int heard;
            Clock::time_point end;
            fs::path folder;
        };
        std::vector<Child> children;
        for (int i = 0; i < kAtOnce; ++i) {
            int ends[2];
            ASSERT_EQ(pipe(ends), 0);
            ASSERT_GE(fcntl(ends[1], F_SETPIPE_SZ, 1 << 17), 0);
            const fs::path folder = scratch / ("killed" + std::to_string(i));
            const pid_t pid = fork();
            if (pid == 0) WorkForEver(folder, scratch.path(), ends[1]);
            close(ends[1]);
            const auto life = std::chrono::milliseconds(std::uniform_int_distribution(1, 1600)(random));
            children.push_back({pid, ends[0], Clock::now() + life, folder});
        }
        std::ranges::sort(children, {}, &Child::end);
        for (Child& child : children) {
            std::this_thread::sleep_until(child.end);
            kill(child.pid, SIGKILL);
            child.end = Clock::now();
            waitpid(child.pid, nullptr, 0);
        }
        for (const Child& child : children) {
            std::size_t due = 0;
            std::int64_t said[2];
            while (read(child.heard, said, sizeof said) == sizeof said)
                if (Clock::time_point(Clock::duration(said[1])) < child.end - std::chrono::seconds(1))
                    due = static_cast<std::size_t>(said[0]);
            close(child.heard);
            const auto left = Journal(child.folder, scratch.path()).LeftByOthers();
            const std::size_t found = left.empty() ? 0 : left[0].changes;
            EXPECT_GE(found, due);
            if (found > 0) {
                ScreenState broughtBack;
                left[0].state->PutBack(broughtBack, nullptr);
                EXPECT_EQ(broughtBack.job.D(21), "Seller " + std::to_string(found));
            }
            fs::remove_all(child.folder);
        }
    }
}

}  // namespace
}  // namespace quillmark
