#include "selection/packages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

using Names = std::vector<std::string>;

/// Packages in file order as "NAME: A, B".
Names Shown(const PackageFile& file) {
    Names names;
    for (const Package& package : file.packages) {
        std::string line = package.name + ":";
        for (const std::string& document : package.documents) line += " " + document;
        names.push_back(line);
    }
    return names;
}

TEST(Packages, TheBytesAreQuotedLinesOfTheCodePage) {
    ScratchFolder scratch;
    SavePackage(scratch.path(), {"ONE", {"Secretary’s Certificate / Corporate"}}, {});
    SavePackage(scratch.path(), {"EMPTY", {}}, {});
    EXPECT_EQ(ReadBytes(scratch / "package.def"),
              "\"<01>ONE\"\r\n\"Secretary\x92s Certificate / Corporate\"\r\n\"<00>EMPTY\"\r\n");
    EXPECT_THAT(PackageDocuments(scratch.path(), "ONE"), ElementsAre("Secretary’s Certificate / Corporate"));

    SavePackage(scratch.path(), {"ONE", {"Schedule A", "Schedule A"}}, "ONE");
    EXPECT_EQ(ReadBytes(scratch / "package.def"),
              "\"<00>EMPTY\"\r\n\"<02>ONE\"\r\n\"Schedule A\"\r\n\"Schedule A\"\r\n");
    SavePackage(scratch.path(), {"TWO", {}}, "ONE");
    EXPECT_EQ(ReadBytes(scratch / "package.def"), "\"<00>EMPTY\"\r\n\"<00>TWO\"\r\n");
    EXPECT_THROW(SavePackage(scratch.path(), {"EMPTY", {}}, "TWO"), PackageError);
    DeletePackage(scratch.path(), "empty");
    DeletePackage(scratch.path(), "TWO");
    EXPECT_EQ(ReadBytes(scratch / "package.def"), "\"<00>EMPTY\"\r\n");
}

TEST(Packages, WhatCannotBeStoredIsRefusedAndTheFileStays) {
    ScratchFolder scratch;
    SavePackage(scratch.path(), {"KEPT", {}}, {});
    const auto save = [&](const Package& package) { SavePackage(scratch.path(), package, "KEPT"); };
    EXPECT_NO_THROW(WithPackage("", {"FULL", Names(99, "Schedule A")}));
    EXPECT_THROW(save({"FULL", Names(100, "Schedule A")}), PackageError);
    EXPECT_THROW(save({"", {}}), PackageError);
    EXPECT_THROW(save({"A>B", {}}), PackageError);
    EXPECT_THROW(save({"ŁÓDŹ", {}}), UnencodableError);
    EXPECT_EQ(ReadBytes(scratch / "package.def"), "\"<00>KEPT\"\r\n");
}

constexpr const char* kHandEdited =
    "\"Stray Line\"\n"
    "\n"
    "\"<03>SHORT\"\r\n"
    "\"Deed / Warranty\"\r\n"
    "not quoted\r\n"
    "\"<1>BAD HEADER\"\r\n"
    "\"Lost\"\r\n"
    "  \"<01>GOOD\"  \r"
    "\"Schedule A\"\r\n"
    "\"Left Over\"\r\n"
    "\"<00>GOOD\"";

TEST(Packages, AHandEditedFileIsReadAsFarAsItCanBeAndToldOf) {
    const PackageFile file = PackagesOf("package.def", kHandEdited);
    EXPECT_THAT(Shown(file), ElementsAre("SHORT: Deed / Warranty", "GOOD: Schedule A"));
    ASSERT_EQ(file.faults.size(), 7u);
    EXPECT_EQ(file.faults[0], "package.def, line 1: belongs to no package");
    EXPECT_EQ(file.faults[1], "package.def, line 3: package SHORT should have 3 documents, 2 follow");
    EXPECT_THAT(file.faults[2], HasSubstr("line 5: not one text in double quotation marks"));
    EXPECT_THAT(file.faults[3], HasSubstr("line 6: a package's header"));
    EXPECT_THAT(file.faults[4], HasSubstr("line 7: belongs"));
    EXPECT_THAT(file.faults[5], HasSubstr("line 10: belongs"));
    EXPECT_THAT(file.faults[6], HasSubstr("line 11: a second package GOOD"));
}

TEST(Packages, LinesOfNoPackageStayByteForByte) {
    EXPECT_EQ(WithPackage(WithoutPackage(kHandEdited, "GOOD"), {"NEW", {}}),
              "\"Stray Line\"\n\n\"<03>SHORT\"\r\n\"Deed / Warranty\"\r\nnot quoted\r\n\"<1>BAD HEADER\"\r\n"
              "\"Lost\"\r\n\"Left Over\"\r\n\"<00>NEW\"\r\n");
    EXPECT_EQ(WithPackage("\"<00>A\"", {"B", {}}), "\"<00>A\"\r\n\"<00>B\"\r\n");
    const std::string noText("\"<02>A\"\r\n\"\0\"\r\n\x81\r\n", 17);
    EXPECT_EQ(PackagesOf("p", noText).faults.size(), 2u);
    EXPECT_EQ(WithoutPackage(noText, "B"), noText);
}

}  // namespace
}  // namespace quillmark::test
