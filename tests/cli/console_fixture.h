#pragma once

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/console.h"
#include "platform/paths.h"
#include "support/scratch.h"

namespace quillmark::cli {

using Json = nlohmann::ordered_json;

/// A request of this command with these arguments.
inline std::string Do(const std::string& command, Json arguments = Json::object()) {
    arguments["do"] = command;
    return arguments.dump();
}

/// Sessions in an office of their own, as scripts of requests, on March 9, 2026.
class ConsoleTest : public ::testing::Test {
 protected:
    ConsoleTest() {
        test::WriteBytes(office / "defaults.fld", "\"[seller lawfirm]:            Hale & Pike\"\r\n");
    }

    /// The replies to these lines, without the one that tells of the start, which must be well.
    std::vector<Json> Session(const std::vector<std::string>& lines) {
        std::string input;
        for (const std::string& line : lines) input += line + "\n";
        std::vector<Json> replies = RepliesTo(input);
        EXPECT_EQ(replies.at(0).value("result", Json()), "ready") << replies.at(0);
        replies.erase(replies.begin());
        return replies;
    }

    std::vector<Json> RepliesTo(const std::string& input) {
        std::istringstream in(input);
        std::ostringstream out, err;
        const ConsoleOrder order{office.path(), std::chrono::year(2026) / 3 / 9, {}, printers, drives};
        status = RunConsole(order, in, {out, err});
        errors = err.str();
        std::vector<Json> replies;
        std::istringstream lines(out.str());
        for (std::string line; std::getline(lines, line);) replies.push_back(Json::parse(line));
        return replies;
    }

    std::filesystem::path JobFile(const std::string& name) const {
        return office.path() / "data" / PathOf(name + ".dat");
    }

    test::ScratchFolder office;
    std::vector<NamedPrinter> printers;
    std::vector<Drive> drives;
    int status = -1;
    std::string errors;
};

/// A reply that reports success with this result.
MATCHER_P(Gives, result, "") {
    return arg.at("ok") == true && arg.at("result") == Json(result);
}
/// A reply that reports success.
MATCHER(Succeeds, "") {
    return arg.at("ok") == true;
}
/// A reply that refuses, with this in its text.
MATCHER_P(Refuses, part, "") {
    return arg.at("ok") == false &&
           arg.at("error").template get<std::string>().find(part) != std::string::npos;
}

/// How gtest shows a reply.
inline void PrintTo(const Json& json, std::ostream* out) {
    *out << json.dump();
}

}  // namespace quillmark::cli
