#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <map>
#include <random>
#include <thread>

#include "cli/console_fixture.h"
#include "core/job.h"

namespace quillmark::cli {
namespace {

namespace fs = std::filesystem;
using std::chrono::duration;
using std::chrono::steady_clock;
using test::ReadBytes;
using test::WriteBytes;

/// An office where the program is killed while it makes documents.
class Killed : public ::testing::Test {
 protected:
    Killed() {
        fs::create_directories(office / "data");
        std::string job = "\"000\",\"Deed / Warranty\"\r\n\"000\",\"Schedule A\"\r\n\"C01\",#TRUE#\r\n";
        for (const auto& [n, value] : std::map<std::string, std::string>{{"012", "Ann Lee"},
                                                                         {"013", "1 Elm Street"},
                                                                         {"015", "Avon, CT 06001"},
                                                                         {"016", "(860) 555-0100"},
                                                                         {"017", "(860) 555-0101"},
                                                                         {"021", "Walter Hollis"}})
            job += "\"" + n + "\",\"" + value + "\"\r\n";
        old_ = {{"data/Hollis.dat", job},
                {"data/Attorneys.lst", "Pike _ Ed Pike _ 2 Oak Lane _  _ Essex, CT _ 1 _ 2 _ \r\n"},
                {"Hollis_QMF.docx", "an earlier document"}};
        WriteBytes(office / "script",
                   Do("load", {{"name", "Hollis"}}) + "\n" + Do("unlock", {{"n", 21}, {"answers", {"Yes"}}}) +
                       "\n" + Do("field", {{"n", 21}, {"text", "Wilma Hollis"}}) + "\n" +
                       Do("create", {{"to", TextOf(office / "Hollis_QMF.docx")}, {"answers", {"Yes"}}}) +
                       "\n");
    }

    using Files = std::map<std::string, std::string>;
    /// A file without bytes is not there.
    void Restore() {
        fs::remove_all(office / "state");  // no one asks whether to continue
        for (const auto& [name, bytes] : old_)
            bytes.empty() ? (void)fs::remove(office / name) : WriteBytes(office / name, bytes);
    }
    Files Present() {
        Files files;
        for (const auto& [name, bytes] : old_)
            files[name] = fs::exists(office / name) ? ReadBytes(office / name) : std::string();
        return files;
    }

    /// Runs the program and kills it after this time; without a time, waits for its end.
    void Run(std::vector<std::string> words, std::optional<duration<double>> until) {
        words.insert(words.begin(), QUILLMARK_CLI);
        words.insert(words.end(), {"--folder", TextOf(office.path()), "--today", "2026-03-09"});
        std::vector<char*> arguments;
        for (std::string& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        const std::string script = TextOf(office / "script");
        const pid_t child = fork();
        if (child == 0) {
            setenv("XDG_STATE_HOME", TextOf(office / "state").c_str(), 1);
            dup2(open(script.c_str(), O_RDONLY), STDIN_FILENO);
            dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
            dup2(STDOUT_FILENO, STDERR_FILENO);
            execv(QUILLMARK_CLI, arguments.data());
            _exit(127);
        }
        if (until) {
            std::this_thread::sleep_for(*until);
            kill(child, SIGKILL);
        }
        int status = 0;
        waitpid(child, &status, 0);
        if (!until) {
            EXPECT_EQ(status, 0);
        }
    }

    /// Kills the program at random moments of its work: every file is then the old or the new one, and a new
    /// job file means a new document.
    void KillAtRandom(const std::vector<std::string>& words, int times) {
        Restore();
        const auto start = steady_clock::now();
        Run(words, std::nullopt);
        const duration<double> whole = steady_clock::now() - start;
        const Files made = Present();
        EXPECT_EQ(made.at("Hollis_QMF.docx").substr(0, 2), "PK");
        std::mt19937 random(9);
        std::uniform_real_distribution<double> share(0.1, 1.1);
        for (int i = 0; i < times; ++i) {
            Restore();
            Run(words, whole * share(random));
            const Files left = Present();
            for (const auto& [name, bytes] : left)
                EXPECT_TRUE(bytes == old_.at(name) || bytes == made.at(name)) << name << " is torn:\n"
                                                                              << bytes;
            const bool kept = left.at("data/Hollis.dat") != old_.at("data/Hollis.dat");
            EXPECT_TRUE(!kept || left.at("Hollis_QMF.docx") == made.at("Hollis_QMF.docx"));
        }
        Restore();
        Run(words, std::nullopt);
        EXPECT_EQ(Present(), made) << "what the killed ones left behind is in nobody's way";
    }

    test::ScratchFolder office;
    Files old_;
};

TEST_F(Killed, CreateLeavesTheOldOrTheNewOfEachFile) {
    old_["Hollis_QMF.docx"].clear();  // a document that is there would be left alone
    KillAtRandom({"console"}, 100);
    EXPECT_NE(ReadBytes(office / "data/Hollis.dat").find("Wilma Hollis"), std::string::npos);
    EXPECT_NE(ReadBytes(office / "data/Attorneys.lst").find("Ann Lee"), std::string::npos);
}

TEST_F(Killed, MakeLeavesTheOldOrTheNewDocument) {
    KillAtRandom({"make", "--anyway", "--force", "--out", TextOf(office.path()), "Hollis"}, 40);
    EXPECT_EQ(ReadBytes(office / "data/Hollis.dat"), old_.at("data/Hollis.dat"));
}

}  // namespace
}  // namespace quillmark::cli
