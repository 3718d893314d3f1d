#include "platform/paper.h"

#include <gmock/gmock.h>

namespace quillmark {
namespace {

using ::testing::ElementsAre;

TEST(Paper, ColumnsAreCharacters) {
    EXPECT_THAT(CutIntoColumns("", 3, 2), ElementsAre(""));
    EXPECT_THAT(CutIntoColumns("abc", 3, 2), ElementsAre("abc"));
    EXPECT_THAT(CutIntoColumns("abcdef", 3, 2), ElementsAre("abc", "de", "f"));
    EXPECT_THAT(CutIntoColumns("a’é’b", 3, 2), ElementsAre("a’é", "’b"));
    EXPECT_EQ(FillColumns("é", 3), "é  ");
    EXPECT_EQ(FillColumns("’’’’", 3), "’’’");
}

TEST(Paper, WideLinesAndFullPagesGoOn) {
    EXPECT_THAT(PagesOf({"one", "two and a half", "", "four"}, 8, 2),
                ElementsAre(ElementsAre("one", "two and "), ElementsAre("a half", ""), ElementsAre("four")));
    EXPECT_THAT(PagesOf({}, 8, 2), ElementsAre(ElementsAre()));
    EXPECT_EQ(PagesOf({"1", "2"}, 8, 2).size(), 1U) << "a full last page is the last";
}

}  // namespace
}  // namespace quillmark
