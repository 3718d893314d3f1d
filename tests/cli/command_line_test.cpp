#include "cli/command_line.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "core/field_registry.h"

namespace quillmark::cli {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

Outcome Command(const std::vector<std::string>& words) {
    std::ostringstream out, err;
    const int status = RunCommandLine(words, {out, err});
    return {status, out.str(), err.str()};
}

TEST(CommandLine, WrongOnesAreRefusedWithStatusTwo) {
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {"frobnicate"},
        {"make"},
        {"make", "--nope", "Job"},
        {"make", "--today", "2025-02-30", "Job"},
        {"make", "--today", "4/6/2025", "Job"},
        {"make", "--today", "2025-4-06", "Job"},
        {"make", "--documents", " ; ", "Job"},
        {"make", "--out"},
        {"documents", "surplus"},
    };
    for (const auto& words : wrong) {
        const Outcome outcome = Command(words);
        EXPECT_EQ(outcome.status, 2) << ::testing::PrintToString(words);
        EXPECT_EQ(outcome.out, "") << ::testing::PrintToString(words);
        EXPECT_NE(outcome.err, "") << ::testing::PrintToString(words);
    }
}

TEST(CommandLine, HelpAndVersionAreResults) {
    EXPECT_THAT(Command({"--version"}).out, HasSubstr("3.78"));
    for (const char* option :
         {"--folder", "--out", "--documents", "--today", "--answers", "--trace", "--pdf", "--quiet"})
        EXPECT_THAT(Command({"make", "--help"}).out, HasSubstr(option));
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--help"}, {"--version"}, {"make", "--help"}, {"fields", "--help"}}) {
        const Outcome outcome = Command(words);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.err, "");
    }
}

TEST(Listings, DocumentsStandInCatalogueOrder) {
    const Outcome outcome = Command({"documents"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 56);
    EXPECT_THAT(outcome.out, StartsWith("Deed / Administrator\nDeed / Conservator\n"));
    EXPECT_THAT(outcome.out, HasSubstr("Secretary\u2019s Certificate / Corporate\n"));
    EXPECT_THAT(outcome.out, EndsWith("\nFILE SUMMARY SHEET\n"));
}

TEST(Listings, FieldsHaveFourColumnsAndNoHoles) {
    std::istringstream lines(Command({"fields"}).out);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_EQ(std::ranges::count(line, '\t'), 3) << line;
        const auto marker = line.find('\t') + 1;
        const std::string_view name = std::string_view(line).substr(marker, line.find('\t', marker) - marker);
        EXPECT_EQ(FieldOfMarker(name), std::stoi(line)) << line;
    }
    EXPECT_EQ(count, 213) << "1 to 213 without the retired one, and the placeholder";
    EXPECT_THAT(Command({"fields"}).out, HasSubstr("\n26\t[seller 1 tax ID#]\t2027.1\t Seller #1's"));
}

}  // namespace
}  // namespace quillmark::cli
