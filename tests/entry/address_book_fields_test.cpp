#include "entry/address_book_fields.h"

#include <gtest/gtest.h>

#include "core/field_registry.h"
#include "entry/smart_fields.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

constexpr const char* kBrown =
    "Brown & Green, LLC _ Robert B. Brown, Jr. _ 200 Main Street _  _ Hartford, CT 06103 _ (860) 555-0102 _ "
    "(860) 555-0103 _ ";
const SystemClock kClock;

void Enter(Job& job, int first, const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        if (!text.empty()) job.SetField(first, text);
        ++first;
    }
}

void FillBlock(Job& job, const std::vector<FieldText>& fields) {
    for (const FieldText& field : fields) job.SetField(field.n, field.text);
}

TEST(DatabaseCombo, OffersAttorneysOnOneRowAndServicersOnTwo) {
    EXPECT_EQ(BookOfField(11, true), AddressBook::Attorneys);
    EXPECT_EQ(BookOfField(12, false), AddressBook::Attorneys);
    EXPECT_EQ(BookOfField(12, true), std::nullopt);
    EXPECT_EQ(BookOfField(113, true), AddressBook::Servicers);
    EXPECT_EQ(BookOfField(13, false), std::nullopt);
}

TEST(DatabaseCombo, FillsABlockOfFieldsAtOnce) {
    const ScratchFolder folder;
    WriteBytes(folder / "Attorneys.lst", std::string("Short _ Ann Lee\r\n") + kBrown + "\r\n");
    const AddressBooks books(folder.path(), kClock);
    const DatabaseCombo combo = FillDatabaseCombo("Attorneys", 11, books);
    EXPECT_EQ(combo.tag, "[buyer lawfirm]");
    EXPECT_EQ(combo.lines, (std::vector<std::string>{"< SELECT FROM DATABASE >", "Short _ Ann Lee", kBrown}));
    EXPECT_TRUE(FieldsOfPick(combo, 0, true).empty());
    EXPECT_TRUE(FieldsOfPick(combo, 3, true).empty());

    Job job;
    AttachSmartFields(job);
    Enter(job, 14, {"Suite 9", "Elsewhere, CT"});
    job.SetField(18, "old@example.com");
    FillBlock(job, FieldsOfPick(combo, 2, true));
    EXPECT_EQ(job.D(11), "Brown & Green, LLC");
    EXPECT_EQ(job.D(3012), "Brown");
    EXPECT_EQ(job.D(1015), "Hartford");
    EXPECT_EQ(job.D(16), "(860) 555-0102");
    EXPECT_EQ(job.D(14), "[buyer atty addr 2]");
    EXPECT_EQ(job.txtField(18).colour, FieldColour::Unfilled);

    FillBlock(job, FieldsOfPick(combo, 1, true));
    EXPECT_EQ(job.D(12), "Ann Lee");
    EXPECT_FALSE(job.IsFilled(16)) << "one attorney's name beside another's telephone";
    EXPECT_THROW(FillDatabaseCombo("Attorneys", 95, books), std::invalid_argument);
    EXPECT_THROW(FillDatabaseCombo("Access", 11, books), std::invalid_argument);
}

TEST(DatabaseCombo, FillsThePayoffThatWasClicked) {
    Job job;
    FillBlock(job, FieldsOfRecord(113, "Equity, Inc. _ 600 Drive _ Floor 2 _ Anycity, OH 43210", true));
    EXPECT_EQ(job.D(113), "Equity, Inc.");
    EXPECT_EQ(job.D(116), "Anycity, OH 43210");
    EXPECT_FALSE(job.IsFilled(95));
}

TEST(DatabaseCombo, LeavesTheFirmOfALoneAttorneyUnfilled) {
    constexpr const char* kLone = "Ann Lee _ Ann Lee _ 1 Elm _  _ Anytown, CT _ 1 _ 2 _ ";
    EXPECT_EQ(FieldsOfRecord(12, kLone, true)[0], (FieldText{11, "[buyer lawfirm]"}));
    EXPECT_EQ(FieldsOfRecord(11, kLone, false)[0], (FieldText{11, "Ann Lee"}));
}

TEST(SaveToDatabases, FeedsWhatIsCompleteAndNewAndComesBackByAPick) {
    const ScratchFolder folder;
    const AddressBooks books(folder.path(), kClock);
    Job job;
    AttachSmartFields(job);
    Enter(job, 12, {"Ann Lee", "1 Elm St", "", "Anytown, CT 06123", "8605550102"});
    Enter(job, 95, {"Bank", "5 Wall St", "Floor 2", "Anycity, OH"});
    Enter(job, 113, {"Bank", "5 Wall St"});
    EXPECT_EQ(SaveToDatabases(job, books).added, 1u);
    EXPECT_FALSE(std::filesystem::exists(folder / "Attorneys.lst")) << "an attorney without fax was kept";

    Enter(job, 17, {"8605550103"});
    Enter(job, 115, {"Floor 2", "Anycity, OH"});
    EXPECT_EQ(SaveToDatabases(job, books).added, 1u);
    EXPECT_EQ(SaveToDatabases(job, books).added, 0u);
    EXPECT_EQ(ReadBytes(folder / "Servicers.lst"), "Bank _ 5 Wall St _ Floor 2 _ Anycity, OH\r\n");
    EXPECT_EQ(ReadBytes(folder / "Attorneys.lst"),
              "Ann Lee _ Ann Lee _ 1 Elm St _  _ Anytown, CT 06123 _ (860) 555-0102 _ (860) 555-0103 _ \r\n");

    Job next;
    AttachSmartFields(next);
    FillBlock(next, FieldsOfPick(FillDatabaseCombo("Attorneys", 12, books), 1, true));
    for (int n = 11; n <= 18; ++n) EXPECT_EQ(next.D(n), job.D(n)) << FieldMarker(n);
}

TEST(SaveToDatabases, TellsWhatTheListsCannotHoldAndKeepsTheRest) {
    const ScratchFolder folder;
    Job job;
    Enter(job, 95, {"Bank", "5 Wall St\r\nFloor 2", "", "Anycity, OH"});
    Enter(job, 113, {"Other Bank", "6 Wall St", "", "Anycity, OH"});
    const BooksFed fed = SaveToDatabases(job, AddressBooks(folder.path(), kClock));
    EXPECT_EQ(fed.added, 1u);
    ASSERT_EQ(fed.leftOut.size(), 1u);
    EXPECT_NE(fed.leftOut[0].find("5 Wall St"), std::string::npos);
    EXPECT_EQ(ReadBytes(folder / "Servicers.lst"), "Other Bank _ 6 Wall St _  _ Anycity, OH\r\n");
}

}  // namespace
}  // namespace quillmark
