#include "entry/address_book_files.h"

#include <gtest/gtest.h>

#include "platform/atomic_file.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;

constexpr const char* kBank = "Any Bank _ 1 Main St _  _ Anycity, OH 43210";
const SystemClock kClock;

TEST(AddressBooks, KeepEachRecordOnceInTheirFormat) {
    const ScratchFolder folder;
    const AddressBooks books(folder.path(), kClock);
    EXPECT_TRUE(books.Read(AddressBook::Servicers).records.empty());
    EXPECT_TRUE(books.Add(AddressBook::Servicers, kBank).made);
    EXPECT_FALSE(books.Add(AddressBook::Servicers, kBank).made);
    EXPECT_EQ(books.AddAll({{AddressBook::Servicers, "Café _ 2 _  _ C"}, {AddressBook::Servicers, kBank}}),
              1u);
    EXPECT_EQ(ReadBytes(folder / "Servicers.lst"), std::string(kBank) + "\r\nCaf\xE9 _ 2 _  _ C\r\n");
    EXPECT_EQ(ReadBytes(folder / "Access.lok"), "");

    WriteBytes(folder / "Servicers.lst", std::string(kBank) + "\r\nOther _ 1 _  _ C\r\n" + kBank + "\r\n");
    EXPECT_EQ(books.Remove(AddressBook::Servicers, kBank).list.records,
              std::vector<std::string>{"Other _ 1 _  _ C"});
    EXPECT_FALSE(std::filesystem::exists(folder / "Attorneys.lst"));
    EXPECT_FALSE(std::filesystem::exists(folder / "Access.who"));
}

TEST(AddressBooks, FindTheListsThatAnotherProgramLeft) {
    const ScratchFolder folder;
    const AddressBooks books(folder.path(), kClock);
    WriteBytes(folder / "SERVICERS.LST", kBank);
    EXPECT_FALSE(books.Add(AddressBook::Servicers, kBank).made);
    std::filesystem::rename(folder / "SERVICERS.LST", folder / "Servicers.new");
    EXPECT_EQ(books.Read(AddressBook::Servicers).records, std::vector<std::string>{kBank});
    EXPECT_EQ(ReadBytes(folder / "Servicers.lst"), kBank);
    WriteBytes(folder / "Servicers.new", "half a co");
    EXPECT_EQ(books.Read(AddressBook::Servicers).records, std::vector<std::string>{kBank});
}

TEST(AddressBooks, LeaveAFileThatIsTooLargeAsItIs) {
    const ScratchFolder folder;
    const AddressBooks books(folder.path(), kClock);
    WriteBytes(folder / "Attorneys.lst", "");
    constexpr std::uintmax_t kSize = 65u << 20;
    std::filesystem::resize_file(folder / "Attorneys.lst", kSize);
    try {
        books.Add(AddressBook::Attorneys, "A _ B");
        FAIL() << "took it";
    } catch (const FileError& error) {
        EXPECT_EQ(error.kind, FileError::Kind::TooLarge);
    }
    EXPECT_EQ(std::filesystem::file_size(folder / "Attorneys.lst"), kSize);
    EXPECT_TRUE(books.Add(AddressBook::Servicers, kBank).made) << "the other book is held up";
}

}  // namespace
}  // namespace quillmark
