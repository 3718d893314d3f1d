#include "entry/address_book.h"

#include <gtest/gtest.h>

#include <fmt/ranges.h>

#include <random>

#include "entry/address_book_list.h"

namespace quillmark {
namespace {

using Items = std::vector<std::string>;

constexpr const char* kBrown =
    "Brown & Green, LLC _ Robert B. Brown _ 200 Main Street _  _ Anytown, CT 06123 _ (860) 555-0102 _ "
    "(860) 555-0103 _ rob_brown@example.com";

std::string Random(std::mt19937& random, std::span<const std::string_view> pieces, int most) {
    std::string text;
    for (int left = std::uniform_int_distribution(0, most)(random); left > 0; --left)
        text += pieces[std::uniform_int_distribution<std::size_t>(0, pieces.size() - 1)(random)];
    return text;
}

TEST(AddressRecord, IsCutAtSeparatorsAlone) {
    EXPECT_EQ(ItemsOfRecord(AddressBook::Attorneys, kBrown),
              (Items{"Brown & Green, LLC", "Robert B. Brown", "200 Main Street", "", "Anytown, CT 06123",
                     "(860) 555-0102", "(860) 555-0103", "rob_brown@example.com"}));
    EXPECT_EQ(ItemsOfRecord(AddressBook::Servicers, "Bank _ 1 Wall St"),
              (Items{"Bank", "1 Wall St", "", ""}));
    EXPECT_EQ(ItemsOfRecord(AddressBook::Servicers, "A _ B _ C _ D _ E"), (Items{"A", "B", "C", "D _ E"}));
    EXPECT_EQ(ItemsOfRecord(AddressBook::Attorneys, "F _ A _ 1 _ 2 _ C _ P _ < attorney fax > _ ")[6], "");
}

TEST(AddressRecord, GivesBackTheItemsItWasMadeOfOrIsRefused) {
    constexpr std::string_view kPieces[] = {"a", "_", " ", "B C", "é", "\"", ","};
    std::mt19937 random(5);
    int made = 0;
    for (int i = 0; i < 5000; ++i) {
        Items items(4);
        for (std::string& item : items) item = Random(random, kPieces, 5);
        try {
            const std::string record = RecordOf(AddressBook::Servicers, items);
            ++made;
            ASSERT_EQ(ItemsOfRecord(AddressBook::Servicers, record), items) << record;
        } catch (const AddressRecordError&) {
        }
    }
    EXPECT_GT(made, 2500);
}

TEST(AddressRecord, RefusesWhatNoListCanHold) {
    const auto refused = [](std::string item) {
        EXPECT_THROW(RecordOf(AddressBook::Servicers, {"Bank", std::move(item), "", ""}), AddressRecordError);
    };
    refused("Suite _ 5");
    refused("Suite _");
    refused("1 Wall St\r\nNew York");
    refused(std::string("1 Wall\0St", 9));
    refused("ul. Łódzka 5");
    refused(std::string(5000, 'x'));
    EXPECT_THROW(RecordOf(AddressBook::Servicers, Items(4)), AddressRecordError);
    EXPECT_EQ(RecordOf(AddressBook::Attorneys, {"", "Ann Lee", "", "", "", "", "", ""}).substr(0, 17),
              "Ann Lee _ Ann Lee");
}

TEST(AddressBoxes, TelephonesTakeTheirForm) {
    EXPECT_EQ(BookTelephone("8605550102"), "(860) 555-0102");
    EXPECT_EQ(BookTelephone("18605550102"), "(1860) 555-0102");
    for (const char* text : {"860555010", "860-555-0102", "(860) 555-0102", "860555010x", ""})
        EXPECT_EQ(BookTelephone(text), text);
}

TEST(AddressListBytes, KeepEveryLineThatIsNoRecord) {
    const std::string zeros(6, '\0');
    const std::string bytes = "Old Bank _ 1 _  _ C\nCut Bank _ 2\r\r\n" + zeros + "\r\n" +
                              std::string(5000, 'x') + "\r\nCaf\xE9 _ 3 _  _ D\r\nTorn Ba";
    const AddressList list = AddressListOf("Servicers.lst", bytes);
    EXPECT_EQ(list.records, (Items{"Old Bank _ 1 _  _ C", "Cut Bank _ 2", "Café _ 3 _  _ D", "Torn Ba"}));
    EXPECT_EQ(list.faults, (Items{"Servicers.lst, line 4: is no text",
                                  "Servicers.lst, line 5: is longer than any record"}));
    EXPECT_EQ(WithRecord(bytes, "New _ 4 _  _ E"), bytes + "\r\nNew _ 4 _  _ E\r\n");
    EXPECT_EQ(WithRecord(bytes, "Café _ 3 _  _ D"), bytes);
    EXPECT_EQ(WithoutRecord(bytes, "Cut Bank _ 2"),
              "Old Bank _ 1 _  _ C\n\r\n" + bytes.substr(bytes.find(zeros)));
}

TEST(AddressListBytes, LoseNothingWhateverTheyAre) {
    constexpr std::string_view kPieces[] = {
        "\r", "\n", "\r\n", std::string_view("\0", 1), "A _ B", "\xFF", "_", " ", "R _ 1 _  _ C", "\x1A"};
    const std::string record = "R _ 1 _  _ C";
    std::mt19937 random(7);
    for (int i = 0; i < 5000; ++i) {
        const std::string bytes = Random(random, kPieces, 12);
        SCOPED_TRACE(fmt::format("{}", std::vector<int>(bytes.begin(), bytes.end())));
        const std::string with = WithRecord(bytes, record);
        ASSERT_TRUE(with.starts_with(bytes));
        ASSERT_EQ(WithRecord(with, record), with);
        Items records = AddressListOf("", with).records;
        ASSERT_NE(std::find(records.begin(), records.end(), record), records.end());

        const std::string without = WithoutRecord(with, record);
        ASSERT_EQ(AddressListOf("", without).faults.size(), AddressListOf("", bytes).faults.size());
        std::erase(records, record);
        ASSERT_EQ(AddressListOf("", without).records, records);
    }
}

}  // namespace
}  // namespace quillmark
