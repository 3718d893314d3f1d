#include "entry/address_book_files.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "entry/address_stress.h"
#include "platform/atomic_file.h"
#include "platform/this_user.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using test::ScratchFolder;

constexpr const char* kBank = "Any Bank _ 1 Main St _  _ Anycity, OH 43210";
const SystemClock kClock;

/// A program that holds the books of a folder until it is killed.
class Holder {
 public:
    explicit Holder(const std::filesystem::path& folder) {
        std::array<int, 2> held;
        if (::pipe(held.data()) != 0) std::abort();
        child_ = ::fork();
        if (child_ == 0) {
            const AddressBookLock lock(folder, kClock);
            if (::write(held[1], "x", 1) != 1) ::_exit(1);
            while (true) ::pause();
        }
        char ready = 0;
        if (::read(held[0], &ready, 1) != 1) std::abort();
        ::close(held[0]);
        ::close(held[1]);
    }
    ~Holder() { Kill(); }

    void Kill() {
        if (child_ == 0) return;
        ::kill(child_, SIGKILL);
        ::waitpid(child_, nullptr, 0);
        child_ = 0;
    }

 private:
    pid_t child_ = 0;
};

TEST(AddressBooks, TellWhoHoldsThemAndGiveWayToCancel) {
    const ScratchFolder folder;
    Holder holder(folder.path());
    std::vector<FileHolder> told;
    const auto cancel = [&](const FileInUse& use) {
        if (use.holder) told.push_back(*use.holder);
        return told.size() < 3;
    };
    try {
        AddressBooks(folder.path(), kClock, cancel).Add(AddressBook::Servicers, kBank);
        FAIL() << "wrote while another held the books";
    } catch (const FileError& error) {
        EXPECT_EQ(error.kind, FileError::Kind::InUse);
        EXPECT_NE(std::string(error.what()).find(DescriptionOf(told.at(0))), std::string::npos);
    }
    ASSERT_EQ(told.size(), 3u);
    EXPECT_EQ(told[0].user, ThisUser().user);
    EXPECT_EQ(told[0].computer, ThisUser().computer);
    EXPECT_EQ(told[0].since.size(), std::string("2026-03-05 10:16:04").size());
    EXPECT_EQ(told[2], told[0]);
    EXPECT_FALSE(std::filesystem::exists(folder / "Servicers.lst"));

    holder.Kill();
    const auto never = [](const FileInUse&) { return false; };
    EXPECT_TRUE(AddressBooks(folder.path(), kClock, never).Add(AddressBook::Servicers, kBank).made)
        << "a holder that died still holds the books";
}

TEST(AddressBooks, WaitUntilTheHolderIsDone) {
    const ScratchFolder folder;
    Holder holder(folder.path());
    int asked = 0;
    const auto patient = [&](const FileInUse&) {
        if (++asked == 4) holder.Kill();
        return asked < 20;
    };
    EXPECT_TRUE(AddressBooks(folder.path(), kClock, patient).Add(AddressBook::Servicers, kBank).made);
    EXPECT_GE(asked, 4);
}

TEST(AddressBooks, LoseNoFinishedWriteWhenWritersAreKilled) {
    const ScratchFolder folder;
    test::StressPlan plan;
    plan.records = 12;
    plan.kills = 12;
    plan.betweenKills = std::chrono::milliseconds(25);
    const test::StressResult result = test::StressRun(folder.path(), plan).Run();
    EXPECT_GT(result.killed, 0);
    EXPECT_GE(result.finished, plan.records * plan.processes * 3 / 4);
    EXPECT_EQ(result.failed, 0);
    EXPECT_TRUE(result.missing.empty()) << result.missing.front();
    EXPECT_TRUE(result.torn.empty()) << result.torn.front();
    EXPECT_TRUE(result.duplicate.empty()) << result.duplicate.front();
}

}  // namespace
}  // namespace quillmark
