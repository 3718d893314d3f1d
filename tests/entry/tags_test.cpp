#include "entry/tagged_values.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace quillmark {
namespace {

constexpr std::array<LitCells, 4> kCells = {{{false, false}, {true, false}, {false, true}, {true, true}}};
constexpr std::array kFamilies = {TagFamily::Commission, TagFamily::LoanNumber, TagFamily::Payoff,
                                  TagFamily::Paid,       TagFamily::Sewer,      TagFamily::Credit};

TEST(Tags, WrittenTagsAreReadBack) {
    for (const TagFamily family : kFamilies) {
        for (const LitCells lit : kCells) {
            for (const char* text : {"$1,000.00", "$500.00 - Oil", "4711 (old)"}) {
                const std::string value = WithTag(text, lit, family);
                const TaggedValue read = ReadTag(value, family);
                EXPECT_EQ(read.text, text) << value;
                if (!read.tag.empty()) {
                    EXPECT_EQ(CellsLitBy(read.tag, family), lit) << value;
                }
            }
        }
    }
}

TEST(Tags, AnyLetterBehindAnAmountIsATag) {
    EXPECT_EQ(ReadTag("$1,000.00 - D", TagFamily::Paid).tag, " - D");
    EXPECT_EQ(CellsLitBy(" - D", TagFamily::Paid), (LitCells{false, true})) << "not paid, as it is not P";
    EXPECT_EQ(ReadTag("$1,000.00 - é", TagFamily::Payoff).text, "$1,000.00");
    EXPECT_EQ(ReadTag("$1,000.00 -P", TagFamily::Paid).tag, "");
    EXPECT_EQ(ReadTag("", TagFamily::Paid).tag, "");
}

TEST(Tags, DescriptionsAndNumbersKeepTheirLetters) {
    EXPECT_EQ(ReadTag("$500.00 - A", TagFamily::Credit).tag, "") << "a description of one letter";
    EXPECT_EQ(ReadTag("$500.00 - A = U", TagFamily::Credit).text, "$500.00 - A");
    EXPECT_EQ(ReadTag("4711 (A)", TagFamily::LoanNumber).tag, "") << "a part of the number";
    EXPECT_EQ(ReadTag("4711 (A) (E)", TagFamily::LoanNumber).text, "4711 (A)");
    EXPECT_EQ(ReadTag("$1.00 - P", TagFamily::None).tag, "");
}

TEST(Tags, OnlyAmountsTakeTheTagOfTwoDarkCells) {
    EXPECT_EQ(WithTag("$40.00", {}, TagFamily::Sewer), "$40.00 = P");
    EXPECT_EQ(WithTag("see bill", {}, TagFamily::Sewer), "see bill");
    EXPECT_EQ(WithTag("$40.00", {}, TagFamily::Payoff), "$40.00 - T");
    EXPECT_EQ(WithTag("$40.00", {}, TagFamily::Paid), "$40.00");
}

}  // namespace
}  // namespace quillmark
