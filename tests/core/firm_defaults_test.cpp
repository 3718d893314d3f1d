#include "core/firm_defaults.h"

#include <gtest/gtest.h>

#include "platform/code_page.h"
#include "platform/record_file.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using test::ReadBytes;
using test::ScratchFolder;

TEST(FirmDefaults, AValueBeginsAtCharacterThirty) {
    FirmDefaults defaults;
    defaults.Set("[seller lawfirm]", "Ames & Lee’s");
    defaults.Set("[seller atty]", "Jane Roe/012345; John Doe/543210");
    defaults.Set("[seller atty cy,st zip]", "[seller atty cy,st zip]");
    const std::string bytes =
        "\"[seller lawfirm]:            Ames & Lee\x92s\"\r\n"
        "\"[seller atty]:               Jane Roe/012345; John Doe/543210\"\r\n";
    EXPECT_EQ(FirmDefaultsRecords(defaults), bytes);

    const FirmDefaults read = FirmDefaultsOfRecords("defaults.fld", bytes);
    EXPECT_EQ(read.ValueOf("[seller lawfirm]"), "Ames & Lee’s");
    EXPECT_EQ(read.ValueOf("[seller atty]"), "Jane Roe/012345; John Doe/543210");
    EXPECT_EQ(read.ValueOf("[seller atty fax]"), "[seller atty fax]");
    EXPECT_EQ(FirmDefaultsRecords(read), bytes);
}

TEST(FirmDefaults, AMarkerOrNothingTakesAValueAway) {
    FirmDefaults defaults;
    defaults.Set("[seller atty]", "Jane Roe");
    defaults.Set("[seller lawfirm]", "Ames & Lee");
    defaults.Set("[seller atty]", "John Doe");
    defaults.Set("[seller lawfirm]", "[seller lawfirm]");
    EXPECT_EQ(defaults.ValueOf("[seller atty]"), "John Doe");
    EXPECT_EQ(defaults.ValueOf("[seller lawfirm]"), "[seller lawfirm]");
    defaults.Set("[seller atty]", "");
    EXPECT_TRUE(defaults.IsEmpty());
}

TEST(FirmDefaults, PrefixesAreCountedInCharacters) {
    const FirmDefaults defaults =
        FirmDefaultsOfRecords("f", ToWindows1252("\"[café “é”]:                  né€e\"\r\n"));
    EXPECT_EQ(defaults.ValueOf("[café “é”]"), "né€e");
    EXPECT_EQ(FirmDefaultRow("[café “é”]", "né€e"), "[café “é”]:                  né€e");
}

TEST(FirmDefaults, TheFirstRowOfAMarkerCounts) {
    const std::string bytes = '"' + FirmDefaultRow("[seller atty]", "first") + "\"\r\n\"" +
                              FirmDefaultRow("[seller atty]", "second") + "\"\r\n\"[seller lawfirm]:\"\r\n";
    const FirmDefaults defaults = FirmDefaultsOfRecords("f", bytes);
    EXPECT_EQ(defaults.ValueOf("[seller atty]"), "first");
    EXPECT_EQ(defaults.ValueOf("[seller lawfirm]"), "[seller lawfirm]");
}

TEST(FirmDefaults, AFileThatIsNoneIsRefused) {
    for (const char* bytes : {"\"Ames & Lee\"", "\"[seller atty]: Jane Roe\"", "\"\"", "\"a:\",\"b\"", "1"}) {
        EXPECT_THROW(FirmDefaultsOfRecords("f", bytes), RecordError) << bytes;
    }
}

TEST(FirmDefaults, AreKeptInAFileThatMayBeMissing) {
    const ScratchFolder folder;
    EXPECT_TRUE(ReadFirmDefaults(folder / "defaults.fld").IsEmpty());
    FirmDefaults defaults;
    defaults.Set("[witness #1]", "A. Baker");
    test::WriteBytes(folder / "defaults.fld", FirmDefaultsRecords(defaults));
    EXPECT_EQ(ReadFirmDefaults(folder / "defaults.fld").Rows(), defaults.Rows());
}

}  // namespace
}  // namespace quillmark
