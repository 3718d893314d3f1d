#include "platform/paths.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(Paths, StoredTextsNameFoldersOfThisSystem) {
    EXPECT_EQ(PathOfStored("data\\", "/firm/program"), "/firm/program/data");
    EXPECT_EQ(PathOfStored("data/sub\\Ames & Lee\\", "/firm/program"), "/firm/program/data/sub/Ames & Lee");
    EXPECT_EQ(PathOfStored("/srv/firm/", "/firm/program"), "/srv/firm");
    EXPECT_EQ(PathOfStored("..\\shared", "/firm/program"), "/firm/shared");
    EXPECT_EQ(PathOfStored(".\\", "/firm/program"), "/firm/program");
    EXPECT_EQ(PathOfStored("\\", "/firm/program"), "/");
    EXPECT_EQ(StoredTextOf(PathOf("/srv/Café/data")), "\\srv\\Café\\data");
    EXPECT_EQ(PathOfStored(StoredTextOf(PathOf("/srv/Café/data")), "/firm/program"),
              PathOf("/srv/Café/data"));
}

}  // namespace
}  // namespace quillmark
