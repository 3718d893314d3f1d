#include "cli/console_fixture.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

namespace quillmark::cli {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::SizeIs;

/// The program itself in a conversation: every reply is awaited before the next line is sent.
class Conversation {
 public:
    explicit Conversation(const fs::path& folder) {
        std::array<int, 2> in, out;
        if (pipe(in.data()) != 0 || pipe(out.data()) != 0) throw std::runtime_error("no pipes");
        child_ = fork();
        if (child_ == 0) {
            dup2(in[0], STDIN_FILENO);
            dup2(out[1], STDOUT_FILENO);
            for (const int end : {in[0], in[1], out[0], out[1]}) close(end);
            const std::string office = TextOf(folder);
            execl(QUILLMARK_CLI, QUILLMARK_CLI, "console", "--folder", office.c_str(), "--today",
                  "2026-03-09", static_cast<char*>(nullptr));
            _exit(127);
        }
        close(in[0]);
        close(out[1]);
        to_ = in[1];
        from_ = out[0];
    }
    ~Conversation() { End(); }

    Json Say(const std::string& request) {
        const std::string line = request + "\n";
        if (write(to_, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            throw std::runtime_error("the program takes no more lines");
        return Hear();
    }

    /// The next line, which must come by itself.
    Json Hear() {
        constexpr int kPatience = 20'000;
        std::string line;
        for (char c = 0; c != '\n';) {
            pollfd waiting{from_, POLLIN, 0};
            if (poll(&waiting, 1, kPatience) != 1 || read(from_, &c, 1) != 1)
                throw std::runtime_error("no reply, only: " + line);
            line += c;
        }
        return Json::parse(line);
    }

    /// Ends the input and gives the exit status.
    int End() {
        if (child_ < 0) return -1;
        close(to_);
        close(from_);
        int state = 0;
        waitpid(std::exchange(child_, -1), &state, 0);
        return WEXITSTATUS(state);
    }

 private:
    pid_t child_ = -1;
    int to_ = -1;
    int from_ = -1;
};

class ConsoleProcess : public ConsoleTest {};

TEST_F(ConsoleProcess, RepliesComeLineByLineAndSeeWhatOthersDo) {
    test::WriteBytes(JobFile("Abbott"), "\"C01\",#TRUE#\r\n");
    Conversation session(office.path());
    EXPECT_THAT(session.Hear(), Gives("ready"));
    EXPECT_THAT(session.Say(Do("click", {{"button", "cmdOpen"}})), Succeeds());
    fs::remove(JobFile("Abbott"));
    const Json missed = session.Say(Do("load", {{"name", "Abbott"}}));
    ASSERT_THAT(missed["dialogs"], SizeIs(1)) << missed;
    EXPECT_EQ(missed["dialogs"][0]["text"], "File No Longer Exists");
    EXPECT_THAT(session.Say(Do("browse", {{"text", ""}})), Gives(Json::array({"Abbott"})))
        << "the browser stayed as it was";
    EXPECT_THAT(session.Say(Do("browse", {{"text", ""}})), Gives(Json::array()));
    EXPECT_EQ(session.End(), kDone);
}

TEST_F(ConsoleProcess, ADataFolderThatGoesAwayLeadsToItsPathInTheSettings) {
    Conversation session(office.path());
    EXPECT_THAT(session.Hear(), Succeeds());
    fs::remove_all(office / "data");
    const Json reply = session.Say(Do("load", {{"name", "Abbott"}}));
    EXPECT_THAT(reply, Refuses("the settings show its path"));
    EXPECT_EQ(reply["dialogs"][0]["text"], "Data Path Not Found");
    const Json state = session.Say(Do("state"))["result"];
    EXPECT_EQ(state["txtJobName"]["text"], "DEFAULTS");
    EXPECT_THAT(std::string(state["settings"].at(11)), HasSubstr("DATABASE PATH"));
}

TEST_F(ConsoleProcess, ADataFolderOfANewerVersionEndsTheProgramAtItsStart) {
    test::WriteBytes(office / "data/vers.txt", "");
    fs::last_write_time(office / "data/vers.txt", fs::file_time_type::clock::now() + std::chrono::hours(24));
    Conversation session(office.path());
    const Json reply = session.Hear();
    EXPECT_EQ(reply["ok"], false);
    EXPECT_THAT(std::string(reply["dialogs"][0]["text"]), HasSubstr("UPGRADE REQUIRED"));
    EXPECT_EQ(session.End(), kFailed);
}

TEST_F(ConsoleProcess, AFolderThatIsNotThereIsToldToThePerson) {
    EXPECT_THAT(RepliesTo(""), SizeIs(1));
    fs::remove_all(office.path());
    EXPECT_THAT(RepliesTo(""), SizeIs(0));
    EXPECT_THAT(errors, HasSubstr("there is no such folder"));
    EXPECT_EQ(status, kFailed);
}

}  // namespace
}  // namespace quillmark::cli
