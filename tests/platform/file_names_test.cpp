#include "platform/file_names.h"

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

TEST(FileNames, OnesThatEverySystemKeepsAreTaken) {
    for (const char* name :
         {"Smith Jr..dat", "Müller - 12 Elm St.dat", "console.dat", "com10.dat", "a", "...a", "NULL"}) {
        EXPECT_EQ(FaultOfFileName(name), "") << name;
    }
    EXPECT_EQ(FaultOfFileName(std::string(kLongestFileName, 'a')), "");
}

TEST(FileNames, OnesThatLeadElsewhereOrMeanSomethingElseAreRefused) {
    const struct {
        std::string name;
        const char* fault;
    } kRows[] = {
        {"", "is empty"},
        {"..", "is the name of a folder"},
        {"../../x", "holds a \"/\""},
        {"a\\b", "holds a \"\\\""},
        {"C:x", "holds a \":\""},
        {"say \"so\"", "holds a quotation mark"},
        {std::string("important.txt\0.docx", 19), "holds the control character 0"},
        {"tab\tbed", "holds the control character 9"},
        {"Office.", "ends in a dot"},
        {"Office ", "ends in a blank"},
        {"nul", "is the name of a device"},
        {"Con.dat", "is the name of a device"},
        {"LPT1 .x.dat", "is the name of a device"},
        {"com².txt", "is the name of a device"},
        {std::string(kLongestFileName + 1, 'a'), "is longer than 240 characters"},
    };
    for (const auto& [name, fault] : kRows) EXPECT_EQ(FaultOfFileName(name), fault) << name;
}

}  // namespace
}  // namespace quillmark::test
