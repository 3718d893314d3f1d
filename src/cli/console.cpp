#include "cli/console.h"

#include <istream>
#include <ostream>
#include <string>

#include "cli/console_commands.h"
#include "cli/console_request.h"
#include "cli/console_session.h"

namespace quillmark::cli {

namespace {

/// Longer than any request that could be carried out.
constexpr std::size_t kLongestLine = 4 * 1024 * 1024;

/// Takes a line, of one that is too long only so much that this shows. False at the end of the input.
bool ReadLine(std::istream& in, std::string& line) {
    line.clear();
    std::streambuf& source = *in.rdbuf();
    int c = source.sbumpc();
    if (c == std::char_traits<char>::eof()) return false;
    for (; c != '\n' && c != std::char_traits<char>::eof(); c = source.sbumpc())
        if (line.size() <= kLongestLine) line += static_cast<char>(c);
    return true;
}

class Console {
 public:
    Console(const ConsoleOrder& order, const Streams& streams)
        : streams_(streams), session_(order, streams.err) {
        session_.dialogs().Prepare(order.answers);
    }

    int Run(std::istream& in) {
        if (!Start()) return kFailed;
        std::string line;
        while (!session_.screen().HasEnded() && ReadLine(in, line))
            if (!Reply(line)) return kFailed;
        return kDone;
    }

 private:
    bool Start() {
        Json reply = Attempt([&]() -> Json {
            if (!session_.screen().Start()) throw std::runtime_error("the program ended at its start");
            return "ready";
        });
        return Send(reply) && reply["ok"];
    }

    bool Reply(const std::string& line) {
        return Send(Attempt([&] {
            if (line.size() > kLongestLine) throw BadRequest("the line is longer than 4 MB");
            const Request request(line);
            session_.dialogs().Prepare(request.Answers());
            return RunCommand(session_, request);
        }));
    }

    /// The reply to an action, without what every reply has at its end.
    template <class Action>
    Json Attempt(Action action) {
        try {
            Json result = action();
            if (!session_.dialogs().Fault().empty()) throw DialogError(session_.dialogs().Fault());
            return {{"ok", true}, {"result", std::move(result)}};
        } catch (const std::exception& failure) {
            return {{"ok", false}, {"error", failure.what()}};
        }
    }

    bool Send(Json& reply) {
        reply["dialogs"] = session_.dialogs().TakeShown();
        reply["info"] = session_.State().picInfo;
        // File names need not be UTF-8 on every system.
        streams_.out << reply.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
        return streams_.out.good();
    }
    bool Send(Json&& reply) { return Send(reply); }

    const Streams& streams_;
    ConsoleSession session_;
};

}  // namespace

int RunConsole(const ConsoleOrder& order, std::istream& in, const Streams& streams) {
    try {
        return Console(order, streams).Run(in);
    } catch (const std::exception& failure) {
        streams.err << "quillmark-cli: " << failure.what() << std::endl;
        return kFailed;
    }
}

}  // namespace quillmark::cli
